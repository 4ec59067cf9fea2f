#include "ui/basis/Einpassen.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "ui/basis/Rollseite.h"

namespace vesk {

namespace {

/// Screens without magnification have this many dots per inch.
constexpr qreal Normaldichte = 96;

class Schriftfolger : public QObject {
 public:
  Schriftfolger(QWidget& widget, std::function<void()> setzen)
      : QObject(&widget), setzen_(std::move(setzen)) {
    widget.installEventFilter(this);
    setzen_();
  }

 protected:
  bool eventFilter(QObject* /*objekt*/, QEvent* ereignis) override {
    if (ereignis->type() == QEvent::FontChange) setzen_();
    return false;
  }

 private:
  std::function<void()> setzen_;
};

/// What layouts remember of the sizes of their controls does not hold any more.
void Vergessen(const QWidget& fenster) {
  for (QWidget* control : fenster.findChildren<QWidget*>()) control->updateGeometry();
  for (QLayout* layout : fenster.findChildren<QLayout*>()) layout->invalidate();
}

bool Passt(const QWidget& fenster) {
  Vergessen(fenster);
  const QSize platz = Fensterplatz(fenster);
  return fenster.sizeHint().boundedTo(platz) == fenster.sizeHint();
}

/// Distances between controls become this share of what they are; texts beside each other stay apart.
void Zusammenruecken(const QWidget& fenster, qreal faktor) {
  const auto kleiner = [=](int abstand) { return static_cast<int>(abstand * faktor); };
  const auto nebeneinander = [=](int abstand) { return std::max(kleiner(abstand), std::min(abstand, 4)); };
  for (QLayout* layout : fenster.findChildren<QLayout*>()) {
    const QMargins rand = layout->contentsMargins();
    // A frame with a title begins lower than its contents.
    const bool rahmen = qobject_cast<const QGroupBox*>(layout->parentWidget()) != nullptr;
    layout->setContentsMargins(kleiner(rand.left()), rahmen ? rand.top() : kleiner(rand.top()),
                               kleiner(rand.right()), kleiner(rand.bottom()));
    if (auto* raster = qobject_cast<QGridLayout*>(layout)) {
      raster->setHorizontalSpacing(nebeneinander(raster->horizontalSpacing()));
      raster->setVerticalSpacing(kleiner(raster->verticalSpacing()));
    } else if (const auto* reihe = qobject_cast<QHBoxLayout*>(layout)) {
      layout->setSpacing(nebeneinander(reihe->spacing()));
    } else if (layout->spacing() > 0) {
      layout->setSpacing(kleiner(layout->spacing()));
    }
  }
}

/// The toolkit makes input fields no lower than for a font of 14 pixels; beside a smaller one they would
/// tower.
void FelderFlach(const QWidget& fenster) {
  for (QLineEdit* feld : fenster.findChildren<QLineEdit*>()) {
    const QWidget* eltern = feld->parentWidget();
    // Theirs fill them.
    if (qobject_cast<const QComboBox*>(eltern) || qobject_cast<const QAbstractSpinBox*>(eltern)) continue;
    MitSchrift(*feld, [feld] { feld->setFixedHeight(feld->fontMetrics().height() + 5); });
  }
}

}  // namespace

QSize Fensterplatz(const QWidget& fenster) {
  return fenster.screen()->availableSize() * 0.95;
}

void Einpassen(QWidget& fenster) {
  fenster.ensurePolished();  // before it the style tells other sizes
  bool passt = Passt(fenster);
  for (int mal = 0; mal < 2 && !passt; ++mal) {
    Zusammenruecken(fenster, 0.6);
    passt = Passt(fenster);
  }
  const QFont schrift = fenster.font();
  const qreal kleinste = std::min(1.0, Normaldichte / (fenster.logicalDpiY() * fenster.devicePixelRatioF()));
  if (!passt && kleinste < 1) FelderFlach(fenster);
  for (qreal faktor = 1; faktor > kleinste && !passt;) {
    faktor = std::max(faktor - 0.04, kleinste);
    fenster.setFont(Vergroessert(schrift, faktor));
    passt = Passt(fenster);
  }
  if (passt) {
    for (QScrollArea* seite : fenster.findChildren<QScrollArea*>()) {
      if (auto* rollseite = dynamic_cast<Rollseite*>(seite)) rollseite->Ganz();
    }
  }
  fenster.resize(fenster.sizeHint().boundedTo(Fensterplatz(fenster)));
}

QFont Vergroessert(QFont schrift, qreal faktor) {
  if (schrift.pointSizeF() > 0) {
    schrift.setPointSizeF(schrift.pointSizeF() * faktor);
  } else {
    schrift.setPixelSize(std::max(1, qRound(schrift.pixelSize() * faktor)));
  }
  return schrift;
}

void MitSchrift(QWidget& widget, std::function<void()> setzen) {
  new Schriftfolger(widget, std::move(setzen));
}

void MindestensBreit(QWidget& widget, int ziffern) {
  MitSchrift(widget, [&widget, ziffern] {
    widget.setMinimumWidth(ziffern * widget.fontMetrics().horizontalAdvance(QLatin1Char('0')));
  });
}

void GenauBreit(QWidget& widget, int ziffern) {
  MitSchrift(widget, [&widget, ziffern] {
    widget.setFixedWidth(ziffern * widget.fontMetrics().horizontalAdvance(QLatin1Char('0')));
  });
}

}  // namespace vesk
