#pragma once
#include <cstdint>

namespace vesk {

class Spaltenumgebung;
struct Zustand;

/// Takes the current data-sheet column (Rechenwerte::Spalte; 0 is none) into the main window, the options
/// window and the record, calculates it and writes the results back into its rows 10 to 12.
///
/// The cells are what counts: the main window goes to distance mode, its five inputs become the texts of the
/// column, no limits applied. The column's option record is loaded where the user turned to the column; it
/// is not where an option has just been changed, because then the options window is newer than the record
/// and row 5 cannot hold a fourth operating mode.
///
/// A click must never lose anything and never talk: while it is answered no box appears, cells of a column
/// that cannot be calculated yet are only marked, and a run-time error ends it silently. The other ways
/// report: an incomplete column gets the message and loses its results, and a Laufzeitfehler goes to the
/// caller after the windows show as much as was computed; rows 10 to 12 then stay as they were.
///
/// Nothing happens while a calculation or another take-over is running (a box of it is open).
class Spaltenuebernahme {
 public:
  Spaltenuebernahme(Zustand& zustand, Spaltenumgebung& umgebung);

  /// The user has clicked a cell resp. with the left button the head of a column, which is the current one
  /// already. The head also calculates aloud.
  void ZelleGeklickt();
  void KopfGeklickt();
  /// Button "Rechnen", and the click on the mode label: the record is loaded.
  void Rechnen();
  /// An option has changed: the record is not loaded.
  void OptionGeaendert();
  /// The same; without a current column the main window is calculated.
  void Anwenden();

  /// Takes back the red marks of the column that was current before (Rechenwerte::LetzteSpalte).
  void MarkenZuruecknehmen();

  bool Laeuft() const { return laeuft_; }

 private:
  enum class Satz { Laden, Behalten };
  enum class Ton { Still, Laut };

  bool Beschaeftigt() const;
  void Uebernehmen(Satz satz, Ton ton);
  void EingabenAusZellen(std::int16_t spalte);
  bool Pruefen(std::int16_t spalte);
  bool BerechnenMit(Ton ton);
  void ErgebnisseEintragen(std::int16_t spalte);

  Zustand& zustand_;
  Spaltenumgebung& umgebung_;
  bool laeuft_ = false;
};

}  // namespace vesk
