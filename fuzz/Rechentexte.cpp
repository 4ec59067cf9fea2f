#include <cmath>

#include "engine/Ausgabe.h"
#include "engine/Hinweise.h"
#include "engine/Zahlen.h"
#include "fuzz/Vorrat.h"
#include "station/Sendeart.h"

namespace vesk {

namespace {

constexpr Feld Ausgaben[] = {Feld::AusgabeOhneHSM, Feld::AusgabeHSM306, Feld::AusgabeHSMvde};

bool UeberNull(const std::string& text) {
  try {
    return Zahl(text) > 0;
  } catch (const Laufzeitfehler&) {
    return false;
  }
}

void TextePruefen(const Rechenergebnis& e) {
  // What the tables of the terminal leave room for.
  constexpr std::size_t Laengster = 60;
  const Feldtexte texte = Ausgabetexte(e, ',');
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    const std::optional<std::string>& text = texte[static_cast<Feld>(i)];
    Pruefen(!text || (e.begonnen && text->size() <= Laengster));
  }
  // None of the three without the others.
  const bool alle = e.ohneHSM && e.HSM306 && e.HSMvde;
  for (const Feld feld : Ausgaben) Pruefen(texte[feld].has_value() == alle);
  for (const Hinweisart art : FaelligeHinweise(e)) {
    Pruefen(e.begonnen && !HinweisZu(art, e).text.empty() && !HinweisZu(art, e).titel.empty());
  }
}

/// Nothing stands beside inputs that the check of them refuses, and nothing counts as whole beside a fault.
void ErgebnisPruefen(const Rechenwerte& werte, const Rechenergebnis& e) {
  Pruefen(e.begonnen == (UeberNull(werte.QRGText) && UeberNull(werte.PWRText)));
  Pruefen(!e.begonnen || Positiv(werte.QRGText));
  Pruefen(e.vollstaendig == (e.begonnen && !e.fehler));
  for (const auto& wert : {e.EIRP, e.AntEinPWR, e.WEIRP, e.ohneHSM, e.HSM306, e.HSMvde}) {
    Pruefen(!wert || (e.begonnen && std::isfinite(*wert)));
  }
  Pruefen(e.begonnen || (werte.GrenzwertOhneHSM == 0 && werte.Uss306 == 0 && werte.UssVDE == 0));
}

/// The power shown for a distance is one for which that distance is shown, as far as two decimals tell.
void RueckwegPruefen(const Rechenwerte& werte, const Rechenergebnis& leistung, const Rechenart& art) {
  constexpr float Genug = 0.1F;  // W
  constexpr double HalberSchritt = 0.005;
  constexpr float HoechsterPegel = 1e6F;
  if (art.modus != Modus::Leistung || !leistung.vollstaendig || !(*leistung.ohneHSM > Genug)) return;
  for (const std::string* db : {&werte.GewinnText, &werte.DaempfungText, &werte.WinkelDaempfungText}) {
    if (!(std::abs(Zahl(*db)) < HoechsterPegel)) return;
  }
  Rechenwerte hin = werte;
  hin.PWRText = *Ausgabetexte(leistung, '.')[Feld::AusgabeOhneHSM];
  const Rechenergebnis e = Berechnen(hin, {Modus::Abstand, art.afu});
  if (!e.vollstaendig || *e.WEIRP < std::numeric_limits<float>::min()) return;
  const double abstand = Zahl(werte.PWRText);
  Pruefen(std::abs(*e.ohneHSM - abstand) <= abstand * (HalberSchritt / *leistung.ohneHSM + 1e-5));
}

}  // namespace

}  // namespace vesk

/// The calculation on the texts that stand in the fields, a line each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  const Rechenart art{vorrat.Ja() ? Modus::Leistung : Modus::Abstand, vorrat.Ja()};
  Rechenwerte werte;
  // As a calculation before may have left them.
  werte.GrenzwertOhneHSM = werte.Uss306 = werte.UssVDE = 1;
  werte.Grenzwerttyp = static_cast<std::int16_t>(vorrat.Wahl(4) - 1);
  werte.Zyklusfaktor = ZyklusfaktorVon(static_cast<int>(vorrat.Wahl(AnzahlZyklen)));
  vorrat.Zeile();
  for (std::string* text : {&werte.QRGText, &werte.PWRText, &werte.GewinnText, &werte.DaempfungText,
                            &werte.WinkelDaempfungText}) {
    *text = vorrat.Zeile();
  }
  werte.Modulationsfaktor = FaktorAusText(vorrat.Zeile());
  Pruefen(werte.Modulationsfaktor > 0 && werte.Modulationsfaktor <= 1);

  const Rechenergebnis e = Berechnen(werte, art);
  ErgebnisPruefen(werte, e);
  TextePruefen(e);
  Rechenwerte nochmals = werte;
  Pruefen(Berechnen(nochmals, art) == e && nochmals == werte);
  RueckwegPruefen(werte, e, art);
  return 0;
}
