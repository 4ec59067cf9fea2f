#include "Kabelkatalog.h"

#include <cmath>

#include "Itemleser.h"
#include "Katalogtext.h"
#include "Windows1252.h"
#include "Zahlen.h"

namespace vesk {

namespace {

constexpr std::string_view RG213 = "RG213";
constexpr std::array<float, KabelFrequenzen> RG213Werte = {0.56F, 0.8F,  1.28F,  1.86F, 2.66F, 4.23F,
                                                           6.12F, 9.18F, 16.17F, 25.9F, 42.3F, 79.7F};

constexpr std::string_view MeldungFehlt = "Kabeldatendatei: Kabel.txt nicht gefunden. - RG213 geladen.";
constexpr std::string_view MeldungDefekt = "Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen.";

enum class Satz { Gelesen, Abgebrochen };

double Ln(double wert) {
  if (!(wert > 0)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
  return std::log(wert);
}

Satz SatzLesen(Itemleser& leser, Kabel& kabel) {
  for (std::size_t j = 0; j < kabel.Kabelwert.size(); ++j) {
    const auto item = leser.Naechstes();
    if (!item) return Satz::Abgebrochen;
    kabel.Kabelwert[j] = Zahl(*item);
    // Marks a defective record. The last value may be 0 here; its logarithm fails later.
    if (kabel.Kabelwert[j] == 0 && j + 1 < kabel.Kabelwert.size()) throw Laufzeitfehler(Fehlerart::Typ);
  }
  return Satz::Gelesen;
}

/// False when the file ends within a record.
bool SaetzeLesen(std::string_view bytes, Kabelkatalog& katalog) {
  Itemleser leser(bytes);
  std::size_t n = 0;
  while (const auto name = leser.Naechstes()) {
    if (name->empty()) continue;  // blank line between two cables
    if (n >= katalog.kabel.size()) throw Laufzeitfehler(Fehlerart::Index);
    Kabel& kabel = katalog.kabel[n];
    kabel.Kabelname = NachUtf8(*name);
    if (SatzLesen(leser, kabel) == Satz::Abgebrochen) return false;
    if (kabel.Kabelname == RG213) katalog.auswahl = static_cast<int>(n);
    katalog.liste.push_back(kabel.Kabelname);
    katalog.Kabelanzahl = static_cast<int>(++n);
  }
  return true;
}

/// The first entry carries the figures of RG213 from now on, under whatever name the file gave it.
void StandardLaden(Kabelkatalog& katalog, std::string_view meldung) {
  katalog.Meldung = meldung;
  katalog.liste.emplace_back(RG213);
  katalog.auswahl = 0;
  katalog.Kabelanzahl = 1;
  katalog.kabel[0].Kabelwert = RG213Werte;
}

void GeradeLegen(Kabel& kabel) {
  for (std::size_t j = 0; j < kabel.Kabelexponent.size(); ++j) {
    const double lnLinks = Ln(kabel.Kabelwert[j]);
    const double lnRechts = Ln(kabel.Kabelwert[j + 1]);
    const double lnF = Ln(Kabelfrequenz[j]);
    kabel.Kabelexponent[j] = AlsSingle((lnRechts - lnLinks) / (Ln(Kabelfrequenz[j + 1]) - lnF));
    kabel.Kabelkoeffizient[j] = AlsSingle(std::exp(lnLinks - double{kabel.Kabelexponent[j]} * lnF));
  }
}

void Abschliessen(Kabelkatalog& katalog) {
  katalog.liste.emplace_back(AnderesKabel);
  for (int n = 0; n < katalog.Kabelanzahl; ++n) GeradeLegen(katalog.kabel[static_cast<std::size_t>(n)]);
}

Kabelkatalog NurRG213(std::string_view meldung) {
  Kabelkatalog katalog;
  StandardLaden(katalog, meldung);
  Abschliessen(katalog);
  return katalog;
}

}  // namespace

Kabelkatalog KabelLaden(std::string_view bytes) {
  Kabelkatalog katalog;
  try {
    if (!SaetzeLesen(Katalogbytes(bytes), katalog)) StandardLaden(katalog, MeldungDefekt);
    Abschliessen(katalog);
  } catch (const Laufzeitfehler& fehler) {
    katalog.fehler = fehler.art;
  }
  return katalog;
}

Kabelkatalog KabelOhneDatei() {
  return NurRG213(MeldungFehlt);
}

Kabelkatalog KabelUnlesbar() {
  return NurRG213(MeldungDefekt);
}

float KabelwertErmitteln(const Kabelkatalog& katalog, int auswahl, float f, bool& Pruefergebnis) {
  constexpr float Keiner = -1000;
  if (auswahl >= KabelMax) throw Laufzeitfehler(Fehlerart::Index);
  Pruefergebnis = false;
  if (auswahl < 0 || !(f >= Kabelfrequenz.front() && f <= Kabelfrequenz.back())) return Keiner;
  std::size_t j = 0;
  while (j + 2 < Kabelfrequenz.size() && f >= Kabelfrequenz[j + 1]) ++j;
  const Kabel& kabel = katalog.kabel[static_cast<std::size_t>(auswahl)];
  Pruefergebnis = true;
  return AlsSingle(std::exp(double{kabel.Kabelexponent[j]} * Ln(f)) * double{kabel.Kabelkoeffizient[j]});
}

void KabeldaempfungRechnen(const Kabelkatalog& katalog, int auswahl, Kabelfelder& felder,
                           bool& Pruefergebnis) {
  Pruefergebnis = true;
  const float laenge = Zahl(felder.KabelLaenge);
  if (laenge == 0) return;
  float d100 = KabelwertErmitteln(katalog, auswahl, Zahl(felder.QRG), Pruefergebnis);
  if (d100 == 0) d100 = Zahl(felder.D100);
  if (Pruefergebnis) {
    felder.farbe = D100Farbe::Weiss;
    felder.D100 = Formatieren(d100);
  } else {
    felder.farbe = D100Farbe::Rot;
    d100 = Zahl(felder.D100);
    if (d100 == 0) {
      felder.D100.clear();
      felder.Kabeldaempfung.clear();
      felder.Gesamtdaempfung.clear();
      return;
    }
  }
  const float daempfung = AlsSingle(double{d100} / 100 * double{laenge});
  felder.Kabeldaempfung = Formatieren(daempfung);
  felder.Gesamtdaempfung = Formatieren(AlsSingle(double{daempfung} + double{Zahl(felder.Stecker)}));
}

}  // namespace vesk
