#include "Katalogtext.h"

#include <algorithm>

#include "Windows1252.h"

namespace vesk {

std::string Katalogbytes(std::string_view bytes) {
  constexpr std::string_view Reihenfolgemarke = "\xEF\xBB\xBF";
  if (!IstUtf8(bytes)) return std::string(bytes);
  if (bytes.starts_with(Reihenfolgemarke)) bytes.remove_prefix(Reihenfolgemarke.size());
  return NachWindows1252(bytes);
}

std::string_view OhneBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

}  // namespace vesk
