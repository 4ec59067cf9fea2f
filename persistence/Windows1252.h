#pragma once
#include <string>
#include <string_view>

namespace vesk {

/// The files are Windows-1252, texts inside the program are UTF-8. The five bytes that Windows-1252 leaves
/// undefined are the control characters U+0081, U+008D, U+008F, U+0090 and U+009D, so every byte survives
/// reading and writing.
std::string NachUtf8(std::string_view windows1252);

/// What Windows-1252 does not have, and every byte that is no UTF-8, becomes "?".
std::string NachWindows1252(std::string_view utf8);

/// Whole and valid UTF-8 with at least one character beyond ASCII: an editor has saved the file that way.
bool IstUtf8(std::string_view bytes);

/// Number of characters of a UTF-8 text.
std::size_t Zeichenzahl(std::string_view utf8);

}  // namespace vesk
