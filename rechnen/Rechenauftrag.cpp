#include "rechnen/Rechenauftrag.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "engine/Zahlen.h"

namespace vesk {

namespace {

/// Bounds of a number, both inclusive unless `ueberNull`.
struct Bereich {
  float von;
  float bis;
  bool ueberNull;
  std::string_view text;
};

constexpr float Endlos = std::numeric_limits<float>::max();
constexpr Bereich GroesserNull = {0, Endlos, true, "muß größer als 0 sein"};
constexpr Bereich NichtNegativ = {0, Endlos, false, "darf nicht negativ sein"};
constexpr Bereich HoechstensHundert = {-Endlos, 100, false, "darf höchstens 100 dBi betragen"};
constexpr Bereich BisEins = {0, 1, true, "muß größer als 0 und höchstens 1 sein"};

/// The texts of the record that are numbers.
struct Zahlangabe {
  Angabe angabe;
  Bereich bereich;
  std::string Rechenwerte::*ziel;
};

constexpr Zahlangabe Zahlangaben[] = {
    {Angabe::QRG, GroesserNull, &Rechenwerte::QRGText},
    {Angabe::PWR, GroesserNull, &Rechenwerte::PWRText},
    {Angabe::Abstand, GroesserNull, &Rechenwerte::PWRText},
    {Angabe::Gewinn, HoechstensHundert, &Rechenwerte::GewinnText},
    {Angabe::Daempfung, NichtNegativ, &Rechenwerte::DaempfungText},
    {Angabe::Winkel, NichtNegativ, &Rechenwerte::WinkelDaempfungText},
};

constexpr std::array<std::string_view, 3> Typen = {"am", "tv", "gsm"};  // by the numbers of Grenzwerttypen
constexpr std::array<std::string_view, 5> Ja = {"1", "ja", "x", "true", "wahr"};
constexpr std::array<std::string_view, 4> Nein = {"0", "nein", "false", "falsch"};

std::string_view Angegeben(const Angaben& angaben, Angabe angabe) {
  return angaben[static_cast<std::size_t>(angabe)];
}

/// A column or an option that is filled, with what its messages begin with.
struct Eingabe {
  Angabe angabe;
  std::string_view text;
  std::string_view striche;

  std::string Name() const {
    return std::string(striche).append(Angabenamen[static_cast<std::size_t>(angabe)]);
  }
  [[noreturn]] void Ablehnen(std::string_view warum) const {
    throw Eingabefehler((Name() + ": „" + Gekuerzt(text) + "“ ").append(warum).append("."));
  }
};

/// Digits with at most one point or comma, as they can be typed in a window; the comma becomes a point.
bool AlsDezimalzahl(std::string& text) {
  bool ziffer = false;
  bool trenner = false;
  for (std::size_t i = text.starts_with('-') ? 1 : 0; i < text.size(); ++i) {
    if (text[i] >= '0' && text[i] <= '9') {
      ziffer = true;
    } else if ((text[i] == '.' || text[i] == ',') && !trenner) {
      text[i] = '.';
      trenner = true;
    } else {
      return false;
    }
  }
  return ziffer;
}

/// The number goes into `ziel`, with a point for its comma.
float ZahlEintragen(const Eingabe& eingabe, const Bereich& bereich, std::string& ziel) {
  ziel.assign(eingabe.text);
  if (!AlsDezimalzahl(ziel)) eingabe.Ablehnen("ist keine Zahl");
  float wert = 0;
  try {
    wert = Zahl(ziel);
  } catch (const Laufzeitfehler&) {
    eingabe.Ablehnen("ist zu groß");
  }
  if (wert < bereich.von || wert > bereich.bis || (wert == 0 && bereich.ueberNull)) {
    eingabe.Ablehnen(bereich.text);
  }
  return wert;
}

/// Position of a word in any case, or as many as there are.
template <std::size_t anzahl>
std::size_t Stelle(const std::array<std::string_view, anzahl>& woerter, std::string_view gesucht) {
  const auto gleich = [&](std::string_view wort) {
    return std::equal(wort.begin(), wort.end(), gesucht.begin(), gesucht.end(), [](char a, char b) {
      return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b);
    });
  };
  return static_cast<std::size_t>(std::find_if(woerter.begin(), woerter.end(), gleich) - woerter.begin());
}

bool IstJa(const Eingabe& eingabe) {
  const bool ja = Stelle(Ja, eingabe.text) < Ja.size();
  if (!ja && Stelle(Nein, eingabe.text) == Nein.size()) eingabe.Ablehnen("ist weder ja noch nein");
  return ja;
}

}  // namespace

void Uebernehmen(const Angaben& angaben, std::string_view striche, Rechenauftrag& auftrag) {
  const auto eingabe = [&](Angabe angabe) { return Eingabe{angabe, Angegeben(angaben, angabe), striche}; };
  const Eingabe pwr = eingabe(Angabe::PWR);
  const Eingabe abstand = eingabe(Angabe::Abstand);
  if (!pwr.text.empty() && !abstand.text.empty()) {
    throw Eingabefehler(pwr.Name() + " und " + abstand.Name() + " schließen einander aus.");
  }
  if (!pwr.text.empty()) auftrag.art.modus = Modus::Abstand;
  if (!abstand.text.empty()) auftrag.art.modus = Modus::Leistung;
  for (const auto& [angabe, bereich, ziel] : Zahlangaben) {
    const Eingabe zahl = eingabe(angabe);
    if (!zahl.text.empty()) ZahlEintragen(zahl, bereich, auftrag.werte.*ziel);
  }
  if (const Eingabe faktor = eingabe(Angabe::Faktor); !faktor.text.empty()) {
    std::string text;
    auftrag.werte.Modulationsfaktor = ZahlEintragen(faktor, BisEins, text);
  }
  if (const Eingabe typ = eingabe(Angabe::Typ); !typ.text.empty()) {
    const std::size_t stelle = Stelle(Typen, typ.text);
    if (stelle == Typen.size()) throw Eingabefehler(typ.Name() + ": nur AM, TV oder GSM ist möglich.");
    auftrag.werte.Grenzwerttyp = static_cast<std::int16_t>(stelle);
  }
  if (const Eingabe exakt = eingabe(Angabe::Exakt); !exakt.text.empty()) auftrag.art.afu = !IstJa(exakt);
}

void VollstaendigkeitPruefen(const Rechenauftrag& auftrag) {
  if (auftrag.werte.QRGText.empty()) throw Eingabefehler("Die Frequenz fehlt (--qrg).");
  if (auftrag.werte.PWRText.empty()) {
    throw Eingabefehler("Die Sendeleistung (--pwr) oder der Sicherheitsabstand (--abstand) fehlt.");
  }
}

Rechenaufruf RechenaufrufLesen(std::span<const std::string> argumente) {
  std::vector<Option> erlaubt = {{"json", Wertart::Keiner}, {"stapel", Wertart::Moeglich}};
  for (const std::string_view name : Angabenamen) {
    erlaubt.push_back({name, name == "exakt" ? Wertart::Keiner : Wertart::Noetig});
  }
  Optionen optionen = OptionenLesen(erlaubt, argumente);
  Rechenaufruf aufruf;
  aufruf.hilfe = optionen.contains("help");
  aufruf.json = optionen.contains("json");
  if (aufruf.hilfe) return aufruf;
  if (const auto stapel = optionen.find("stapel"); stapel != optionen.end()) {
    aufruf.stapel = stapel->second.empty() ? "-" : stapel->second;
  }
  if (const auto exakt = optionen.find("exakt"); exakt != optionen.end()) exakt->second = Ja.front();
  Angaben angaben;
  for (std::size_t i = 0; i < AnzahlAngaben; ++i) {
    if (const auto option = optionen.find(Angabenamen[i]); option != optionen.end())
      angaben[i] = option->second;
  }
  Uebernehmen(angaben, "--", aufruf.auftrag);
  if (!aufruf.stapel) VollstaendigkeitPruefen(aufruf.auftrag);
  return aufruf;
}

}  // namespace vesk
