#include "rechnen/Rechentabelle.h"

#include <algorithm>
#include <ostream>

#include "engine/Zahlen.h"

namespace vesk {

namespace {

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

}  // namespace

void TabelleSchreiben(const Rechnung& rechnung, char trenner, std::ostream& aus) {
  constexpr std::size_t Titelbreite = 44;
  constexpr std::size_t Spaltenbreite = 16;
  const auto& [auftrag, e, texte] = rechnung;
  const bool abstand = e.modus == Modus::Abstand;
  const auto text = [&, &felder = texte](Feld feld) { return felder[feld].value_or(""); };
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

  for (const Hinweisart art : FaelligeHinweise(e)) {
    const Hinweis hinweis = HinweisZu(art, e);
    aus << '\n' << hinweis.titel << ":\n" << OhneFrage(hinweis.text) << '\n';
  }
}

}  // namespace vesk
