#pragma once
#include <string>
#include <string_view>

namespace vesk {

/// Band label of the antenna catalogue for the frequency in MHz at the head of the text. Outside every range
/// the number itself, cut to the width of the label; empty when there is no positive number.
std::string Bandkennung(std::string_view f);

}  // namespace vesk
