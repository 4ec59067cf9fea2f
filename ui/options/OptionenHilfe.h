#pragma once

class QTabWidget;
class QWidget;

namespace vesk {

/// Writes the tooltips of the options window and of all its tabs, or empties them.
void OptionenTooltips(QWidget& fenster, bool an);

/// Help context numbers 2100 to 2119 of the options window and of its pages.
void OptionenHilfenummern(QWidget& fenster, const QTabWidget& karten);

}  // namespace vesk
