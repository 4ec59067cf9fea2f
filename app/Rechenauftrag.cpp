#include "Rechenauftrag.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "Zahlen.h"

namespace vesk {

namespace {

enum Option { QRG = 256, PWR, Abstand, Gewinn, Daempfung, Winkel, Faktorwert, Typ, Exakt, Json, Hilfe };

constexpr std::array<option, 12> Optionen = {{
    {"qrg", required_argument, nullptr, QRG},
    {"pwr", required_argument, nullptr, PWR},
    {"abstand", required_argument, nullptr, Abstand},
    {"gewinn", required_argument, nullptr, Gewinn},
    {"daempfung", required_argument, nullptr, Daempfung},
    {"winkel", required_argument, nullptr, Winkel},
    {"faktor", required_argument, nullptr, Faktorwert},
    {"typ", required_argument, nullptr, Typ},
    {"exakt", no_argument, nullptr, Exakt},
    {"json", no_argument, nullptr, Json},
    {"help", no_argument, nullptr, Hilfe},
    {nullptr, 0, nullptr, 0},
}};

/// Bounds of a number, both inclusive unless `ueberNull`.
struct Bereich {
  double von;
  double bis;
  bool ueberNull;
  const char* text;
};

constexpr double Endlos = 1e300;
constexpr Bereich GroesserNull = {0, Endlos, true, "muss größer als 0 sein"};
constexpr Bereich NichtNegativ = {0, Endlos, false, "darf nicht negativ sein"};
constexpr Bereich HoechstensHundert = {-Endlos, 100, false, "darf höchstens 100 dBi betragen"};
constexpr Bereich BisEins = {0, 1, true, "muss größer als 0 und höchstens 1 sein"};

/// A number with comma or point as the text that the record keeps. Throws Eingabefehler.
std::string Zahltext(const std::string& option, std::string text, const Bereich& bereich) {
  const std::string eingabe = text.size() > 40 ? text.substr(0, 37) + "..." : text;
  if (text.starts_with('+')) text.erase(0, 1);
  const std::size_t komma = text.find(',');
  if (komma != std::string::npos) text[komma] = '.';
  const std::string_view ziffern = std::string_view(text).substr(text.starts_with('-') ? 1 : 0);
  const bool beginnt =
      !ziffern.empty() && std::string_view("0123456789.").find(ziffern[0]) != std::string::npos;
  double wert = 0;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
  if (!beginnt || fehler == std::errc::invalid_argument || ende != text.data() + text.size()) {
    throw Eingabefehler("--" + option + ": „" + eingabe + "“ ist keine Zahl.");
  }
  try {
    wert = Zahl(text);
  } catch (const Laufzeitfehler&) {
    throw Eingabefehler("--" + option + ": „" + eingabe + "“ ist zu groß.");
  }
  if (wert < bereich.von || wert > bereich.bis || (bereich.ueberNull && wert <= 0)) {
    throw Eingabefehler("--" + option + ": „" + eingabe + "“ " + bereich.text + ".");
  }
  return text;
}

std::int16_t Grenzwerttyp(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char z) { return std::toupper(z); });
  if (text == "AM") return GrenzwertAM;
  if (text == "TV") return GrenzwertTV;
  if (text == "GSM") return GrenzwertGSM;
  throw Eingabefehler("--typ: nur AM, TV oder GSM ist möglich.");
}

void Eintragen(int kennung, const std::string& text, Rechenauftrag& auftrag) {
  Rechenwerte& werte = auftrag.werte;
  switch (kennung) {
    case QRG:
      werte.QRGText = Zahltext("qrg", text, GroesserNull);
      return;
    case PWR:
    case Abstand:
      if (!werte.PWRText.empty())
        throw Eingabefehler("--pwr und --abstand schließen einander aus und dürfen nur einmal stehen.");
      werte.PWRText = Zahltext(kennung == PWR ? "pwr" : "abstand", text, GroesserNull);
      auftrag.art.modus = kennung == PWR ? Modus::Abstand : Modus::Leistung;
      return;
    case Gewinn:
      werte.GewinnText = Zahltext("gewinn", text, HoechstensHundert);
      return;
    case Daempfung:
      werte.DaempfungText = Zahltext("daempfung", text, NichtNegativ);
      return;
    case Winkel:
      werte.WinkelDaempfungText = Zahltext("winkel", text, NichtNegativ);
      return;
    case Faktorwert:
      werte.Modulationsfaktor = Zahl(Zahltext("faktor", text, BisEins));
      return;
    case Typ:
      werte.Grenzwerttyp = Grenzwerttyp(text);
      return;
    case Exakt:
      auftrag.art.afu = false;
      return;
    case Json:
      auftrag.json = true;
      return;
    default:
      auftrag.hilfe = true;
  }
}

}  // namespace

Rechenauftrag RechenauftragLesen(std::span<const std::string> argumente) {
  std::vector<std::string> kopie(argumente.begin(), argumente.end());
  std::string name = "rechnen";
  std::vector<char*> zeiger = {name.data()};
  for (std::string& argument : kopie) zeiger.push_back(argument.data());
  zeiger.push_back(nullptr);
  const int anzahl = static_cast<int>(zeiger.size()) - 1;

  Rechenauftrag auftrag;
  optind = 0;  // starts a fresh scan
  while (true) {
    const int kennung = getopt_long(anzahl, zeiger.data(), ":h", Optionen.data(), nullptr);
    if (kennung == -1) break;
    const std::string argument = optind > 0 ? zeiger[static_cast<std::size_t>(optind) - 1] : "";
    if (kennung == '?') throw Eingabefehler("Unbekannte Option: " + argument);
    if (kennung == ':') throw Eingabefehler("Der Option " + argument + " fehlt ihr Wert.");
    Eintragen(kennung, optarg != nullptr ? optarg : "", auftrag);
  }
  if (optind < anzahl) {
    throw Eingabefehler(std::string("Unerwartete Angabe: ") + zeiger[static_cast<std::size_t>(optind)]);
  }
  if (auftrag.hilfe) return auftrag;
  if (auftrag.werte.QRGText.empty()) throw Eingabefehler("Die Frequenz fehlt (--qrg).");
  if (auftrag.werte.PWRText.empty()) {
    throw Eingabefehler("Die Sendeleistung (--pwr) oder der Sicherheitsabstand (--abstand) fehlt.");
  }
  return auftrag;
}

}  // namespace vesk
