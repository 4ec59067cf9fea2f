#pragma once
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Whole files. Reasons of failures are German sentences for the user (UTF-8).
namespace vesk {

/// More than any file of the program can hold.
inline constexpr std::size_t MaxDateigroesse = std::size_t{16} * 1024 * 1024;

enum class Lesestatus { Gelesen, Fehlt, Fehler };

struct Gelesen {
  Lesestatus status = Lesestatus::Fehlt;
  std::string bytes;
  bool abgeschnitten = false;  ///< the file is longer than was asked for
  std::string grund;           ///< of `Fehler`
};

/// The first `hoechstens` bytes of a regular file. Never waits, whatever stands under that name.
Gelesen DateiLesen(const std::filesystem::path& pfad, std::size_t hoechstens = MaxDateigroesse);

/// Nothing, or why it failed.
using Fehlergrund = std::optional<std::string>;

/// Why the file `name` gives nothing to read.
Fehlergrund WarumOhneInhalt(const std::string& name, const Gelesen& datei);

/// Puts `bytes` in place of the file: at every instant, also of a crash, the old or the new content stands
/// there whole, and on return the new one is on the disk. A failure leaves the old file as it was. Keeps
/// permissions and follows symbolic links.
[[nodiscard]] Fehlergrund DateiSchreiben(const std::filesystem::path& pfad, std::string_view bytes);

/// Copies in the same manner, whatever the size.
[[nodiscard]] Fehlergrund DateiKopieren(const std::filesystem::path& von, const std::filesystem::path& nach);

/// "user-alt.dat" beside "user.dat", or "user-alt2.dat" and so on: a name that is still free.
std::filesystem::path FreierAltname(const std::filesystem::path& pfad);

}  // namespace vesk
