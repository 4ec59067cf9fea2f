#include "engine/Bandlogik.h"

#include <algorithm>
#include <array>

namespace vesk {

namespace {

// The 17 m row ends at 18.068 and the 15 m row is the single point 21 MHz, narrower than the bands: outside
// of them the entered frequency itself is the safe choice.
constexpr std::array<Amateurband, 18> Baender = {{
    //               von    bis    Grenzwert HSM    Lambda
    {"160 m", "1.8", 1.0F, 1.89F, {1.89F, 1.89F, 1.815F}},
    {"80 m", "3.6", 3.0F, 3.8F, {3.8F, 3.8F, 3.5F}},
    {"40 m", "7", 7.0F, 7.1F, {7.1F, 7.1F, 7.0F}},
    {"30 m", "10", 10.0F, 10.15F, {10.1F, 10.15F, 10.1F}},
    {"20 m", "14", 14.0F, 14.35F, {14.0F, 14.35F, 14.0F}},
    {"17 m", "18", 18.0F, 18.068F, {18.068F, 18.168F, 18.068F}},
    {"15 m", "21", 21.0F, 21.0F, {21.0F, 21.45F, 21.0F}},
    {"12 m", "24", 24.0F, 24.99F, {24.89F, 24.99F, 24.89F}},
    {"10 m", "28", 28.0F, 29.7F, {28.0F, 29.7F, 28.0F}},
    {"6 m", "50", 50.0F, 55.0F, {50.0F, 51.0F, 50.0F}},
    {"2 m", "144", 100.0F, 150.0F, {144.0F, 144.0F, 144.0F}},
    {"70 cm", "430", 430.0F, 440.0F, {430.0F, 430.0F, 430.0F}},
    {"23 cm", "1240", 1200.0F, 1300.0F, {1240.0F, 1240.0F, 1240.0F}},
    {"13 cm", "2400", 2000.0F, 2600.0F, {2320.0F, 2320.0F, 2320.0F}},
    {"9 cm", "3400", 3000.0F, 3500.0F, {3400.0F, 3400.0F, 3400.0F}},
    {"6 cm", "5600", 5000.0F, 5900.0F, {5650.0F, 5650.0F, 5650.0F}},
    {"3 cm", "10000", 10000.0F, 10500.0F, {10000.0F, 10000.0F, 10000.0F}},
    {"1.2 cm", "24000", 24000.0F, 25000.0F, {24000.0F, 24000.0F, 24000.0F}},
}};

}  // namespace

std::span<const Amateurband> Amateurbaender() {
  return Baender;
}

const Amateurband* AmateurbandVon(float qrg) {
  const auto* const band = std::find_if(Baender.begin(), Baender.end(),
                                        [qrg](const Amateurband& b) { return qrg >= b.von && qrg <= b.bis; });
  return band == Baender.end() ? nullptr : band;
}

Auswertefrequenzen Bandlogik(float qrg, bool afu) {
  const Amateurband* const band = afu ? AmateurbandVon(qrg) : nullptr;
  return band != nullptr ? band->auswertung : Auswertefrequenzen{qrg, qrg, qrg};
}

bool ImRechenbereich(float qrg) {
  return qrg >= 0.003F && qrg <= 300000.0F;
}

}  // namespace vesk
