#include <system_error>

#include "persistence/Dateiablauf.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Pfade.h"

/// The plan's file beside the user's.
namespace vesk {

namespace fs = std::filesystem;

namespace {

Lageplanlesung Lesung(const Gelesen& datei) {
  if (datei.status == Lesestatus::Gelesen) return LageplanLesen(datei.bytes);
  return {{}, datei.grund, {}};  // no file: an empty plan
}

/// The picture stays where it is when the plan's file goes to another directory.
void BildortUmrechnen(Lageplan& plan, const fs::path& von, const fs::path& nach) {
  if (!plan.hintergrund || von == nach || PfadAusUtf8(plan.hintergrund->datei).is_absolute()) return;
  plan.hintergrund->datei = PfadAlsUtf8((von / PfadAusUtf8(plan.hintergrund->datei)).lexically_normal());
}

}  // namespace

/// Where no user's file is, the data stay what they are and get its name; so does their plan.
void Dateiablauf::PlanEinlesen(bool userdateiFehlt) {
  planpfad_ = Lageplanpfad(Pfad());
  planGespeichert_ = {};
  plan_ = {Dateistand(grenzen::Lageplan)};
  if (userdateiFehlt && !LageplanLeer(station_.lageplan)) return;
  Lageplanlesung lesung = Lesung(plan_.stand.Lesen(planpfad_));
  if (!lesung.fehler.empty()) {
    // Unknown, so that it is not overwritten unasked.
    plan_ = {Dateistand(grenzen::Lageplan), true};
    Fehler("Die Datei " + PfadAlsUtf8(planpfad_.filename()) + " konnte nicht gelesen werden.",
           lesung.fehler + "\nDer Lageplan ist leer; die Datei bleibt, wie sie ist.");
  } else if (!lesung.hinweis.empty()) {
    Sagen(lesung.hinweis);
  }
  planGespeichert_ = lesung.plan;
  station_.lageplan = std::move(lesung.plan);
}

bool Dateiablauf::PlanGesichert() const {
  return planpfad_ == Lageplanpfad(Pfad()) && station_.lageplan == planGespeichert_;
}

/// Otherwise says why the plan could not be read again, and what follows from it.
bool Dateiablauf::PlanBrauchbar(const std::string& folge) {
  const fs::path pfad = Lageplanpfad(Pfad());
  const Gelesen datei = DateiLesen(pfad, grenzen::Lageplan);
  const bool nieGespeichert = datei.status == Lesestatus::Fehlt && LageplanLeer(planGespeichert_);
  if (PlanGesichert() || nieGespeichert) return true;
  const std::string name = PfadAlsUtf8(pfad.filename());
  Fehlergrund grund = WarumOhneInhalt(name, datei);
  if (const std::string fehler = Lesung(datei).fehler; !grund && !fehler.empty()) {
    grund = "Die Datei " + name + " konnte nicht gelesen werden.\n" + fehler;
  }
  return !grund || Fehler(*grund, folge);
}

Fehlergrund Dateiablauf::BildortAnpassen(const fs::path& plan, const fs::path& vorher) {
  const Gelesen datei = DateiLesen(plan, grenzen::Lageplan);
  if (datei.status == Lesestatus::Fehler) return datei.grund;
  Lageplan inhalt = Lesung(datei).plan;
  const auto alt = inhalt.hintergrund;
  BildortUmrechnen(inhalt, vorher, plan.parent_path());
  return inhalt.hintergrund == alt ? std::nullopt : DateiSchreiben(plan, LageplanBytes(inhalt), plan);
}

/// Writes the plan if it has changed or goes with another file from now on.
bool Dateiablauf::PlanSchreiben() {
  const fs::path pfad = Lageplanpfad(Pfad());
  std::error_code egal;
  const bool dort = LageplanLeer(station_.lageplan) || fs::exists(pfad, egal);
  if (PlanGesichert() && dort) return true;
  BildortUmrechnen(station_.lageplan, planpfad_.parent_path(), pfad.parent_path());
  const Gelesen vorher = DateiLesen(pfad, grenzen::Lageplan);
  const std::string bytes = LageplanBytes(station_.lageplan);
  if (vorher.status != Lesestatus::Fehlt || !LageplanLeer(station_.lageplan)) {
    const bool andererOrt = pfad != planpfad_;
    const fs::path alt = Altname(pfad);
    if (andererOrt) plan_.abgelehnt = false;
    // Nobody has been asked about a plan that lies where the user's file goes.
    plan_.alteFassungNoetig =
        andererOrt ? vorher.status != Lesestatus::Fehlt && vorher.bytes != bytes : plan_.alteFassungNoetig;
    const bool behalten = andererOrt && plan_.alteFassungNoetig;
    if (!Ersetzen(plan_, pfad, bytes, andererOrt)) {
      station_.UserGeaendert = true;
      return false;
    }
    if (behalten) {
      Sagen("Neben " + station_.UserDatei + " lag schon ein Lageplan. Er bleibt als " +
            PfadAlsUtf8(alt.filename()) + " erhalten.");
    }
  }
  planpfad_ = pfad;
  planGespeichert_ = station_.lageplan;
  RettungErneuern();
  return true;
}

void Dateiablauf::PlanZurueckholen(const std::string& bytes) {
  const fs::path pfad = Lageplanpfad(Pfad());
  Lageplanlesung lesung = LageplanLesen(bytes);
  if (!lesung.fehler.empty()) {
    const fs::path alt = Altname(pfad, {Lesestatus::Gelesen, bytes, {}});
    const Fehlergrund grund = DateiSchreiben(alt, bytes, Pfad());
    Fehler("Der Lageplan läßt sich nicht zurückholen.",
           lesung.fehler + "\n" + grund.value_or("Er liegt als " + PfadAlsUtf8(alt.filename()) + " bereit."));
    return;
  }
  station_.lageplan = std::move(lesung.plan);
  std::error_code egal;
  plan_.alteFassungNoetig = !station_.neuesRufzeichen && !plan_.abgelehnt && fs::exists(pfad, egal);
}

}  // namespace vesk
