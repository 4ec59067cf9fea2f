#pragma once
#include <filesystem>
#include <string>
#include <string_view>

/// Texts of the station hold paths as UTF-8. Where the system keeps names as bytes, they go through
/// unchanged.
namespace vesk {

/// Empty for a text that names no file on this system.
std::filesystem::path PfadAusUtf8(std::string_view text);
/// With "/" between directories on every system.
std::string PfadAlsUtf8(const std::filesystem::path& pfad);
/// Absolute and without links, as far as the file system answers.
std::filesystem::path WirklicherPfad(const std::filesystem::path& pfad);
/// In small or in capital letters; both are in small ones here: ".dat", "kabel.txt".
bool HatEndung(const std::filesystem::path& pfad, std::string_view endung);
bool Heisst(const std::filesystem::path& pfad, std::string_view name);
/// As the system writes it.
std::string PfadZumZeigen(std::filesystem::path pfad);

}  // namespace vesk
