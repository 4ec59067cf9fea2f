#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace vesk {

/// The tips in the bytes of "TIPOFDAY.TXT" (Windows-1252 or UTF-8): one a line, blank lines are none. UTF-8.
std::vector<std::string> TipsLesen(std::string_view datei);

}  // namespace vesk
