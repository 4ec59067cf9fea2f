#pragma once
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Ausgabe.h"
#include "engine/Hinweise.h"
#include "rechnen/Rechenauftrag.h"

namespace vesk {

/// One calculation and all that is said of it.
struct Rechnung {
  /// `trenner` is the decimal separator of the column heads.
  Rechnung(Rechenauftrag was, char trenner);

  Rechenauftrag auftrag;  ///< with frequencies and limits
  Rechenergebnis ergebnis;
  Feldtexte texte;
};

/// A number of the output.
struct Zahlfeld {
  std::string_view name;
  std::optional<Modus> nur{};  ///< there in one mode only
};

inline constexpr std::array Zahlfelder = {
    Zahlfeld{"QRG"},
    Zahlfeld{"QRGGrenzwert"},
    Zahlfeld{"QRGHSM"},
    Zahlfeld{"QRGLambda"},
    Zahlfeld{"GrenzwertOhneHSM"},
    Zahlfeld{"GrenzwertHSM306"},
    Zahlfeld{"GrenzwertHSMvde"},
    Zahlfeld{"SpitzenfeldHSM306"},
    Zahlfeld{"Uss306"},
    Zahlfeld{"UssVDE"},
    Zahlfeld{"Faktor"},
    Zahlfeld{"Lambda"},
    Zahlfeld{"Nahfeld"},
    Zahlfeld{"Fernfeld"},
    Zahlfeld{"EIRP"},
    Zahlfeld{"AntEinPWR"},
    Zahlfeld{"WEIRP"},
    Zahlfeld{"AbstandOhneHSM", Modus::Abstand},
    Zahlfeld{"AbstandHSM306", Modus::Abstand},
    Zahlfeld{"AbstandHSMvde", Modus::Abstand},
    Zahlfeld{"LeistungOhneHSM", Modus::Leistung},
    Zahlfeld{"LeistungHSM306", Modus::Leistung},
    Zahlfeld{"LeistungHSMvde", Modus::Leistung},
};

/// The numbers in the order of Zahlfelder. What is undefined or was not reached has none.
std::array<std::optional<float>, Zahlfelder.size()> Zahlwerte(const Rechnung& rechnung);

/// A text of the output: one of the input or one of the result. What is empty was not written.
struct Textfeld {
  std::string_view name;
  std::string Rechenwerte::*eingabe = nullptr;  ///< null: `feld` counts
  Feld feld = Feld::Anzahl;
  bool istZahl = true;  ///< else it may have blanks and line feeds
};

inline constexpr std::array Eingabefelder = {
    Textfeld{"txtQRG", &Rechenwerte::QRGText},
    Textfeld{"txtPWR", &Rechenwerte::PWRText},
    Textfeld{"txtGewinn", &Rechenwerte::GewinnText},
    Textfeld{"txtDaempfung", &Rechenwerte::DaempfungText},
    Textfeld{"txtWinkelDaempfung", &Rechenwerte::WinkelDaempfungText},
};

inline constexpr auto Textfelder = [] {
  std::array<Textfeld, Eingabefelder.size() + AnzahlFelder> felder{};
  std::copy(Eingabefelder.begin(), Eingabefelder.end(), felder.begin());
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    felder[Eingabefelder.size() + i] = {Feldnamen[i], nullptr, static_cast<Feld>(i),
                                        Feldnamen[i].starts_with("txt")};
  }
  return felder;
}();

std::string_view Text(const Rechnung& rechnung, const Textfeld& feld);

/// The notes of a calculation, each brought into the form of the output only once.
class Meldungstexte {
 public:
  explicit Meldungstexte(std::string (*form)(std::string_view)) : form_(form) {}

  /// Those that are due; valid until the next call.
  const std::vector<std::string_view>& operator()(const Rechenergebnis& ergebnis);

 private:
  const std::string& Text(Hinweisart art, const Rechenergebnis& ergebnis);

  static constexpr std::size_t AnzahlNahfeldtexte = 16;  // flags and mode
  std::string (*form_)(std::string_view);
  std::array<std::string, AnzahlNahfeldtexte + 4> texte_;
  std::vector<std::string_view> faellige_;
};

/// Room for all that is written of a calculation but the texts of the input and the notes: names, numbers and
/// results, none of which has more than 60 characters.
inline constexpr std::size_t PlatzFuerErgebnisse = std::size_t{16} * 1024;

/// Room for the texts of the input, which can be of any length, and these notes.
std::size_t PlatzFuerTexte(const Rechenwerte& werte, const std::vector<std::string_view>& meldungen);

/// A note without the question that only a window can ask.
std::string_view OhneFrage(std::string_view meldung);
/// And in one line: runs of blanks and line feeds become one blank.
std::string Einzeilig(std::string_view meldung);

}  // namespace vesk
