#include "station/Verlauf.h"

#include <tuple>
#include <utility>

namespace vesk {

namespace {

/// All that the user enters or chooses, but for the head of the angle page.
auto Inhalt(const Station& s) {
  const Rechenwerte& w = s.werte;
  return std::tie(w.QRGText, w.PWRText, w.GewinnText, w.DaempfungText, w.WinkelDaempfungText,
                  w.Modulationsfaktor, w.Zyklusfaktor, w.Grenzwerttyp, s.modus, s.einstellungen.AFu, s.Zellen,
                  s.Datenblattspalten, s.kreuze, s.SelectedModes, s.zyklus, s.AntennenIndex, s.winkel.antenne,
                  s.winkel.massstab, s.OptionenBeruecksichtigen, s.benutzer, s.Fusszeile, s.lageplan);
}

/// A calculation fills these, too; then they are no entry of the user.
auto Winkelkopf(const Station& s) {
  return std::tie(s.winkel.gewinn, s.winkel.frequenz, s.winkel.AntEinPWR);
}

bool Geaendert(const Station& vorher, const Station& jetzt) {
  return Inhalt(vorher) != Inhalt(jetzt) ||
         (Winkelkopf(vorher) != Winkelkopf(jetzt) && vorher.ergebnis == jetzt.ergebnis);
}

/// Another file or callsign with other data: what was typed before is not theirs. A new callsign whose data
/// are still in no file can be taken back.
bool AndereDatei(const Station& vorher, const Station& jetzt) {
  if (vorher.UserDatei == jetzt.UserDatei && vorher.Arbeitsverzeichnis == jetzt.Arbeitsverzeichnis)
    return false;
  return vorher.neuesRufzeichen || Inhalt(vorher) != Inhalt(jetzt);
}

/// The angle table and the file that it is said to be from.
auto Tabelle(const Station& s) {
  return std::tie(s.winkel.antenne, s.winkel.gewinn, s.winkel.frequenz, s.Datenblattspalten[0].Winkel);
}

/// Where the angle table stands on the disk, or that it stands nowhere.
template <typename Seite>
auto Verbleib(Seite& w) {
  return std::tie(w.datei, w.herkunft, w.dateiGelesen, w.bearbeitet, w.kopfGetippt);
}

/// The state `ziel` in the surroundings of today.
Station Wiederhergestellt(const Station& jetzt, const Station& ziel) {
  Station s = ziel;
  if (Tabelle(jetzt) == Tabelle(ziel)) {
    Verbleib(s.winkel) = Verbleib(jetzt.winkel);
  } else {
    s.winkel.bearbeitet = true;
  }
  const bool afu = ziel.einstellungen.AFu;
  s.einstellungen = jetzt.einstellungen;
  s.einstellungen.AFu = afu;
  s.modustipsVomSchalter = jetzt.modustipsVomSchalter;
  s.afutipVomSchalter = jetzt.afutipVomSchalter;
  s.modusGewechselt = jetzt.modusGewechselt;
  s.inArbeit = std::nullopt;
  s.fenster = jetzt.fenster;
  s.papiere = jetzt.papiere;
  s.schaubilder = jetzt.schaubilder;
  s.ohneDatei = jetzt.ohneDatei;
  s.ohneRettung = jetzt.ohneRettung;
  s.titelGesetzt = jetzt.titelGesetzt;
  s.UserDatei = jetzt.UserDatei;
  s.UserVerzeichnis = jetzt.UserVerzeichnis;
  s.ProgrammVerzeichnis = jetzt.ProgrammVerzeichnis;
  s.Arbeitsverzeichnis = jetzt.Arbeitsverzeichnis;
  s.zuletztBenutzt = jetzt.zuletztBenutzt;
  s.UserGeaendert = true;
  return s;
}

}  // namespace

bool Verlauf::Eintragen(const Station& vorher, const Station& jetzt, bool zumLetzten) {
  if (AndereDatei(vorher, jetzt)) {
    zurueck_.clear();
    vor_.clear();
    return true;
  }
  if (!Geaendert(vorher, jetzt)) return false;
  vor_.clear();
  if (zumLetzten) return true;
  zurueck_.push_back(vorher);
  if (zurueck_.size() > MaxSchritte) zurueck_.pop_front();
  return true;
}

void Verlauf::Merken(const Station& vorher, const Station& jetzt, const void* feld) {
  const bool weiter = feld != nullptr && feld == feld_;
  feld_ = feld;
  if (Eintragen(vorher, jetzt, weiter)) unverlassen_ = feld != nullptr;
}

void Verlauf::MerkenBeimVerlassen(const Station& vorher, const Station& jetzt) {
  Eintragen(vorher, jetzt, unverlassen_);
  feld_ = nullptr;
  unverlassen_ = false;
}

void Verlauf::Angleichen(const std::function<void(Station&)>& tun) {
  for (Station& s : zurueck_) tun(s);
  for (Station& s : vor_) tun(s);
}

bool Verlauf::Zurueck(Station& s) {
  if (zurueck_.empty()) return false;
  feld_ = nullptr;
  unverlassen_ = false;
  vor_.push_back(s);
  s = Wiederhergestellt(s, zurueck_.back());
  zurueck_.pop_back();
  return true;
}

bool Verlauf::Vor(Station& s) {
  if (vor_.empty()) return false;
  feld_ = nullptr;
  unverlassen_ = false;
  zurueck_.push_back(s);
  s = Wiederhergestellt(s, vor_.back());
  vor_.pop_back();
  return true;
}

}  // namespace vesk
