#include "Kommandozeile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <charconv>
#include <ostream>
#include <vector>

#include "Ausgabe.h"
#include "Hinweise.h"
#include "Rechenauftrag.h"
#include "Version.h"
#include "Zahlen.h"

namespace vesk {

namespace {

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
    "Rückgabewert: 0; 1 bei einem Fehler der Berechnung; 2 bei falschen oder fehlenden Angaben.\n";

/// The notes that a window would have shown, in its order.
std::vector<Hinweis> Hinweise(const Rechenergebnis& e) {
  std::vector<Hinweis> liste;
  if (e.grenzwerte.ausserhalb) liste.push_back(BereichsHinweis());
  if (e.grenzwerte.hsmVDE.ausserhalb) liste.push_back(HSMBereichsHinweis());
  if (e.vollstaendig && e.Nahfeldflags != 0) liste.push_back(NahfeldHinweis(e.Nahfeldflags, e.modus));
  if (e.vollstaendig && e.grenzwerte.hsmVDE.Uss == 0) liste.push_back(HSMHinweis());
  return liste;
}

/// The shortest decimal that is this single, so that 14.2 is not written as 14.199999809.
double Kuerzeste(float wert) {
  std::array<char, 64> puffer{};
  const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert).ptr;
  double zahl = 0;
  std::from_chars(puffer.data(), ende, zahl);
  return zahl;
}

QJsonValue Wert(const std::optional<float>& wert) {
  return wert ? QJsonValue(Kuerzeste(*wert)) : QJsonValue(QJsonValue::Null);
}

QJsonObject Werte(const Rechenwerte& w, const Rechenergebnis& e) {
  const bool abstand = e.modus == Modus::Abstand;
  const std::pair<const char*, std::optional<float>> tabelle[] = {
      {"QRG", w.QRG},
      {"QRGGrenzwert", w.QRGGrenzwert},
      {"QRGHSM", w.QRGHSM},
      {"QRGLambda", w.QRGLambda},
      {"GrenzwertOhneHSM", w.GrenzwertOhneHSM},
      {"GrenzwertHSM306", w.GrenzwertHSM306},
      {"GrenzwertHSMvde", w.GrenzwertHSMvde},
      {"SpitzenfeldHSM306", w.SpitzenfeldHSM306},
      {"Uss306", w.Uss306},
      {"UssVDE", w.UssVDE},
      {"Faktor", Faktor(w)},
      {"Lambda", e.grenzwerte.Lambda},
      {"Nahfeld", e.grenzwerte.Nahfeld},
      {"Fernfeld", e.grenzwerte.Fernfeld},
      {"EIRP", e.EIRP},
      {"AntEinPWR", e.AntEinPWR},
      {"WEIRP", e.WEIRP},
      {abstand ? "AbstandOhneHSM" : "LeistungOhneHSM", e.ohneHSM},
      {abstand ? "AbstandHSM306" : "LeistungHSM306", e.HSM306},
      {abstand ? "AbstandHSMvde" : "LeistungHSMvde", e.HSMvde},
  };
  QJsonObject objekt;
  for (const auto& [name, wert] : tabelle) objekt.insert(QLatin1String(name), Wert(wert));
  return objekt;
}

QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

void JsonAusgeben(const Rechenwerte& w, const Rechenergebnis& e, const Feldtexte& texte, std::ostream& aus) {
  QJsonObject objekt{{QStringLiteral("txtQRG"), Text(w.QRGText)},
                     {QStringLiteral("txtPWR"), Text(w.PWRText)},
                     {QStringLiteral("txtGewinn"), Text(w.GewinnText)},
                     {QStringLiteral("txtDaempfung"), Text(w.DaempfungText)},
                     {QStringLiteral("txtWinkelDaempfung"), Text(w.WinkelDaempfungText)},
                     {QStringLiteral("Nahfeldflags"), e.Nahfeldflags},
                     {QStringLiteral("Werte"), Werte(w, e)}};
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    const QString name = QString::fromUtf8(Feldnamen[i].data(), static_cast<qsizetype>(Feldnamen[i].size()));
    objekt.insert(name, Text(texte[static_cast<Feld>(i)].value_or("")));
  }
  QJsonArray meldungen;
  for (const Hinweis& hinweis : Hinweise(e)) meldungen.append(Text(hinweis.text));
  objekt.insert(QStringLiteral("Meldungen"), meldungen);
  if (e.fehler) objekt.insert(QStringLiteral("Laufzeitfehler"), Text(Fehlermeldung(*e.fehler).text));
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

}  // namespace

int Rechnen(std::span<const std::string> argumente, char dezimaltrenner, std::ostream& aus,
            std::ostream& fehler) {
  try {
    Rechenauftrag auftrag = RechenauftragLesen(argumente);
    if (auftrag.hilfe) {
      aus << Hilferechnen;
      return 0;
    }
    const Rechenergebnis ergebnis = Berechnen(auftrag.werte, auftrag.art);
    const Feldtexte texte = Ausgabetexte(ergebnis, dezimaltrenner);
    if (auftrag.json) {
      JsonAusgeben(auftrag.werte, ergebnis, texte, aus);
    } else {
      TabelleAusgeben(auftrag, ergebnis, texte, dezimaltrenner, aus);
    }
    if (!ergebnis.fehler) return 0;
    fehler << "vesk rechnen: " << Fehlermeldung(*ergebnis.fehler).text << '\n';
    return 1;
  } catch (const Eingabefehler& eingabe) {
    fehler << "vesk rechnen: " << eingabe.what() << "\nMehr dazu: vesk rechnen --help\n";
    return 2;
  }
}

std::string Hilfetext() {
  return std::string(Produktname) + " " + VersionLang() +
         " - Sicherheitsabstände ortsfester Amateurfunkstellen\n"
         "\n"
         "Aufruf: vesk [--verzeichnis DIR]    öffnet das Programm\n"
         "        vesk rechnen ...            rechnet im Terminal (siehe unten)\n"
         "        vesk --version              zeigt die Version\n"
         "        vesk --help                 zeigt diese Hilfe\n"
         "\n"
         "  --verzeichnis DIR   Verzeichnis mit den Dateien des Benutzers (user.dat, Kabel.txt, "
         "Antennen.txt)\n"
         "\n" +
         Hilferechnen;
}

}  // namespace vesk
