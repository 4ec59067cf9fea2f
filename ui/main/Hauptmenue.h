#pragma once
#include <string>
#include <vector>

class QMenuBar;

namespace vesk {

class Ablauf;

/// Fills the menu bar of the main window; every entry is a QAction that bears its name and tells `ablauf`
/// what it is for.
void HauptmenueAnlegen(QMenuBar& leiste, Ablauf& ablauf);

/// mnuZuletzt: the files with their directories, the last one first.
void ZuletztZeigen(QMenuBar& leiste, const std::vector<std::string>& dateien, Ablauf& ablauf);

}  // namespace vesk
