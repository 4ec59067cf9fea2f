#pragma once

class QMenuBar;

namespace vesk {

/// Fills the menu bar of the main window; every entry is a QAction that bears its name.
void HauptmenueAnlegen(QMenuBar& leiste);

}  // namespace vesk
