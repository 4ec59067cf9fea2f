#include "Dateiablauf.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "Meldung.h"
#include "Plattform.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr auto Programmtitel = "Vesk"_L1;

QString AlsText(const std::string& text) {
  return QString::fromStdString(text);
}

fs::path AlsPfad(const QString& pfad) {
  return QFile::encodeName(pfad).toStdString();
}

Dateiwahl Wahl(const QString& titel, const std::string& verzeichnis, const QString& vorschlag) {
  return {titel, u"User Dateien (*.dat)"_s, u"dat"_s, AlsText(verzeichnis), vorschlag};
}

}  // namespace

Dateiablauf::Dateiablauf(Zustand& zustand, Plattform& plattform, Dateifenster& fenster)
    : zustand_(zustand), plattform_(plattform), fenster_(fenster) {}

fs::path Dateiablauf::Pfad() const {
  return fs::path(zustand_.Arbeitsverzeichnis) / zustand_.UserDatei;
}

// ---------------------------------------------------------------------------------------------- reading

void Dateiablauf::InitLaden() {
  if (liest_) return;
  const QScopedValueRollback liest(liest_, true);
  DateiUebernehmen();
  rettung_.Gesichert(Bytes());
}

void Dateiablauf::DateiUebernehmen() {
  const bool gewaehlt = std::exchange(dateiGewaehlt_, false);
  neuesRufzeichen_ = false;
  zustand_.UserGeaendert = false;
  zustand_.Arbeitsverzeichnis = zustand_.ProgrammVerzeichnis;
  fenster_.SchalterLesen(zustand_.einstellungen);

  const Gelesen datei = stand_.Lesen(Pfad());
  if (datei.status != Lesestatus::Gelesen) {
    NichtGelesen(datei);
    return;
  }
  const Lesebericht bericht = UserDateiLesen(datei.bytes, zustand_);
  alteFassungNoetig_ = !bericht.verlustfrei || datei.abgeschnitten;
  fenster_.StandZeigen(bericht);
  if (bericht.User) TitelSetzen();
  AnderswoMelden();
  Umwandeln(bericht);
  // A chosen file comes into the present format at once. One that is not ours at all is left alone: it would
  // receive the data of the user before.
  if (gewaehlt && bericht.etwasGelesen) zustand_.UserGeaendert = true;
  UserSpeichern();
}

void Dateiablauf::NichtGelesen(const Gelesen& datei) {
  alteFassungNoetig_ = false;
  if (datei.status == Lesestatus::Fehlt) {
    UserDateiVorgaben(zustand_);
    zustand_.UserGeaendert = true;
  }
  fenster_.StandZeigen({});
  TitelSetzen();
  if (datei.status == Lesestatus::Fehler) {
    Fehler("Die Datei " + zustand_.UserDatei + " konnte nicht gelesen werden.", datei.grund);
  }
}

void Dateiablauf::Umwandeln(const Lesebericht& bericht) {
  if (bericht.version != Dateiversion::ZuAlt && bericht.version != Dateiversion::Umwandelbar) return;
  Zeigen(plattform_.boxen, zustand_.werte, {"Hinweis", Migrationsmeldung(bericht, zustand_.UserDatei)});
  const bool kopiert = !DateiKopieren(Pfad(), fs::path(zustand_.Arbeitsverzeichnis) / "User.bak");
  if (kopiert) alteFassungNoetig_ = false;
  zustand_.UserGeaendert = true;
}

void Dateiablauf::AnderswoMelden() {
  if (!stand_.AnderswoOffen()) {
    anderswoGemeldet_.clear();
  } else if (anderswoGemeldet_ != Pfad()) {
    anderswoGemeldet_ = Pfad();
    Zeigen(plattform_.boxen, zustand_.werte,
           {"Hinweis", "Die Datei " + zustand_.UserDatei +
                           " ist bereits in einem anderen Vesk geöffnet.\nWas dort geändert und gespeichert "
                           "wird, erscheint hier nicht; es wird aber nicht ungefragt überschrieben."});
  }
}

void Dateiablauf::NeuLesenUndAuffrischen() {
  InitLaden();
  fenster_.NachLadenAuffrischen();
}

void Dateiablauf::AenderungenVerwerfen() {
  NeuLesenUndAuffrischen();
}

void Dateiablauf::Laden() {
  if (UserLaden()) NeuLesenUndAuffrischen();
}

bool Dateiablauf::UserLaden() {
  const auto wahl =
      plattform_.dialoge.Oeffnen(Wahl(u"User Datei laden"_s, zustand_.Arbeitsverzeichnis, QString()));
  if (!wahl) return false;
  if (!UserSpeichern() && !NichtsZuVerlieren() &&
      !Frage(Programmtitel, u"Die Änderungen sind nicht gespeichert. Trotzdem eine andere Datei laden?"_s)) {
    return false;
  }
  const QFileInfo gewaehlt(*wahl);
  if (!InsProgrammverzeichnis(AlsPfad(*wahl))) return false;
  zustand_.UserDatei = gewaehlt.fileName().toStdString();
  zustand_.UserVerzeichnis = gewaehlt.absolutePath().toStdString();
  zustand_.Arbeitsverzeichnis = zustand_.UserVerzeichnis;
  zustand_.UserGeaendert = true;
  dateiGewaehlt_ = true;
  return true;
}

/// Files are always looked up in the program directory; one that lies elsewhere is offered to be brought
/// there. False: that failed, and the user was told.
bool Dateiablauf::InsProgrammverzeichnis(const fs::path& gewaehlt) {
  std::error_code keineAntwort;
  if (fs::equivalent(gewaehlt.parent_path(), zustand_.ProgrammVerzeichnis, keineAntwort)) return true;
  const Box frage{u"User Datei laden"_s,
                  u"Die Datei liegt nicht im Programmverzeichnis. Soll sie dorthin kopiert werden?"_s,
                  Symbol::Frage, Knoepfe::JaNein, Antwort::Ja};
  const Antwort antwort = plattform_.boxen.Zeigen(frage);
  zustand_.werte.Antwort = static_cast<std::int16_t>(antwort);
  if (antwort != Antwort::Ja) return true;

  const fs::path ziel = fs::path(zustand_.ProgrammVerzeichnis) / gewaehlt.filename();
  const Gelesen dort = DateiLesen(ziel);
  const bool dieselbe =
      dort.status == Lesestatus::Gelesen && !dort.abgeschnitten && dort.bytes == DateiLesen(gewaehlt).bytes;
  if (dieselbe) return true;
  Fehlergrund grund;
  if (dort.status != Lesestatus::Fehlt) grund = DateiKopieren(ziel, FreierAltname(ziel));
  if (!grund) grund = DateiKopieren(gewaehlt, ziel);
  if (!grund) return true;
  return Fehler("Die Datei " + gewaehlt.filename().string() + " konnte nicht kopiert werden.", *grund);
}

// ---------------------------------------------------------------------------------------------- writing

bool Dateiablauf::UserSpeichern() {
  if (speichert_) return false;
  const QScopedValueRollback speichert(speichert_, true);
  if (!zustand_.UserGeaendert) return true;
  if (neuesRufzeichen_) {
    fenster_.Abschliessen();
    const std::string& rufzeichen = zustand_.benutzer.Rufzeichen;
    return !rufzeichen.empty() && SpeichernUnter(AlsText(rufzeichen) + u".dat"_s);
  }
  return Schreiben(false);
}

void Dateiablauf::Speichern() {
  if (UserSpeichern() || !neuesRufzeichen_ || !zustand_.benutzer.Rufzeichen.empty()) return;
  Zeigen(plattform_.boxen, zustand_.werte,
         {"Hinweis", "Bitte zuerst das neue Rufzeichen in den Benutzerdaten eingeben."});
}

void Dateiablauf::UserSpeichernUnter() {
  if (speichert_) return;
  const QScopedValueRollback speichert(speichert_, true);
  SpeichernUnter(AlsText(zustand_.UserDatei));
}

bool Dateiablauf::SpeichernUnter(const QString& vorschlag) {
  const auto wahl =
      plattform_.dialoge.Speichern(Wahl(u"Datenblatt speichern"_s, zustand_.Arbeitsverzeichnis, vorschlag));
  if (!wahl) return false;
  const QFileInfo gewaehlt(*wahl);
  const fs::path alterPfad = Pfad();
  const bool andereDatei = AlsPfad(*wahl) != alterPfad;
  if (andereDatei && stand_.AndereArbeitenAn(AlsPfad(*wahl)) &&
      !Frage(Programmtitel, u"Die Datei %1 ist in einem anderen Vesk geöffnet. Trotzdem überschreiben?"_s.arg(
                                gewaehlt.fileName()))) {
    return false;
  }
  const auto vorher = std::tuple(zustand_.UserDatei, zustand_.UserVerzeichnis, zustand_.Arbeitsverzeichnis);
  zustand_.UserDatei = gewaehlt.fileName().toStdString();
  zustand_.UserVerzeichnis = gewaehlt.absolutePath().toStdString();
  zustand_.Arbeitsverzeichnis = zustand_.UserVerzeichnis;
  zustand_.UserGeaendert = true;
  const bool alteFassung = std::exchange(alteFassungNoetig_, alteFassungNoetig_ && !andereDatei);
  // The dialog has asked whether another file may be replaced.
  const bool geschrieben = Schreiben(andereDatei);
  if (geschrieben) {
    neuesRufzeichen_ = false;
  } else {
    std::tie(zustand_.UserDatei, zustand_.UserVerzeichnis, zustand_.Arbeitsverzeichnis) = vorher;
    alteFassungNoetig_ = alteFassung;
  }
  TitelSetzen();
  return geschrieben;
}

bool Dateiablauf::Schreiben(bool auchFremdes) {
  fenster_.Abschliessen();
  fenster_.SchalterLesen(zustand_.einstellungen);
  FaktorenNormalisieren(zustand_);
  const std::string bytes = UserDateiSchreiben(zustand_);
  if (alteFassungNoetig_ && !AlteFassungBehalten()) return false;

  Dateistand::Ergebnis ergebnis = stand_.Schreiben(Pfad(), bytes, auchFremdes);
  if (ergebnis.ausgang == Dateistand::Ausgang::FremdGeaendert && !FremdesUeberschreiben(bytes, ergebnis)) {
    return false;
  }
  if (ergebnis.ausgang == Dateistand::Ausgang::Fehler) {
    return Fehler("Die Datei " + zustand_.UserDatei + " konnte nicht gespeichert werden.", ergebnis.grund);
  }
  zustand_.UserGeaendert = false;
  rettung_.Gesichert(bytes);
  fenster_.BenutzerfensterVerbergen();
  return true;
}

bool Dateiablauf::FremdesUeberschreiben(const std::string& bytes, Dateistand::Ergebnis& ergebnis) {
  const QString frage =
      u"Die Datei %1 wurde inzwischen von einem anderen Programm geändert.\nSoll sie mit den Daten aus "
      u"diesem "
      "Fenster überschrieben werden? Die andere Fassung bleibt dann als %2 erhalten."_s;
  const QString altname = AlsText(FreierAltname(Pfad()).filename().string());
  if (!Frage(Programmtitel, frage.arg(AlsText(zustand_.UserDatei), altname))) return false;
  if (!AlteFassungBehalten()) return false;
  ergebnis = stand_.Schreiben(Pfad(), bytes, true);
  return true;
}

bool Dateiablauf::AlteFassungBehalten() {
  if (const Fehlergrund grund = DateiKopieren(Pfad(), FreierAltname(Pfad()))) {
    return Fehler("Die Datei " + zustand_.UserDatei + " konnte nicht gespeichert werden.", *grund);
  }
  alteFassungNoetig_ = false;
  return true;
}

// --------------------------------------------------------------------------------- callsigns and the end

void Dateiablauf::UserNeu() {
  const QString erklaerung =
      u"Diese Funktion ist sinnvoll, um Datenblätter\nnacheinander für mehrere Rufzeichen anzulegen.\n"
      "Aktuelle Userdaten und Datenblatt werden gesichert\nDanach werden die Daten nach Rückfrage gelöscht\n"
      "Nach Ausfüllen des Benutzerdialogs werden die Daten\nUnter dem eingegebenen Rufzeichen gesichert."_s;
  if (!Frage(u"Neues Datenblatt anlegen"_s, erklaerung)) return;
  if (!UserSpeichern() && !NichtsZuVerlieren()) return;
  if (!fenster_.DatenblattLoeschen()) return;
  neuesRufzeichen_ = true;
  fenster_.BenutzerNeuBeginnen();
  TitelSetzen();
}

void Dateiablauf::BenutzerfensterVerborgen() {
  if (!liest_ && !beendet_) UserSpeichern();
}

bool Dateiablauf::Beenden() {
  if (beendet_) return true;
  const bool gerettet = UserSpeichern() || NichtsZuVerlieren();
  const QString grund =
      neuesRufzeichen_ ? u"Die Daten des neuen Rufzeichens sind noch nicht gesichert.\n"_s : QString();
  if (!gerettet && !Frage(Programmtitel, grund + u"Programm trotzdem beenden?"_s)) return false;
  beendet_ = true;
  rettung_.Gesichert({});
  return true;
}

// --------------------------------------------------------------------------------------- after a crash

std::string Dateiablauf::Bytes() const {
  fenster_.SchalterLesen(zustand_.einstellungen);
  return UserDateiSchreiben(zustand_);
}

void Dateiablauf::RettungSichern() {
  if (liest_ || speichert_ || beendet_) return;
  rettung_.Sichern(zustand_.ProgrammVerzeichnis, neuesRufzeichen_ ? std::string() : zustand_.UserDatei,
                   Bytes());
}

void Dateiablauf::RettungAnbieten() {
  for (const Rettung::Fund& fund : Rettung::Suchen(zustand_.ProgrammVerzeichnis)) {
    const QString von = fund.datei.empty() ? u"für ein neues Rufzeichen"_s : u"an "_s + AlsText(fund.datei);
    const QString frage =
        u"Das Programm wurde nicht ordentlich beendet. Es gibt ungesicherte Änderungen %1.\n"
        "Sollen sie zurückgeholt werden?"_s;
    const Box box{Programmtitel, frage.arg(von), Symbol::Frage, Knoepfe::JaNein, Antwort::Ja};
    const bool zurueckholen = plattform_.boxen.Zeigen(box) == Antwort::Ja;
    if (zurueckholen) {
      if (!fund.datei.empty() && fund.datei != zustand_.UserDatei) {
        zustand_.UserDatei = fund.datei;
        InitLaden();
      }
      fenster_.StandZeigen(UserDateiLesen(fund.bytes, zustand_));
      neuesRufzeichen_ = fund.datei.empty();
      zustand_.UserGeaendert = true;
      TitelSetzen();
    }
    std::error_code egal;
    fs::remove(fund.pfad, egal);
    if (zurueckholen) break;
  }
  RettungSichern();
}

bool Dateiablauf::NichtsZuVerlieren() const {
  const bool leer = std::all_of(zustand_.Zellen.begin(), zustand_.Zellen.end(),
                                [](const std::string& zelle) { return zelle.empty(); });
  return neuesRufzeichen_ && leer && zustand_.benutzer == Benutzer();
}

// -------------------------------------------------------------------------------------------------------

void Dateiablauf::TitelSetzen() {
  fenster_.TitelSetzen(AlsText(TitelBenutzerfenster(zustand_)), AlsText(TitelHauptfenster(zustand_)),
                       AlsText(TitelDatenblatt(zustand_)));
}

/// Always false, so that a caller can return it.
bool Dateiablauf::Fehler(const std::string& text, const std::string& grund) {
  Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(text + "\n" + grund));
  return false;
}

bool Dateiablauf::Frage(const QString& titel, const QString& text) {
  return Bestaetigt(plattform_.boxen, zustand_.werte, titel, text);
}

}  // namespace vesk
