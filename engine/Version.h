#pragma once
#include <string>
#include <string_view>

namespace vesk {

inline constexpr std::string_view Produktname = "Vesk";
inline constexpr std::string_view Rechtshinweis = "Alle Angaben ohne Gewähr";
inline constexpr int VersionHaupt = 2;
inline constexpr int VersionNeben = 5;
inline constexpr int VersionRevision = 1;

/// "2.5.1", as shown to the user.
std::string VersionLang();
/// "251": the three numbers without separators, as it stands in the user's file.
std::string VersionText();

// Files compare this text byte by byte with "251" and its number with 250; a program whose own version
// fails either test would migrate the files that it has just written (2.10.0 would be such a version).
static_assert(VersionHaupt >= 2 && VersionHaupt < 10 && VersionNeben < 10 && VersionRevision < 10);
static_assert(VersionHaupt * 100 + VersionNeben * 10 + VersionRevision >= 251);

}  // namespace vesk
