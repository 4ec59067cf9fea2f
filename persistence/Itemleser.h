#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

namespace vesk {

/// Splits the bytes of a file into its items, in the style of a write statement: items are separated by
/// commas or line ends (LF or CR LF), an item in double quotes may hold both, blanks around an item do not
/// belong to it, an empty line is one empty item. Blanks and line ends after the last item are no item.
///
/// Files are edited by hand: whatever stands between a closing quote and the next separator is skipped, and
/// a quote that was never closed ends with its line, so that the following items stay in step.
class Itemleser {
 public:
  explicit Itemleser(std::string_view bytes);

  bool AmEnde() const { return rest_.empty(); }
  /// The next item without its quotes, a part of the bytes given; nothing at the end.
  std::optional<std::string_view> Naechstes();

 private:
  std::string_view Gequotetes();
  void BisNachTrenner(std::size_t ab);

  std::string_view rest_;
};

/// "#TRUE#" or "#FALSE#" in any case, or an integer, of which 0 is false.
std::optional<bool> AlsWahrheitswert(std::string_view item);
/// A whole number of 16 bits.
std::optional<std::int16_t> AlsGanzzahl(std::string_view item);

}  // namespace vesk
