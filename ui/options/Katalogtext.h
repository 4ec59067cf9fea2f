#pragma once
#include <string>
#include <string_view>

namespace vesk {

/// Bytes of a catalogue that the user may have edited: what an editor has saved as UTF-8 becomes the
/// Windows-1252 that the readers expect.
std::string Katalogbytes(std::string_view bytes);

/// Without blanks at both ends.
std::string_view OhneBlanks(std::string_view text);

}  // namespace vesk
