#include "app/Kommandozeile.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <charconv>
#include <ostream>
#include <vector>

#include "app/Druckbefehl.h"
#include "app/Rechenauftrag.h"
#include "engine/Ausgabe.h"
#include "engine/Hinweise.h"
#include "engine/Version.h"
#include "engine/Zahlen.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr const char* Hilfe =
    " - Sicherheitsabstände ortsfester Amateurfunkstellen\n"
    "\n"
    "Aufruf: vesk [--verzeichnis DIR]    öffnet das Programm\n"
    "        vesk rechnen ...            rechnet im Terminal (siehe unten)\n"
    "        vesk drucken ...            schreibt die Unterlagen als PDF (siehe unten)\n"
    "        vesk --version              zeigt die Version\n"
    "        vesk --help                 zeigt diese Hilfe\n"
    "\n"
    "  --verzeichnis DIR   Verzeichnis mit den Dateien des Benutzers (user.dat, Kabel.txt, Antennen.txt)\n"
    "\n";

constexpr const char* Hilferechnen =
    "Aufruf: vesk rechnen --qrg MHZ (--pwr WATT | --abstand METER) [Optionen]\n"
    "\n"
    "Berechnet die Sicherheitsabstände einer Funkstelle, mit --abstand die größte zulässige Sendeleistung.\n"
    "Zahlen dürfen Komma oder Punkt tragen.\n"
    "\n"
    "  --qrg MHZ         Frequenz oder Amateurband in MHz (0,003 bis 300000)\n"
    "  --pwr WATT        Sendeleistung in Watt\n"
    "  --abstand METER   gegebener Sicherheitsabstand in Metern\n"
    "  --gewinn DBI      Antennengewinn in dBi (Vorgabe 0, auch negativ)\n"
    "  --daempfung DB    Verluste zwischen Sender und Antenne in dB (Vorgabe 0)\n"
    "  --winkel DB       Winkeldämpfung in dB (Vorgabe 0)\n"
    "  --faktor K        Faktor aus Sendeart und Sendezyklus, über 0 bis 1 (Vorgabe 1)\n"
    "  --typ AM|TV|GSM   Signaltyp für DIN VDE 0848 Teil 3-1 (Vorgabe AM)\n"
    "  --exakt           mit genau dieser Frequenz rechnen statt mit der ungünstigsten des Bandes\n"
    "  --json            Ausgabe für Maschinen\n"
    "  --help            diese Hilfe\n"
    "\n"
    "Rückgabewert: 0; 1 bei einem Fehler der Berechnung oder der Ausgabe; 2 bei falschen oder fehlenden "
    "Angaben.\n";

constexpr const char* Hilfedrucken =
    "Aufruf: vesk drucken --art ART --datei DATEI --nach PDF [Optionen]\n"
    "\n"
    "Schreibt Unterlagen einer Benutzerdatei als PDF. Die Benutzerdatei bleibt, wie sie ist.\n"
    "\n"
    "  --art ART           mappe (alle Unterlagen), antrag, datenblatt, regtp (Datenblatt der RegTP),\n"
    "                      benutzer (persönliche Daten), winkel (Winkeldiagramme), rechenweg\n"
    "  --datei DATEI       Benutzerdatei, zum Beispiel user.dat\n"
    "  --nach PDF          Datei, die geschrieben wird; eine vorhandene wird ersetzt\n"
    "  --help              diese Hilfe\n"
    "\n"
    "Nur zu winkel und mappe:\n"
    "  --winkeldatei DATEI Winkeltabelle; die Leistung ist die größte der Spalten dieser Frequenz.\n"
    "                      Ohne sie gelten die Winkeltabellen der Spalten.\n"
    "  --hsm ohne|306|vde  nur die Diagramme dieser Sicherheitsabstände (Vorgabe: alle)\n"
    "  --massstab 1:N      Maßstab der Diagramme, 1:1 bis 1:100000 (Vorgabe: passend zur Seite)\n"
    "\n"
    "  --verzeichnis DIR   Verzeichnis mit Kabel.txt (Vorgabe: das des Programms)\n"
    "\n"
    "Mit SOURCE_DATE_EPOCH als Zeit (Sekunden seit 1970) entsteht jedes Mal dieselbe Datei.\n"
    "Rückgabewert: 0; 1, wenn eine Datei nicht zu lesen oder zu schreiben ist oder nichts zu drucken da ist; "
    "2 bei falschen oder fehlenden Angaben.\n";

/// The notes that a window would have shown, in its order.
std::vector<Hinweis> Hinweise(const Rechenergebnis& e) {
  std::vector<Hinweis> liste;
  for (const Hinweisart art : FaelligeHinweise(e)) liste.push_back(HinweisZu(art, e));
  return liste;
}

/// The texts of the calculation. Where no limit is defined there is no result either, also when a fault has
/// kept its field from being emptied.
Feldtexte Texte(const Rechenergebnis& e, char trenner) {
  Feldtexte texte = Ausgabetexte(e, trenner);
  if (e.grenzwerte.ohneHSM == 0) texte[Feld::AusgabeOhneHSM].reset();
  if (e.grenzwerte.hsm306.Grenzwert == 0) texte[Feld::AusgabeHSM306].reset();
  if (e.grenzwerte.hsmVDE.Grenzwert == 0) texte[Feld::AusgabeHSMvde].reset();
  return texte;
}

/// The shortest decimal that is this single, so that 14.2 is not written as 14.199999809.
QJsonValue Wert(const std::optional<float>& wert) {
  if (!wert) return QJsonValue::Null;
  std::array<char, 64> puffer{};
  const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), *wert).ptr;
  double zahl = 0;
  std::from_chars(puffer.data(), ende, zahl);
  return zahl;
}

/// A quantity that is never 0: 0 stands for undefined or not reached.
std::optional<float> Definiert(float wert) {
  return wert != 0 ? std::optional(wert) : std::nullopt;
}

QJsonObject Werte(const Rechenwerte& w, const Rechenergebnis& e) {
  const bool abstand = e.modus == Modus::Abstand;
  const auto zu = [](float grenzwert, const std::optional<float>& ergebnis) {
    return grenzwert != 0 ? ergebnis : std::nullopt;
  };
  const Grenzwerte& g = e.grenzwerte;
  const std::pair<const char*, std::optional<float>> tabelle[] = {
      {"QRG", w.QRG},
      {"QRGGrenzwert", w.QRGGrenzwert},
      {"QRGHSM", w.QRGHSM},
      {"QRGLambda", w.QRGLambda},
      {"GrenzwertOhneHSM", Definiert(g.ohneHSM)},
      {"GrenzwertHSM306", Definiert(g.hsm306.Grenzwert)},
      {"GrenzwertHSMvde", Definiert(g.hsmVDE.Grenzwert)},
      {"SpitzenfeldHSM306", Definiert(g.hsm306.Spitzenfeld)},
      {"Uss306", Definiert(g.hsm306.Uss)},
      {"UssVDE", Definiert(g.hsmVDE.Uss)},
      {"Faktor", Faktor(w)},
      {"Lambda", Definiert(g.Lambda)},
      {"Nahfeld", Definiert(g.Nahfeld)},
      {"Fernfeld", Definiert(g.Fernfeld)},
      {"EIRP", e.EIRP},
      {"AntEinPWR", e.AntEinPWR},
      {"WEIRP", e.WEIRP},
      {abstand ? "AbstandOhneHSM" : "LeistungOhneHSM", zu(g.ohneHSM, e.ohneHSM)},
      {abstand ? "AbstandHSM306" : "LeistungHSM306", zu(g.hsm306.Grenzwert, e.HSM306)},
      {abstand ? "AbstandHSMvde" : "LeistungHSMvde", zu(g.hsmVDE.Grenzwert, e.HSMvde)},
  };
  QJsonObject objekt;
  for (const auto& [name, wert] : tabelle) objekt.insert(QLatin1StringView(name), Wert(wert));
  return objekt;
}

/// A field that is empty or was not written has no value.
QJsonValue Text(const std::string& text) {
  return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

void JsonAusgeben(const Rechenwerte& w, const Rechenergebnis& e, const Feldtexte& texte, std::ostream& aus) {
  QJsonObject objekt{{u"txtQRG"_s, Text(w.QRGText)},
                     {u"txtPWR"_s, Text(w.PWRText)},
                     {u"txtGewinn"_s, Text(w.GewinnText)},
                     {u"txtDaempfung"_s, Text(w.DaempfungText)},
                     {u"txtWinkelDaempfung"_s, Text(w.WinkelDaempfungText)},
                     {u"Nahfeldflags"_s, e.vollstaendig ? QJsonValue(e.Nahfeldflags) : QJsonValue()},
                     {u"Werte"_s, Werte(w, e)}};
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    objekt.insert(QLatin1StringView(Feldnamen[i]), Text(texte[static_cast<Feld>(i)].value_or("")));
  }
  QJsonArray meldungen;
  for (const Hinweis& hinweis : Hinweise(e)) meldungen.append(Text(hinweis.text));
  objekt.insert(u"Meldungen"_s, meldungen);
  if (e.fehler) objekt.insert(u"Laufzeitfehler"_s, Text(Fehlermeldung(*e.fehler).text));
  aus << QJsonDocument(objekt).toJson(QJsonDocument::Indented).toStdString();
}

std::size_t Breite(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char z) { return (static_cast<unsigned char>(z) & 0xC0U) != 0x80U; }));
}

std::string Links(const std::string& text, std::size_t breite) {
  return text + std::string(breite - std::min(breite, Breite(text)), ' ');
}

std::string Rechts(const std::string& text, std::size_t breite) {
  return std::string(breite - std::min(breite, Breite(text)), ' ') + text;
}

void TabelleAusgeben(const Rechenauftrag& auftrag, const Rechenergebnis& e, const Feldtexte& texte,
                     char trenner, std::ostream& aus) {
  constexpr std::size_t Titelbreite = 44;
  constexpr std::size_t Spaltenbreite = 16;
  const bool abstand = e.modus == Modus::Abstand;
  const auto text = [&](Feld feld) { return texte[feld].value_or(""); };
  const auto zeile = [&](const std::string& titel, std::initializer_list<std::string> felder) {
    aus << Links(titel, Titelbreite);
    for (const std::string& feld : felder) aus << Rechts(feld, Spaltenbreite);
    aus << '\n';
  };
  const auto frequenz = [&](float mhz) { return Formatieren(mhz, 2, trenner); };
  const Auswertefrequenzen& f = e.grenzwerte.frequenz;

  zeile(auftrag.art.afu ? "AFu-Band [MHz]" : "Betriebsfrequenz [MHz]", {auftrag.werte.QRGText});
  zeile(abstand ? "Sendeleistung [W]" : "Sicherheitsabstand [m]", {auftrag.werte.PWRText});
  zeile("Antennengewinn [dBi]", {auftrag.werte.GewinnText});
  zeile("Verluste zwischen Sender und Antenne [dB]", {auftrag.werte.DaempfungText});
  zeile("Winkeldämpfung [dB]", {auftrag.werte.WinkelDaempfungText});
  aus << '\n';
  if (abstand) zeile(text(Feld::StrahlungTitel), {text(Feld::Strahlung)});
  zeile("Nahfeld bis [m]", {text(Feld::Nahfeld)});
  zeile("Fernfeld ab [m]", {text(Feld::Fernfeld)});
  aus << '\n';
  zeile("", {"ohne HSM", "HSM VDE", "HSM 306"});
  zeile("Berechnung für  f  [MHz]", {frequenz(f.grenzwert), frequenz(f.hsm), frequenz(f.hsm)});
  zeile("Grenzwert der Ersatzfeldstärke Eg [V/m]",
        {text(Feld::GrenzwertOhneHSM), text(Feld::GrenzwertHSMvde), text(Feld::GrenzwertHSM306)});
  zeile("Spitzenspannung Uss [V]", {"", text(Feld::UssVDE), text(Feld::Uss306)});
  zeile(abstand ? "Erforderlicher Sicherheitsabstand [m]" : "Maximal zulässige Sendeleistung [W]",
        {text(Feld::AusgabeOhneHSM), text(Feld::AusgabeHSMvde), text(Feld::AusgabeHSM306)});

  constexpr std::string_view Frage = "\n\nDiese Meldung in Zukunft wieder anzeigen?";
  for (const Hinweis& hinweis : Hinweise(e)) {
    aus << '\n' << hinweis.titel << ":\n" << hinweis.text.substr(0, hinweis.text.find(Frage)) << '\n';
  }
}

int Rechnen(const QStringList& argumente, char dezimaltrenner, std::ostream& aus, std::ostream& fehler) {
  Rechenauftrag auftrag = RechenauftragLesen(argumente);
  if (auftrag.hilfe) {
    aus << Hilferechnen;
    return 0;
  }
  const Rechenergebnis ergebnis = Berechnen(auftrag.werte, auftrag.art);
  const Feldtexte texte = Texte(ergebnis, dezimaltrenner);
  if (auftrag.json) {
    JsonAusgeben(auftrag.werte, ergebnis, texte, aus);
  } else {
    TabelleAusgeben(auftrag, ergebnis, texte, dezimaltrenner, aus);
  }
  if (!ergebnis.fehler) return 0;
  fehler << "vesk rechnen: " << Fehlermeldung(*ergebnis.fehler).text << '\n';
  return 1;
}

int Drucken(const QStringList& argumente, std::ostream& aus, std::ostream& fehler) {
  const Druckbefehl befehl = DruckbefehlLesen(argumente);
  if (befehl.hilfe) {
    aus << Hilfedrucken;
    return 0;
  }
  try {
    fehler << PapiereSchreiben(befehl);
    return 0;
  } catch (const Eingabefehler&) {
    throw;
  } catch (const std::runtime_error& grund) {
    fehler << "vesk drucken: " << grund.what() << '\n';
    return 1;
  }
}

Aufruf Fensteraufruf(const QStringList& argumente, std::ostream& aus) {
  QCommandLineParser leser;
  // All but the first are read by the toolkit itself.
  OptionenLesen(leser, {u"verzeichnis"_s, u"platform"_s, u"display"_s, u"style"_s, u"geometry"_s, u"name"_s},
                {u"version"_s}, argumente);
  if (leser.isSet(u"help"_s)) {
    aus << Produktname << ' ' << VersionLang() << Hilfe << Hilferechnen << '\n' << Hilfedrucken;
    return {0, {}};
  }
  if (leser.isSet(u"version"_s)) {
    aus << Produktname << ' ' << VersionLang() << '\n';
    return {0, {}};
  }
  // The toolkit knows fewer spellings of these than are accepted here, but also reads them from here.
  if (leser.isSet(u"platform"_s)) qputenv("QT_QPA_PLATFORM", leser.value(u"platform"_s).toLocal8Bit());
  if (leser.isSet(u"display"_s)) qputenv("DISPLAY", leser.value(u"display"_s).toLocal8Bit());
  return {{}, leser.value(u"verzeichnis"_s)};
}

}  // namespace

Aufruf KommandozeileAusfuehren(const QStringList& argumente, char dezimaltrenner, std::ostream& aus,
                               std::ostream& fehler) {
  const bool rechnen = argumente.value(0) == u"rechnen"_s;
  const bool drucken = argumente.value(0) == u"drucken"_s;
  const char* const name = rechnen ? "vesk rechnen" : drucken ? "vesk drucken" : "vesk";
  Aufruf aufruf;
  try {
    if (rechnen) {
      aufruf.rueckgabe = Rechnen(argumente.mid(1), dezimaltrenner, aus, fehler);
    } else if (drucken) {
      aufruf.rueckgabe = Drucken(argumente.mid(1), aus, fehler);
    } else {
      aufruf = Fensteraufruf(argumente, aus);
    }
  } catch (const Eingabefehler& eingabe) {
    fehler << name << ": " << eingabe.what() << "\nMehr dazu: " << name << " --help\n";
    return {2, {}};
  }
  if (aufruf.rueckgabe && !aus.flush()) {
    fehler << name << ": Die Ausgabe ließ sich nicht schreiben.\n";
    aufruf.rueckgabe = 1;
  }
  return aufruf;
}

}  // namespace vesk
