#pragma once
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Whole files. Reasons of failures are German sentences for the user (UTF-8).
namespace vesk {

enum class Lesestatus { Gelesen, Fehlt, Fehler };

struct Gelesen {
  Lesestatus status = Lesestatus::Fehlt;
  std::string bytes;
  std::string grund;  ///< of `Fehler`
};

/// A regular file of up to `hoechstens` bytes; a longer one is a `Fehler`. Never waits, whatever stands under
/// that name.
Gelesen DateiLesen(const std::filesystem::path& pfad, std::size_t hoechstens);
/// "Sie ist größer als 64 KB …"
std::string ZuGross(std::size_t hoechstens);

/// Nothing, or why it failed.
using Fehlergrund = std::optional<std::string>;

/// Why the file `name` gives nothing to read.
Fehlergrund WarumOhneInhalt(const std::string& name, const Gelesen& datei);

/// Puts `bytes` in place of the file: at every instant, also of a crash, the old or the new content stands
/// there whole, and on return the new one is on the disk. A failure leaves the old file as it was. Keeps
/// permissions and follows symbolic links.
[[nodiscard]] Fehlergrund DateiSchreiben(const std::filesystem::path& pfad, std::string_view bytes);
/// The same; a new file gets the permissions of `vorbild`.
[[nodiscard]] Fehlergrund DateiSchreiben(const std::filesystem::path& pfad, std::string_view bytes,
                                         const std::filesystem::path& vorbild);

/// Copies in the same manner, whatever the size.
[[nodiscard]] Fehlergrund DateiKopieren(const std::filesystem::path& von, const std::filesystem::path& nach);

/// Why no file can be written into a directory; nothing when one can. Leaves none there.
Fehlergrund WarumNichtBeschreibbar(const std::filesystem::path& verzeichnis);

/// Where `fassung` of a file is kept: "user-alt.dat" beside "user.dat", or "user-alt2.dat" and so on, the
/// first name that is still free or holds just that.
std::filesystem::path Altname(const std::filesystem::path& pfad, const Gelesen& fassung);
/// The same for what stands in the file now.
std::filesystem::path Altname(const std::filesystem::path& pfad);

}  // namespace vesk
