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

/// The characters of a text of which NachWindows1252 makes "?".
std::string OhneWindows1252(std::string_view utf8);

/// Whole and valid UTF-8 with at least one character beyond ASCII: an editor has saved the file that way.
bool IstUtf8(std::string_view bytes);

/// Bytes of a file that the user may have edited: what an editor has saved as UTF-8, with or without a mark
/// of the byte order, becomes the Windows-1252 that the readers expect.
std::string AlsWindows1252(std::string_view bytes);

/// Without the mark of the byte order at the head of UTF-8.
std::string_view OhneMarke(std::string_view bytes);

/// The first `zeichen` characters of the first line, and "…" when more follows.
std::string Anfang(std::string_view utf8, std::size_t zeichen);

/// Without blanks at both ends.
std::string_view OhneBlanks(std::string_view text);

/// Upper resp. lower case of the letters of Windows-1252 that have both (A-Z, À-Þ).
std::string Grossbuchstaben(std::string_view utf8);
std::string Kleinbuchstaben(std::string_view utf8);

/// Number of characters of a UTF-8 text.
std::size_t Zeichenzahl(std::string_view utf8);

}  // namespace vesk
