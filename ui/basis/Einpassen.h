#pragma once
#include <QFont>
#include <QSize>
#include <functional>

class QWidget;

namespace vesk {

/// The largest size of a window of this widget's screen; the window's frame needs a little, too.
QSize Fensterplatz(const QWidget& fenster);

/// Gives a window that has been built its size: what it asks for. Where the screen is too small for that, its
/// margins shrink first, then its font, but never below the physical size that it has on a screen without
/// magnification. What is still too large after that scrolls.
void Einpassen(QWidget& fenster);

QFont Vergroessert(QFont schrift, qreal faktor);

/// Runs `setzen` now and whenever the font of `widget` changes: for sizes that are counted in characters.
void MitSchrift(QWidget& widget, std::function<void()> setzen);

/// Width in digits of the control's own font.
void MindestensBreit(QWidget& widget, int ziffern);
void GenauBreit(QWidget& widget, int ziffern);

}  // namespace vesk
