#pragma once

class QMenuBar;

namespace vesk {

class Ablauf;

/// Fills the menu bar of the main window; every entry is a QAction that bears its name and tells `ablauf`
/// what it is for.
void HauptmenueAnlegen(QMenuBar& leiste, Ablauf& ablauf);

}  // namespace vesk
