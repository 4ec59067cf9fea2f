#include <system_error>

#include "engine/Version.h"
#include "persistence/Dateiablauf.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Pfade.h"
#include "persistence/Winkelablauf.h"
#include "station/Winkel.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

std::string Rueckfrage(const Rettung::Fund& fund) {
  const std::string name = PfadAlsUtf8(fund.datei.filename());
  const std::string von = fund.datei.empty() ? "für ein neues Rufzeichen" : "an " + name;
  const std::string anfang = "Das Programm wurde nicht ordentlich beendet. Es gibt ";
  const std::string tabelle = "eine nicht gespeicherte Winkeltabelle";
  if (fund.inhalt.user.empty() && fund.inhalt.plan.empty()) {
    return anfang + tabelle + ".\nSoll sie zurückgeholt werden?";
  }
  return anfang + "ungesicherte Änderungen " + (fund.inhalt.user.empty() ? "am Lageplan zu " + name : von) +
         (fund.inhalt.winkel.empty() ? "" : " und " + tabelle) + ".\nSollen sie zurückgeholt werden?";
}

std::string Beiseitegelegt(const std::vector<fs::path>& dateien) {
  std::string text =
      "Das Programm wurde nicht ordentlich beendet. Was damals nicht gespeichert war, ist älter als das, was "
      "jetzt in der Datei steht. Es bleibt daneben erhalten:";
  for (const fs::path& datei : dateien) text += "\n" + PfadZumZeigen(datei);
  return text;
}

}  // namespace

void Dateiablauf::RettungAnbieten() {
  const Vorgang vorgang(*this);
  if (!vorgang) return;
  const Rettung::Suche suche = Rettung::Suchen(PfadAusUtf8(station_.ProgrammVerzeichnis));
  if (!suche.beiseite.empty()) Sagen(Beiseitegelegt(suche.beiseite));
  for (const Rettung::Fund& fund : suche.funde) {
    const Hinweis frage{std::string(Produktname), Rueckfrage(fund), Knoepfe::JaNein, Symbol::Frage,
                        Antwort::Ja};
    const Antwort antwort = rueckfragen_.Fragen(frage);
    if (antwort == Antwort::Keine) return;
    if (antwort == Antwort::Ja) {
      Zurueckholen(fund);
      return;
    }
    Rettung::Verwerfen(fund.pfad);
  }
}

void Dateiablauf::Zurueckholen(const Rettung::Fund& fund) {
  if (!fund.inhalt.user.empty() || !fund.inhalt.plan.empty()) DatenZurueckholen(fund);
  if (!fund.inhalt.winkel.empty()) {
    station_.winkel.datei = PfadAlsUtf8(fund.inhalt.winkeldatei);
    WinkelZeigen(station_, WinkelLesen(fund.inhalt.winkel));
    station_.winkel.dateiGelesen = false;
    station_.winkel.bearbeitet = station_.winkel.kopfGetippt = true;
  }
  rettung_.Fortsetzen(fund);
}

void Dateiablauf::DatenZurueckholen(const Rettung::Fund& fund) {
  if (!fund.datei.empty() && fund.datei != WirklicherPfad(Pfad())) {
    DateiWechseln(fund.datei);
    Leeren();
    Einlesen(false);
  }
  if (!fund.inhalt.user.empty()) {
    Leeren();
    BytesLesen(fund.inhalt.user);
    if (!fund.datei.empty()) station_.lageplan = planGespeichert_;
    std::error_code egal;
    user_.alteFassungNoetig = !fund.datei.empty() && fs::exists(Pfad(), egal);
  }
  station_.neuesRufzeichen = fund.datei.empty();
  if (!fund.inhalt.plan.empty()) PlanZurueckholen(fund.inhalt.plan);
  station_.UserGeaendert = true;
  station_.titelGesetzt = true;
}

Rettung::Stand Dateiablauf::RettungSichern() {
  return laeuft_ || beendet_ ? Rettung::Stand::Gescheitert : RettungErneuern();
}

Rettung::Stand Dateiablauf::RettungErneuern() {
  Rettung::Inhalt inhalt{UserDateiSchreiben(station_)};
  if (WinkelUngesichert(station_)) {
    inhalt.winkel = WinkelSchreiben(WinkeldatenDerSeite(station_));
    inhalt.winkeldatei = PfadAusUtf8(station_.winkel.datei);
  }
  if (station_.neuesRufzeichen || !PlanGesichert()) inhalt.plan = LageplanBytes(station_.lageplan);
  const Rettung::Stand stand = rettung_.Sichern(PfadAusUtf8(station_.ProgrammVerzeichnis),
                                                station_.neuesRufzeichen ? fs::path() : Pfad(), inhalt);
  station_.ohneRettung = stand == Rettung::Stand::Gescheitert;
  return stand;
}

}  // namespace vesk
