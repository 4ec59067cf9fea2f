#pragma once
#include <cstdint>
#include <string>

#include "Berechnung.h"
#include "Datenblattspalte.h"

namespace vesk {

/// Texts of the three results of the main window.
struct Ergebnistexte {
  std::string ohneHSM;
  std::string HSM306;
  std::string HSMvde;
};

/// What moving a column between the windows needs of them; the tying place implements it. Nothing that is
/// written here runs a handler of the user's actions. Texts are UTF-8.
class Spaltenumgebung {
 public:
  virtual ~Spaltenumgebung() = default;

  // Main window
  virtual Modus modus() const = 0;
  /// Distance mode, also when it is on already: inputs and results are emptied, the inputs shown again from
  /// the record except the power.
  virtual void AbstandEinschalten() = 0;
  /// Shows the five input texts of the record as they stand.
  virtual void EingabenZeigen() = 0;
  virtual Ergebnistexte Ergebnisse() const = 0;
  virtual bool RechnungLaeuft() const = 0;
  /// Central calculation from the record. Without `meldungen` no box appears. Throws Laufzeitfehler.
  virtual void Berechnen(bool meldungen) = 0;
  /// The message that the red fields must be filled.
  virtual void EingabeHinweis() = 0;

  // Options window
  /// Shows a column's record (0: the working record) and takes its factors and signal type.
  virtual void OptionenLaden(std::int16_t spalte) = 0;
  /// Text of txtSelectedModes.
  virtual std::string GewaehlteBetriebsarten() const = 0;

  // Data sheet
  virtual bool OptionenBeruecksichtigen() const = 0;
  virtual void ZelleSetzen(std::int16_t spalte, Zeile zeile, const std::string& text) = 0;
  /// Red for a missing input, else white.
  virtual void ZelleMarkieren(std::int16_t spalte, Zeile zeile, bool fehlt) = 0;
  /// Teal for a column computed backwards, else black.
  virtual void SpaltenschriftSetzen(std::int16_t spalte, bool rueckwaerts) = 0;
  virtual void FaktorZeigen(std::int16_t spalte, float faktor) = 0;
};

}  // namespace vesk
