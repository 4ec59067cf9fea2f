#include "app/Rechenauftrag.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <algorithm>
#include <limits>

#include "engine/Zahlen.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Bounds of a number, both inclusive unless `ueberNull`.
struct Bereich {
  float von;
  float bis;
  bool ueberNull;
  QStringView text;
};

constexpr float Endlos = std::numeric_limits<float>::max();
constexpr Bereich GroesserNull = {0, Endlos, true, u"muß größer als 0 sein"};
constexpr Bereich NichtNegativ = {0, Endlos, false, u"darf nicht negativ sein"};
constexpr Bereich HoechstensHundert = {-Endlos, 100, false, u"darf höchstens 100 dBi betragen"};
constexpr Bereich BisEins = {0, 1, true, u"muß größer als 0 und höchstens 1 sein"};

/// The texts of the record that are numbers.
struct Zahloption {
  QStringView name;
  Bereich bereich;
  std::string Rechenwerte::*ziel;
};

constexpr Zahloption Zahloptionen[] = {
    {u"qrg", GroesserNull, &Rechenwerte::QRGText},
    {u"pwr", GroesserNull, &Rechenwerte::PWRText},
    {u"abstand", GroesserNull, &Rechenwerte::PWRText},
    {u"gewinn", HoechstensHundert, &Rechenwerte::GewinnText},
    {u"daempfung", NichtNegativ, &Rechenwerte::DaempfungText},
    {u"winkel", NichtNegativ, &Rechenwerte::WinkelDaempfungText},
};

/// A number as it can be typed in a window, with a point for its comma. Throws Eingabefehler.
std::string Zahltext(QStringView option, QString text, const Bereich& bereich) {
  static const QRegularExpression muster(QRegularExpression::anchoredPattern(uR"(-?(\d+[.,]?\d*|[.,]\d+))"));
  const auto pruefen = [&, eingabe = text.size() > 40 ? text.left(37) + u"..."_s : text](bool gut,
                                                                                         QStringView sonst) {
    if (!gut) throw Eingabefehler(u"--%1: „%2“ %3."_s.arg(option, eingabe, sonst));
  };
  pruefen(muster.match(text).hasMatch(), u"ist keine Zahl");
  std::string ergebnis = text.replace(u',', u'.').toStdString();
  float wert = Endlos;
  try {
    wert = Zahl(ergebnis);
  } catch (const Laufzeitfehler&) {
    pruefen(false, u"ist zu groß");
  }
  pruefen(wert >= bereich.von && wert <= bereich.bis && (wert > 0 || !bereich.ueberNull), bereich.text);
  return ergebnis;
}

}  // namespace

void OptionenLesen(QCommandLineParser& leser, const QStringList& mitWert, const QStringList& ohneWert,
                   const QStringList& argumente) {
  QList<QCommandLineOption> optionen = {QCommandLineOption(QStringList{u"h"_s, u"help"_s})};
  for (const QString& name : ohneWert) optionen.emplaceBack(name);
  for (const QString& name : mitWert) optionen.emplaceBack(name, QString(), u"WERT"_s);
  leser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  leser.addOptions(optionen);

  const bool gelesen = leser.parse(QStringList(u"vesk"_s) + argumente);
  const QStringList unbekannt = leser.unknownOptionNames();
  if (!unbekannt.isEmpty()) throw Eingabefehler(u"Unbekannte Option: --"_s + unbekannt.front());
  const QStringList gegeben = leser.optionNames();
  for (const QCommandLineOption& option : optionen) {
    const QStringList namen = option.names();
    const auto anzahl = std::count_if(gegeben.begin(), gegeben.end(),
                                      [&](const QString& name) { return namen.contains(name); });
    if (anzahl > 1) throw Eingabefehler(u"Die Option --%1 darf nur einmal stehen."_s.arg(namen.back()));
    if (anzahl > 0 && !option.valueName().isEmpty() && leser.value(option).isEmpty()) {
      throw Eingabefehler(u"Der Option --%1 fehlt ihr Wert."_s.arg(namen.back()));
    }
  }
  if (!gelesen) throw Eingabefehler(u"Nur diese Optionen haben einen Wert: --"_s + mitWert.join(u", --"));
  const QStringList rest = leser.positionalArguments();
  if (!rest.isEmpty()) throw Eingabefehler(u"Unerwartete Angabe: "_s + rest.front());
}

Rechenauftrag RechenauftragLesen(const QStringList& argumente) {
  QStringList mitWert = {u"faktor"_s, u"typ"_s};
  for (const Zahloption& option : Zahloptionen) mitWert.append(option.name.toString());
  QCommandLineParser leser;
  OptionenLesen(leser, mitWert, {u"exakt"_s, u"json"_s}, argumente);
  const bool abstand = leser.isSet(u"abstand"_s);

  Rechenauftrag auftrag;
  auftrag.hilfe = leser.isSet(u"help"_s);
  auftrag.json = leser.isSet(u"json"_s);
  auftrag.art.afu = !leser.isSet(u"exakt"_s);
  auftrag.art.modus = abstand ? Modus::Leistung : Modus::Abstand;
  if (auftrag.hilfe) return auftrag;
  if (abstand && leser.isSet(u"pwr"_s)) {
    throw Eingabefehler(u"--pwr und --abstand schließen einander aus."_s);
  }
  for (const auto& [name, bereich, ziel] : Zahloptionen) {
    const QString option = name.toString();
    if (leser.isSet(option)) auftrag.werte.*ziel = Zahltext(option, leser.value(option), bereich);
  }
  if (leser.isSet(u"faktor"_s)) {
    auftrag.werte.Modulationsfaktor = Zahl(Zahltext(u"faktor", leser.value(u"faktor"_s), BisEins));
  }
  if (leser.isSet(u"typ"_s)) {
    const auto typ = QStringList{u"AM"_s, u"TV"_s, u"GSM"_s}.indexOf(leser.value(u"typ"_s).toUpper());
    if (typ < 0) throw Eingabefehler(u"--typ: nur AM, TV oder GSM ist möglich."_s);
    auftrag.werte.Grenzwerttyp = static_cast<std::int16_t>(typ);
  }
  if (auftrag.werte.QRGText.empty()) throw Eingabefehler(u"Die Frequenz fehlt (--qrg)."_s);
  if (auftrag.werte.PWRText.empty()) {
    throw Eingabefehler(u"Die Sendeleistung (--pwr) oder der Sicherheitsabstand (--abstand) fehlt."_s);
  }
  return auftrag;
}

}  // namespace vesk
