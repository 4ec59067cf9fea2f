#pragma once
#include <string>
#include <vector>

class QWidget;

/// What the desktop remembers of the program from run to run, in the per-user store.
namespace vesk {

class Benutzerspeicher;

/// Place and size of a window that bears a name.
void LageMerken(const QWidget& fenster, Benutzerspeicher& speicher);
/// A window that no screen would show any more comes onto one.
void LageHolen(QWidget& fenster, Benutzerspeicher& speicher);

inline constexpr std::size_t MaxZuletzt = 8;
/// Full paths of the user's files, the last one first; at most MaxZuletzt.
std::vector<std::string> ZuletztBenutzt(Benutzerspeicher& speicher);
void ZuletztMerken(const std::vector<std::string>& dateien, Benutzerspeicher& speicher);

}  // namespace vesk
