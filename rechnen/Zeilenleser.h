#pragma once
#include <iosfwd>
#include <span>
#include <string_view>
#include <vector>

namespace vesk {

/// Lines of a stream, which is read in blocks: as much as is there, so that whoever writes a line and waits
/// for its answer gets it.
class Zeilenleser {
 public:
  static constexpr std::size_t Laengste = std::size_t{64} * 1024;

  struct Zeile {
    std::size_t nummer = 0;  ///< from 1
    std::span<char> text;    ///< without its end, LF or CR LF; valid until the next block
    bool zuLang = false;     ///< longer than Laengste; the text is lost
  };

  explicit Zeilenleser(std::istream& quelle);

  /// The next whole line in memory; false: a block must be read before there is one.
  bool Naechste(Zeile& zeile);

  /// Reads a block, waiting for it. False: the last line has been given. Throws std::runtime_error when the
  /// stream cannot be read.
  bool Nachfuellen();

 private:
  std::istream& quelle_;
  std::vector<char> block_;
  std::size_t von_ = 0;     ///< begin of the next line
  std::size_t bis_ = 0;     ///< end of what was read
  std::size_t nummer_ = 0;  ///< of the last line
  bool verworfen_ = false;  ///< the begin of the next line was too much to keep
  bool ende_ = false;
};

}  // namespace vesk
