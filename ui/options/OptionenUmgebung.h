#pragma once
#include <QString>
#include <cstdint>

#include "Datenblattspalte.h"
#include "Zustand.h"

namespace vesk {

/// What the options window reads of the other windows and asks of them; the tying place implements it.
/// Texts written to the main window run no handler there.
class OptionenUmgebung {
 public:
  virtual ~OptionenUmgebung() = default;

  /// "Optionen berücksichtigen" (chkOptionen) of the data sheet.
  virtual bool OptionenBeruecksichtigen() const = 0;
  virtual void OptionenBeruecksichtigenSetzen(bool an) = 0;
  /// mnuMeldungen of the main window.
  virtual bool MeldungenAn() const = 0;
  /// mnuAFu of the main window.
  virtual bool AFu() const = 0;

  virtual QString Zelle(std::int16_t spalte, Zeile zeile) const = 0;
  virtual void ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text) = 0;
  /// Label lblModIdx of the data sheet.
  virtual void ModIdxSetzen(const QString& text) = 0;

  virtual void HauptfrequenzSetzen(const QString& text) = 0;
  virtual void HauptgewinnSetzen(const QString& text) = 0;
  virtual void HauptverlusteSetzen(const QString& text) = 0;
  virtual void HauptwinkelSetzen(const QString& text) = 0;

  /// Band logic for `mhz` (record, column heads of the main window). With `hinweis` the note for a frequency
  /// outside 0.003 MHz to 300 GHz may appear.
  virtual void Bandlogik(float mhz, bool hinweis) = 0;
  /// Central calculation with the main window's values. Without `meldungen` no box appears.
  virtual void Berechnen(bool meldungen) = 0;
  /// Takes the current data-sheet column into the calculation without reloading the options.
  virtual void SpalteUebernehmen() = 0;
};

/// What follows every change of an option: the main window's calculation, or that of the current column when
/// the data sheet takes options into account.
inline void Neurechnen(const Zustand& zustand, OptionenUmgebung& umgebung) {
  if (zustand.werte.Spalte == 0) {
    umgebung.Berechnen(true);
  } else if (umgebung.OptionenBeruecksichtigen()) {
    umgebung.SpalteUebernehmen();
  }
}

}  // namespace vesk
