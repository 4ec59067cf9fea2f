#include "station/Kurven.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "engine/Grenzwert.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Optionen.h"
#include "station/Papiere.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

/// `jeDekade` values a decade from `von` to `bis`, both inclusive, at equal ratios.
std::vector<double> Raster(double von, double bis, int jeDekade) {
  const auto schritte = static_cast<int>(std::ceil(std::log10(bis / von) * jeDekade));
  std::vector<double> werte{von};
  for (int i = 1; i < schritte; ++i) werte.push_back(von * std::pow(bis / von, double(i) / schritte));
  werte.push_back(bis);
  return werte;
}

std::optional<double> Vorhanden(float grenzwert, const std::optional<float>& wert) {
  if (grenzwert == 0 || !wert) return std::nullopt;
  return double{*wert};
}

// ------------------------------------------------------------------------------------ distance and power

struct Rechenstand {
  Stationswerte station;
  Grenzwerte grenzwerte;
  double leistung = 0;  ///< W
  double abstand = 0;   ///< m
};

/// The inputs of the main window as numbers. Throws Laufzeitfehler.
std::optional<Rechenstand> StandVon(const Station& s) {
  Rechenwerte werte = s.werte;
  const Rechenergebnis e = Berechnen(werte, {.modus = s.modus, .afu = s.einstellungen.AFu});
  if (e.fehler) throw Laufzeitfehler(*e.fehler);
  if (!e.vollstaendig) return std::nullopt;
  Rechenstand stand;
  stand.station = {.PWR = Zahl(werte.PWRText),
                   .Gewinn = Zahl(werte.GewinnText),
                   .Daempfung = Zahl(werte.DaempfungText),
                   .Winkel = Zahl(werte.WinkelDaempfungText),
                   .Faktor = Faktor(werte)};
  stand.grenzwerte = e.grenzwerte;
  const bool vorwaerts = s.modus == Modus::Abstand;
  stand.leistung = vorwaerts ? double{stand.station.PWR} : double{*e.ohneHSM};
  stand.abstand = vorwaerts ? double{*e.ohneHSM} : double{stand.station.PWR};
  return stand;
}

/// What the calculation gives for a power resp. distance; nothing where it cannot be calculated.
Dreiwerte Ausgaben(const Rechenstand& stand, Modus modus, double x) {
  Rechenergebnis e;
  e.grenzwerte = stand.grenzwerte;
  Stationswerte station = stand.station;
  station.PWR = static_cast<float>(x);
  try {
    AusgabenBestimmen(station, modus, e);
    return Ausgabewerte(e);
  } catch (const Laufzeitfehler&) {
    return {};
  }
}

/// `unter` and `ueber`: how far the curves go on both sides of the station.
Kurvenschar Schar(const Station& s, Modus modus, double unter, double ueber) {
  constexpr int JeDekade = 25;
  Kurvenschar schar;
  try {
    const std::optional<Rechenstand> stand = StandVon(s);
    if (!stand) {
      schar.grund = s.modus == Modus::Abstand ? "Im Hauptfenster fehlen Frequenz oder Sendeleistung."
                                              : "Im Hauptfenster fehlen Frequenz oder Sicherheitsabstand.";
      return schar;
    }
    schar.jetzt = modus == Modus::Abstand ? stand->leistung : stand->abstand;
    if (!(schar.jetzt > 0)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
    schar.werte = Ausgaben(*stand, modus, schar.jetzt);
    for (const double x : Raster(RundUnten(schar.jetzt * unter), RundOben(schar.jetzt * ueber), JeDekade)) {
      const Dreiwerte y = Ausgaben(*stand, modus, x);
      for (std::size_t i = 0; i < y.size(); ++i) schar.kurven.at(i).push_back({x, y.at(i)});
    }
  } catch (const Laufzeitfehler& fehler) {
    schar.grund = fehler.what();
  }
  return schar;
}

// ------------------------------------------------------------------------------------------------ limits

/// `f` and what lies right below it, so that a step is seen as one.
void Kante(std::set<float>& frequenzen, float f) {
  frequenzen.insert(std::nextafter(f, 0.0F));
  frequenzen.insert(f);
  frequenzen.insert(std::nextafter(f, std::numeric_limits<float>::infinity()));
}

void Kanten(std::set<float>& frequenzen, const Frequenzbereich& bereich) {
  Kante(frequenzen, bereich.von);
  if (std::isfinite(bereich.bis)) Kante(frequenzen, bereich.bis);
}

/// The ends of the regulations' rows: of all limits, whatever the signal type.
std::set<float> AlleKanten() {
  std::set<float> frequenzen;
  Kante(frequenzen, HSM306Von);
  Kante(frequenzen, HSM306Bis);
  constexpr float Anfang = 0.003F;
  for (const Grenzwertzeile* z = GrenzwertzeileFuer(Anfang, Anfang);
       z != nullptr && std::isfinite(z->bereich.bis);
       z = GrenzwertzeileFuer(z->bereich.bis, z->bereich.bis)) {
    Kanten(frequenzen, z->bereich);
  }
  for (const std::int16_t typ : {GrenzwertAM, GrenzwertTV, GrenzwertGSM}) {
    for (const HSMvdeZeile& zeile : HSMvdeZeilen(typ)) {
      Kanten(frequenzen, zeile.bereich);
      const Umrechnungszeile* const umrechnung = UmrechnungszeileFuer(zeile.bereich.von);
      if (umrechnung != nullptr) Kanten(frequenzen, umrechnung->bereich);
    }
  }
  return frequenzen;
}

Grenzwertkurve GrenzwertkurveVon(Grenzwertart art, std::int16_t typ, const std::set<float>& frequenzen) {
  constexpr std::array Typnamen = {"AM", "TV", "GSM"};
  const auto stelle = static_cast<std::size_t>(art);
  Grenzwertkurve kurve{Grenzwertartnamen.at(stelle), art, typ, {}};
  if (art == Grenzwertart::HSMvde) kurve.name += std::string(" (") + Typnamen.at(std::size_t(typ)) + ')';
  kurve.kurve.reserve(frequenzen.size());
  for (const float f : frequenzen) {
    kurve.kurve.push_back({double{f}, Feldstaerken(GrenzwerteBestimmen(f, false, typ)).at(stelle)});
  }
  return kurve;
}

/// Columns of one frequency and signal type share a mark.
void MarkeSetzen(Grenzwertbild& bild, const Grenzwertmarke& neue) {
  for (Grenzwertmarke& marke : bild.marken) {
    if (neue.name.empty() || marke.grenzwerte != neue.grenzwerte || marke.typ != neue.typ) continue;
    marke.name += neue.name;
    return;
  }
  bild.marken.push_back(neue);
}

}  // namespace

double RundUnten(double wert) {
  const double zehner = std::pow(10.0, std::floor(std::log10(wert)));
  return (wert >= 5 * zehner ? 5 : wert >= 2 * zehner ? 2 : 1) * zehner;
}

double RundOben(double wert) {
  const double zehner = std::pow(10.0, std::floor(std::log10(wert)));
  return (wert > 5 * zehner ? 10 : wert > 2 * zehner ? 5 : wert > zehner ? 2 : 1) * zehner;
}

Dreiwerte Feldstaerken(const Grenzwerte& g) {
  const auto wert = [](float grenzwert) { return Vorhanden(grenzwert, grenzwert); };
  return {wert(g.ohneHSM), wert(g.hsmVDE.Grenzwert), wert(g.hsm306.Grenzwert)};
}

Dreiwerte Ausgabewerte(const Rechenergebnis& e) {
  const Grenzwerte& g = e.grenzwerte;
  return {Vorhanden(g.ohneHSM, e.ohneHSM), Vorhanden(g.hsmVDE.Grenzwert, e.HSMvde),
          Vorhanden(g.hsm306.Grenzwert, e.HSM306)};
}

Kurvenschar AbstandUeberLeistung(const Station& s) {
  return Schar(s, Modus::Abstand, 0.02, 5);
}

Kurvenschar LeistungUeberAbstand(const Station& s) {
  return Schar(s, Modus::Leistung, 0.2, 10);
}

std::vector<int> GezeigteKabel(const Station& s, const Kataloge& k) {
  std::vector<int> kabel = s.schaubilder.kabel.value_or(std::vector{Kabelindex(s, k)});
  std::erase_if(kabel, [&](int i) { return i < 0 || i >= k.kabel.Kabelanzahl; });
  return kabel;
}

std::vector<Kabelkurve> Kabelkurven(const Station& s, const Kataloge& k) {
  constexpr int JeDekade = 40;
  const auto wert = [&](int kabel, double f) -> std::optional<double> {
    bool gut = false;
    const float d100 = KabelwertErmitteln(k.kabel, kabel, static_cast<float>(f), gut);
    return gut ? std::optional(double{d100}) : std::nullopt;
  };
  double jetzt = 0;
  if (Positiv(s.werte.QRGText)) {
    try {
      jetzt = Zahl(s.werte.QRGText);
    } catch (const Laufzeitfehler&) {
      jetzt = 0;  // no cable has a value there
    }
  }
  std::vector<Kabelkurve> kurven;
  for (const int kabel : GezeigteKabel(s, k)) {
    Kabelkurve& kurve = kurven.emplace_back();
    kurve.name = k.kabel.liste.at(static_cast<std::size_t>(kabel));
    for (const double f : Raster(Kabelfrequenz.front(), Kabelfrequenz.back(), JeDekade)) {
      kurve.kurve.push_back({f, wert(kabel, f)});
    }
    kurve.jetzt = wert(kabel, jetzt);
  }
  return kurven;
}

std::vector<Grenzwertkurve> Grenzwertkurven(double von, double bis, const std::vector<std::int16_t>& typen) {
  constexpr int JeDekade = 40;
  std::set<float> frequenzen = AlleKanten();
  std::erase_if(frequenzen, [&](float f) { return f < von || f > bis; });
  for (const double f : Raster(von, bis, JeDekade)) frequenzen.insert(static_cast<float>(f));
  std::vector<Grenzwertkurve> kurven{GrenzwertkurveVon(Grenzwertart::OhneHSM, GrenzwertAM, frequenzen)};
  for (const std::int16_t typ : typen) {
    kurven.push_back(GrenzwertkurveVon(Grenzwertart::HSMvde, typ, frequenzen));
  }
  kurven.push_back(GrenzwertkurveVon(Grenzwertart::HSM306, GrenzwertAM, frequenzen));
  return kurven;
}

Grenzwertbild GrenzwerteDerStation(const Station& s) {
  Grenzwertbild bild{.von = 0.01, .bis = 100000, .kurven = {}, .marken = {}};
  std::set<std::int16_t> typen{s.werte.Grenzwerttyp};
  const auto marke = [&](const std::string& name, const Rechenwerte& werte, bool afu) {
    try {
      const float f = Zahl(werte.QRGText);
      if (!(f > 0) || !ImRechenbereich(f)) return;
      bild.von = std::min(bild.von, RundUnten(f));
      bild.bis = std::max(bild.bis, RundOben(f));
      typen.insert(werte.Grenzwerttyp);
      MarkeSetzen(bild, {name, GrenzwerteBestimmen(f, afu, werte.Grenzwerttyp), werte.Grenzwerttyp});
    } catch (const Laufzeitfehler&) {
      return;  // no frequency
    }
  };
  for (const int spalte : BenutzteSpalten(s)) {
    const std::optional<Rechenart> art = HaltendeArt(s, spalte);
    const std::string name(1, Spaltenbuchstabe(static_cast<std::int16_t>(spalte)));
    marke(name, Spaltenwerte(s, spalte), art ? art->afu : s.einstellungen.AFu);
  }
  marke({}, s.werte, s.einstellungen.AFu);
  bild.kurven = Grenzwertkurven(bild.von, bild.bis, {typen.begin(), typen.end()});
  return bild;
}

}  // namespace vesk
