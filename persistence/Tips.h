#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vesk {

/// The tips in the bytes of "TIPOFDAY.TXT" (Windows-1252 or UTF-8): one a line, blank lines are none; of a
/// long line the beginning. UTF-8.
std::vector<std::string> TipsLesen(std::string_view datei);

/// Those of the file; where it cannot be read, the only one says why.
std::vector<std::string> TipsLaden(const std::filesystem::path& pfad);

}  // namespace vesk
