#pragma once
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Datenblatt.h"
#include "Spaltenumgebung.h"
#include "Zahlen.h"
#include "Zustand.h"

namespace vesk {

/// Windows that keep a log and answer as the test tells them.
class Spaltenskript : public Spaltenumgebung {
 public:
  explicit Spaltenskript(Zustand& z) : zustand(z) {}

  Modus modus() const override { return modus_; }
  void AbstandEinschalten() override { log.emplace_back("Abstand"); }
  void EingabenZeigen() override {
    const Rechenwerte& w = zustand.werte;
    log.push_back("Eingaben " + w.QRGText + '|' + w.PWRText + '|' + w.DaempfungText + '|' + w.GewinnText +
                  '|' + w.WinkelDaempfungText);
  }
  Ergebnistexte Ergebnisse() const override { return ergebnisse; }
  bool RechnungLaeuft() const override { return rechnungLaeuft; }
  void Berechnen(bool meldungen) override {
    log.emplace_back(meldungen ? "Berechnen laut" : "Berechnen still");
    if (beimBerechnen) beimBerechnen();
  }
  void EingabeHinweis() override { log.emplace_back("Hinweis"); }

  void OptionenLaden(std::int16_t spalte) override {
    log.push_back("Optionen " + std::to_string(spalte));
    zustand.werte.Modulationsfaktor = modulationsfaktorDerSpalte;
  }
  std::string GewaehlteBetriebsarten() const override { return "cw ssb "; }

  bool OptionenBeruecksichtigen() const override { return optionen; }
  void ZelleSetzen(std::int16_t spalte, Zeile zeile, const std::string& text) override {
    std::string& zelle = Zelle(spalte, zeile);
    if (zelle == text) return;
    zelle = text;
    zustand.UserGeaendert = true;
  }
  void ZelleMarkieren(std::int16_t spalte, Zeile zeile, bool fehlt) override {
    rot.at(static_cast<std::size_t>(Gitterindex(spalte, zeile))) = fehlt;
  }
  void SpaltenschriftSetzen(std::int16_t spalte, bool rueckwaerts) override {
    log.push_back((rueckwaerts ? "türkis " : "schwarz ") + std::to_string(spalte));
  }
  void FaktorZeigen(std::int16_t spalte, float faktor) override {
    log.push_back("Faktor " + std::to_string(spalte) + ' ' + Formatieren(faktor));
  }

  std::string& Zelle(int spalte, int zeile) {
    return zustand.Zellen.at(static_cast<std::size_t>((spalte - 1) * AnzahlZeilen + zeile - 1));
  }
  bool Rot(int spalte, int zeile) const {
    return rot.at(static_cast<std::size_t>((spalte - 1) * AnzahlZeilen + zeile - 1));
  }
  /// Takes the log.
  std::vector<std::string> Log() { return std::exchange(log, {}); }

  Zustand& zustand;
  Modus modus_ = Modus::Abstand;
  Ergebnistexte ergebnisse{"1.99", "41.91", "22.29"};
  bool rechnungLaeuft = false;
  bool optionen = true;
  float modulationsfaktorDerSpalte = 0.4F;
  std::function<void()> beimBerechnen;
  std::array<bool, AnzahlZellen> rot{};
  std::vector<std::string> log;
};

}  // namespace vesk
