#pragma once
#include <cstddef>

/// How much is read, so that no file, whatever it is, stops the program. What the program writes is less.
namespace vesk::grenzen {

inline constexpr std::size_t KB = 1024;
inline constexpr std::size_t MB = 1024 * KB;

// Bytes of a file
inline constexpr std::size_t UserDatei = 1 * MB;
inline constexpr std::size_t Lageplan = 1 * MB;  ///< a full plan, and what a later version has added
inline constexpr std::size_t Rettung = 3 * MB;   ///< user's file, angle table, plan, two paths
inline constexpr std::size_t Winkel = 512 * KB;  ///< twelve texts as long as a field takes them
inline constexpr std::size_t Kabel = 256 * KB;
inline constexpr std::size_t Antennen = 8 * MB;  ///< as many as can be numbered
inline constexpr std::size_t Tips = 64 * KB;
inline constexpr std::size_t Geojson = 16 * MB;  ///< the plots of a small town

// Characters
inline constexpr std::size_t Tip = 500;
inline constexpr std::size_t Meldungswort = 40;  ///< a word from a file in a message

}  // namespace vesk::grenzen
