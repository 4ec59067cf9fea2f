#include "persistence/Dateiablauf.h"

#include <algorithm>
#include <system_error>

#include "engine/Version.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Pfade.h"
#include "station/Datenblatt.h"
#include "station/Operator.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"
#include "station/Text.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

/// Puts the file `von`, or that there is none, in place of `nach`; what stood there is kept as "…-alt".
Fehlergrund Herbringen(const fs::path& von, const fs::path& nach) {
  const Gelesen neu = DateiLesen(von, grenzen::UserDatei);
  const Gelesen alt = DateiLesen(nach, grenzen::UserDatei);
  if (alt.status != Lesestatus::Fehlt) {
    if (alt.status == neu.status && alt.bytes == neu.bytes) return std::nullopt;
    if (Fehlergrund grund = DateiKopieren(nach, Altname(nach))) return grund;
  }
  if (neu.status != Lesestatus::Fehlt) return DateiKopieren(von, nach);
  std::error_code fehler;
  fs::remove(nach, fehler);
  return fehler ? Fehlergrund(Fehlertext(fehler.value())) : std::nullopt;
}

}  // namespace

Dateiablauf::Dateiablauf(Station& station, const Kataloge& kataloge, Rueckfragen& rueckfragen)
    : station_(station), kataloge_(kataloge), rueckfragen_(rueckfragen) {}

fs::path Dateiablauf::Pfad() const {
  return PfadAusUtf8(station_.Arbeitsverzeichnis) / PfadAusUtf8(station_.UserDatei);
}

void Dateiablauf::DateiWechseln(const fs::path& pfad) {
  station_.UserDatei = PfadAlsUtf8(pfad.filename());
  station_.Arbeitsverzeichnis = PfadAlsUtf8(pfad.parent_path());
  station_.UserVerzeichnis = PfadZumZeigen(pfad.parent_path());
}

Dateiwahl Dateiablauf::Wahl(const std::string& titel, const std::string& vorschlag) const {
  return {titel, "User Dateien (*.dat)", "dat", PfadAusUtf8(station_.Arbeitsverzeichnis), vorschlag};
}

Dateiablauf::Blatt Dateiablauf::BlattJetzt() const {
  Blatt blatt{station_.Zellen, station_.Datenblattspalten};
  blatt.spalten[0] = {};  // the working record is in no file
  return blatt;
}

// ------------------------------------------------------------------------------------------- the start

void Dateiablauf::InitLaden() {
  const Vorgang vorgang(*this);
  if (!vorgang) return;
  DateiWechseln(PfadAusUtf8(station_.ProgrammVerzeichnis) / PfadAusUtf8(station_.UserDatei));
  Einlesen(false);
}

// ---------------------------------------------------------------------------------------------- reading

/// Another file's data come: nothing is left that belongs to the former ones.
void Dateiablauf::Leeren() {
  SpalteVerlassen(station_);
  BenutzerLeeren(station_);
  station_.benutzermarken = {};
  station_.Zellen = {};
  station_.rot.reset();
  station_.spaltenfarben = {};
  std::fill(station_.Datenblattspalten.begin() + 1, station_.Datenblattspalten.end(), LeereSpalte());
  station_.Fusszeile.clear();
  station_.lageplan = {};
}

/// Reads the current file. A chosen one comes into the present format at once.
void Dateiablauf::Einlesen(bool gewaehlt) {
  station_.neuesRufzeichen = false;
  station_.UserGeaendert = false;
  const Gelesen datei = user_.stand.Lesen(Pfad());
  station_.ohneDatei = datei.status == Lesestatus::Fehlt;
  PlanEinlesen(station_.ohneDatei);
  if (datei.status == Lesestatus::Gelesen) {
    Auswerten(datei, gewaehlt);
  } else {
    NichtGelesen(datei);
  }
  // Data that only get the name of a file that is missing stand in none.
  const bool behalten = gewaehlt && station_.ohneDatei;
  gespeichert_ = behalten ? Blatt() : BlattJetzt();
  rettung_.Gesichert(behalten ? std::string() : UserDateiSchreiben(station_));
  RettungErneuern();
}

void Dateiablauf::Auswerten(const Gelesen& datei, bool gewaehlt) {
  const Lesebericht bericht = BytesLesen(datei.bytes);
  user_.alteFassungNoetig = !bericht.verlustfrei || bericht.abgebrochen;
  if (bericht.User) station_.titelGesetzt = true;
  AnderswoMelden();
  if (gewaehlt && bericht.abgebrochen) {
    Sagen("Die Datei " + station_.UserDatei +
          " ist unvollständig: Sie endet zu früh.\nWas fehlt, bleibt leer. " + "Die Datei bleibt als " +
          PfadAlsUtf8(Altname(Pfad()).filename()) + " erhalten.");
  }
  Umwandeln(bericht);
  if (gewaehlt) station_.UserGeaendert = true;
  Sichern();
}

Lesebericht Dateiablauf::BytesLesen(std::string_view bytes) {
  Lesebericht bericht = UserDateiLesen(bytes, station_);
  station_.benutzer.Klasse = Grossbuchstaben(station_.benutzer.Klasse);
  station_.modustipsVomSchalter = station_.afutipVomSchalter = false;
  station_.klasseEntschieden = station_.benutzer.Rufzeichen;
  return bericht;
}

void Dateiablauf::NichtGelesen(const Gelesen& datei) {
  user_.alteFassungNoetig = false;
  station_.titelGesetzt = true;
  if (datei.status == Lesestatus::Fehlt) {
    UserDateiVorgaben(station_);
    station_.UserGeaendert = true;
  } else {
    Fehler("Die Datei " + station_.UserDatei + " konnte nicht gelesen werden.", datei.grund);
  }
}

void Dateiablauf::Umwandeln(const Lesebericht& bericht) {
  if (bericht.version != Dateiversion::ZuAlt && bericht.version != Dateiversion::Umwandelbar) return;
  Sagen(Migrationsmeldung(bericht, station_.UserDatei));
  const fs::path bak = PfadAusUtf8(station_.Arbeitsverzeichnis) / "User.bak";
  const Gelesen frueher = DateiLesen(bak, grenzen::UserDatei);
  // What another conversion has put there is needed, too.
  const bool belegt =
      frueher.status != Lesestatus::Fehlt && frueher.bytes != DateiLesen(Pfad(), grenzen::UserDatei).bytes;
  const bool behalten = !belegt || !DateiKopieren(bak, Altname(bak));
  const bool kopiert = behalten && !DateiKopieren(Pfad(), bak);
  if (kopiert && !bericht.abgebrochen) user_.alteFassungNoetig = false;
  station_.UserGeaendert = true;
}

void Dateiablauf::AnderswoMelden() {
  if (!user_.stand.AnderswoOffen()) {
    anderswoGemeldet_.clear();
  } else if (anderswoGemeldet_ != Pfad()) {
    anderswoGemeldet_ = Pfad();
    Sagen("Die Datei " + station_.UserDatei +
          " ist bereits in einem anderen Vesk geöffnet.\nWas dort geändert und gespeichert wird, erscheint "
          "hier nicht; es wird aber nicht ungefragt überschrieben.");
  }
}

/// Otherwise says why not, and what follows from it. `ganz`: one that ends too early is not.
bool Dateiablauf::Brauchbar(const fs::path& pfad, const std::string& folge, bool ganz) {
  const Fehlergrund grund =
      WarumUnbrauchbar(PfadAlsUtf8(pfad.filename()), DateiLesen(pfad, grenzen::UserDatei), ganz);
  return !grund || Fehler(*grund, folge);
}

// ------------------------------------------------------------------------------------------ other files

void Dateiablauf::UserLaden() {
  const Vorgang vorgang(*this);
  if (!vorgang) return;
  RettungErneuern();  // the dialog may stand for long
  if (const auto gewaehlt = rueckfragen_.ZumOeffnen(Wahl("User Datei laden", {}))) Wechseln(*gewaehlt);
}

void Dateiablauf::UserLaden(const fs::path& gewaehlt) {
  const Vorgang vorgang(*this);
  if (vorgang) Wechseln(gewaehlt);
}

void Dateiablauf::Wechseln(const fs::path& gewaehlt) {
  if (!Sichern() && !NichtsZuVerlieren() &&
      !Frage(std::string(Produktname),
             "Die Änderungen sind nicht gespeichert. Trotzdem eine andere Datei laden?")) {
    return;
  }
  if (!InsProgrammverzeichnis(gewaehlt)) return;
  DateiWechseln(PfadAusUtf8(station_.ProgrammVerzeichnis) / gewaehlt.filename());
  // Left where it is, a file is missing here: the data stay and get its name.
  if (DateiLesen(Pfad(), grenzen::UserDatei).status != Lesestatus::Fehlt) Leeren();
  Einlesen(true);
}

/// Files are always looked up in the program directory; one that lies elsewhere is offered to be brought
/// there. False: it cannot be used, and the user was told.
bool Dateiablauf::InsProgrammverzeichnis(const fs::path& gewaehlt) {
  const std::string folge = "Es wird weiter mit " + station_.UserDatei + " gearbeitet.";
  if (!Brauchbar(gewaehlt, folge)) return false;
  std::error_code keineAntwort;
  if (fs::equivalent(gewaehlt.parent_path(), PfadAusUtf8(station_.ProgrammVerzeichnis), keineAntwort))
    return true;
  const Hinweis frage{
      "User Datei laden", "Die Datei liegt nicht im Programmverzeichnis. Soll sie dorthin kopiert werden?",
      Knoepfe::JaNein,    Symbol::Frage,
      Antwort::Ja,
  };
  const fs::path ziel = PfadAusUtf8(station_.ProgrammVerzeichnis) / gewaehlt.filename();
  const Gelesen dort = DateiLesen(ziel, grenzen::UserDatei);
  if (rueckfragen_.Fragen(frage) != Antwort::Ja) {
    return dort.status == Lesestatus::Fehlt || Brauchbar(ziel, folge);
  }
  const bool dieselbe =
      dort.status == Lesestatus::Gelesen && dort.bytes == DateiLesen(gewaehlt, grenzen::UserDatei).bytes;
  const auto kopieren = [&](const fs::path& von, const fs::path& nach) {
    const Fehlergrund grund = Herbringen(von, nach);
    const std::string name = PfadAlsUtf8(nach.filename());
    return !grund || Fehler("Die Datei " + name + " konnte nicht kopiert werden.", *grund);
  };
  if (!dieselbe && !kopieren(gewaehlt, ziel)) return false;
  // To the same data belongs the plan that lies here already, unless another one is brought along.
  const fs::path plan = Lageplanpfad(gewaehlt);
  const bool mitPlan = DateiLesen(plan, grenzen::Lageplan).status != Lesestatus::Fehlt;
  if (dieselbe && !mitPlan) return true;
  if (!kopieren(plan, Lageplanpfad(ziel))) return false;
  const Fehlergrund grund = BildortAnpassen(Lageplanpfad(ziel), plan.parent_path());
  return !grund || Fehler("Der Ort des Hintergrundbilds läßt sich nicht merken.", *grund);
}

void Dateiablauf::AenderungenVerwerfen() {
  const Vorgang vorgang(*this);
  const std::string folge = "Alle Änderungen bleiben erhalten.";
  if (!vorgang || !Brauchbar(Pfad(), folge, true) || !PlanBrauchbar(folge)) return;
  if (!NichtsZuVerlieren() && !VerwerfenBestaetigt()) return;
  Leeren();
  Einlesen(false);
  station_.fenster.benutzer = false;
}

bool Dateiablauf::VerwerfenBestaetigt() {
  const bool blatt = BlattJetzt() != gespeichert_;
  const bool plan = !PlanGesichert();
  if (!blatt && !plan) return true;
  const char* was = !plan   ? "Auch das Datenblatt wurde"
                    : blatt ? "Auch Datenblatt und Lageplan wurden"
                            : "Auch der Lageplan wurde";
  return Frage(std::string(Produktname), was + std::string(" geändert. Alle Änderungen verwerfen?"));
}

void Dateiablauf::UserNeu() {
  const Vorgang vorgang(*this);
  if (!vorgang) return;
  const std::string erklaerung =
      "Diese Funktion ist sinnvoll, um Datenblätter\nnacheinander für mehrere Rufzeichen anzulegen.\n"
      "Aktuelle Userdaten und Datenblatt werden gesichert\nDanach werden die Daten nach Rückfrage gelöscht\n"
      "Nach Ausfüllen des Benutzerdialogs werden die Daten\nUnter dem eingegebenen Rufzeichen gesichert.";
  if (!Frage("Neues Datenblatt anlegen", erklaerung)) return;
  if (!Sichern() && !NichtsZuVerlieren()) return;
  if (!Frage(std::string(Produktname), "Datenblatt wirklich löschen?")) return;
  station_.neuesRufzeichen = true;
  station_.titelGesetzt = true;
  BenutzerLeeren(station_);
  station_.benutzermarken = {};
  station_.lageplan = {};
  Sagen(DatenblattLeeren(station_, kataloge_));
  station_.fenster.benutzer = true;
}

// -------------------------------------------------------------------------------------------------------

void Dateiablauf::Sagen(const std::string& text) {
  rueckfragen_.Fragen({"Hinweis", text});
}

void Dateiablauf::Sagen(const Meldungen& meldungen) {
  for (const Meldung& meldung : meldungen) {
    const Antwort antwort = rueckfragen_.Fragen(meldung.hinweis);
    if (meldung.danach) Sagen(meldung.danach(station_, kataloge_, antwort));
  }
}

/// Always false, so that a caller can return it.
bool Dateiablauf::Fehler(const std::string& text, const std::string& grund) {
  rueckfragen_.Fragen(Fehlermeldung(text + "\n" + grund));
  return false;
}

bool Dateiablauf::Frage(const std::string& titel, const std::string& text) {
  return rueckfragen_.Fragen(Bestaetigung(titel, text)) == Antwort::Ja;
}

}  // namespace vesk
