#pragma once

class QWidget;

namespace vesk {

/// A modal window blocks all others but those that belong to it: this window becomes one of the modal window
/// that is open, or nobody's. It is hidden when that changes; to be called before it is shown.
void ZuModalemFenster(QWidget& fenster);

}  // namespace vesk
