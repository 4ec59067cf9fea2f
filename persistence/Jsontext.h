#pragma once
#include <cstddef>
#include <string>
#include <string_view>

/// What the readers of JSON look at before and after the library that takes it apart.
namespace vesk {

/// Whether more arrays and objects lie in one another than any file of this program or of a land registry
/// has.
bool ZuTief(std::string_view json);

/// "Sie ist beschädigt (Zeile 12)." The byte counts from 1.
std::string Beschaedigt(std::string_view json, std::size_t byte);

}  // namespace vesk
