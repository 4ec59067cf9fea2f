#pragma once
#include "OptionenUmgebung.h"
#include "Rechengang.h"
#include "Spaltenuebernahme.h"
#include "Spaltenumgebung.h"

namespace vesk {

class frmDatenblatt;
class frmOptions;
class frmVesk;

/// What the windows and the column take-over ask of each other, answered in one place.
class Fensterverbund : public OptionenUmgebung, public Spaltenumgebung {
 public:
  Fensterverbund(Zustand& zustand, Plattform& plattform, frmVesk& hauptfenster, frmDatenblatt& datenblatt);

  /// The options window is created last, because it needs this interface.
  void OptionenBekanntmachen(frmOptions& optionen) { optionen_ = &optionen; }

  Spaltenuebernahme& Spalten() { return spalten_; }
  /// Caption of the copy button for the next free column.
  void KopierknopfAuffrischen();
  void KopierenFreigeben();

  bool OptionenBeruecksichtigen() const override;
  void OptionenBeruecksichtigenSetzen(bool an) override;
  bool MeldungenAn() const override;
  bool AFu() const override;
  QString Zelle(std::int16_t spalte, Zeile zeile) const override;
  void ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text) override;
  void ModIdxSetzen(const QString& text) override;
  void HauptfrequenzSetzen(const QString& text) override;
  void HauptgewinnSetzen(const QString& text) override;
  void HauptverlusteSetzen(const QString& text) override;
  void HauptwinkelSetzen(const QString& text) override;
  void Bandlogik(float mhz, bool hinweis) override;
  void Berechnen(bool meldungen) override;
  void SpalteUebernehmen() override;

  Modus modus() const override;
  void AbstandEinschalten() override;
  void EingabenZeigen() override;
  Ergebnistexte Ergebnisse() const override;
  bool RechnungLaeuft() const override;
  void EingabeHinweis() override;
  void OptionenLaden(std::int16_t spalte) override;
  std::string GewaehlteBetriebsarten() const override;
  void ZelleSetzen(std::int16_t spalte, Zeile zeile, const std::string& text) override;
  void ZelleMarkieren(std::int16_t spalte, Zeile zeile, bool fehlt) override;
  void SpaltenschriftSetzen(std::int16_t spalte, bool rueckwaerts) override;
  void FaktorZeigen(std::int16_t spalte, float faktor) override;

 private:
  void HauptfeldSetzen(std::string Rechenwerte::*feld, const QString& text);
  void NachRechnung(const Rechenergebnis& ergebnis, const Feldtexte& texte);

  Zustand& zustand_;
  Plattform& plattform_;
  frmVesk& hauptfenster_;
  frmDatenblatt& datenblatt_;
  frmOptions* optionen_ = nullptr;
  Rechengang rechengang_;
  Spaltenuebernahme spalten_;
};

}  // namespace vesk
