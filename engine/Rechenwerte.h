#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vesk {

/// Signal type of the threshold curve of DIN VDE 0848 Teil 3-1. Any other value counts as GSM there.
enum Grenzwerttypen : std::int16_t { GrenzwertAM = 0, GrenzwertTV = 1, GrenzwertGSM = 2 };

/// The calculation record. Texts are kept as typed (UTF-8, decimal point); frequencies in MHz, powers in W,
/// levels in dB, field strengths in V/m, thresholds in V, lengths in m. A limit or threshold of 0 means that
/// none is defined at the frequency.
struct Rechenwerte {
  std::string QRGText;
  std::string PWRText;  ///< power in W, or the given distance in m in power mode
  std::string GewinnText;
  std::string DaempfungText;
  std::string WinkelDaempfungText;

  float Modulationsfaktor = 1.0F;
  float Zyklusfaktor = 1.0F;
  std::int16_t Grenzwerttyp = GrenzwertAM;

  float QRG = 0;
  float QRGGrenzwert = 0;  ///< where the personal-protection limit is taken
  float QRGHSM = 0;        ///< where the pacemaker limits are taken
  float QRGLambda = 0;     ///< where the wavelength is taken

  float GrenzwertOhneHSM = 0;
  float GrenzwertHSM306 = 0;
  float GrenzwertHSMvde = 0;
  float SpitzenfeldHSM306 = 0;  ///< before the division by the square root of 2
  float Uss306 = 0;
  float UssVDE = 0;

  std::int16_t Spalte = 0;  ///< data-sheet column being calculated, 1 to 7; 0 is the main window
  std::int16_t LetzteSpalte = 0;

  bool operator==(const Rechenwerte&) const = default;
};

/// One operating mode: its power factor as text and its abbreviation with a trailing blank.
struct Sendeart {
  std::string_view faktor;
  std::string_view kuerzel;
};

inline constexpr std::array<Sendeart, 8> Sendearten = {{
    {"0.40", "cw "},
    {"0.50", "ssb "},
    {"0.50", "am "},
    {"1.00", "fm "},
    {"1.00", "pr "},
    {"1.00", "atv "},
    {"1.00", "gsm "},
    {"1.00", "alle "},
}};

/// The product that reduces the power in the distance without pacemaker, in single precision.
inline float Faktor(const Rechenwerte& werte) {
  return werte.Zyklusfaktor * werte.Modulationsfaktor;
}

}  // namespace vesk
