#include "ui/basis/Lesbarkeit.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace vesk {

namespace {

constexpr int Rahmenbreite = 2;

/// Relative luminance after WCAG 2.1.
qreal Leuchtdichte(const QColor& farbe) {
  const auto linear = [](qreal anteil) {
    return anteil <= 0.03928 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) + 0.0722 * linear(farbe.blueF());
}

qreal Kontrast(const QColor& a, const QColor& b) {
  const qreal hell = std::max(Leuchtdichte(a), Leuchtdichte(b));
  const qreal dunkel = std::min(Leuchtdichte(a), Leuchtdichte(b));
  return (hell + 0.05) / (dunkel + 0.05);
}

/// The least contrast of a mark beside what it marks, and of a text on its ground (WCAG 2.1, 1.4.11, 1.4.3).
constexpr qreal Markenkontrast = 3;
constexpr qreal Textkontrast = 4.5;

QColor Mischung(const QColor& farbe, const QColor& grund, float anteil) {
  const auto mischen = [=](float a, float b) { return a * anteil + b * (1 - anteil); };
  return QColor::fromRgbF(mischen(farbe.redF(), grund.redF()), mischen(farbe.greenF(), grund.greenF()),
                          mischen(farbe.blueF(), grund.blueF()));
}

/// Of the colours between `schrift` and `grund` the palest that can still be read.
QColor Blass(const QColor& schrift, const QColor& grund) {
  float anteil = 0.3F;
  while (anteil < 1 && Kontrast(Mischung(schrift, grund, anteil), grund) < Textkontrast) anteil += 0.05F;
  return Mischung(schrift, grund, std::min(anteil, 1.0F));
}

void TexteLesbar() {
  QPalette palette = QApplication::palette();
  const auto farbe = [&](QPalette::ColorRole rolle) { return palette.color(QPalette::Active, rolle); };
  const QColor grund = farbe(QPalette::Window);
  for (const QPalette::ColorRole schrift : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, schrift, Blass(farbe(schrift), grund));
  }
  // An entry that cannot be chosen says why while it is marked.
  palette.setColor(QPalette::Disabled, QPalette::Highlight,
                   Mischung(farbe(QPalette::Highlight), grund, 0.25F));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, farbe(QPalette::WindowText));
  // Some dark themes leave links the dark blue that is meant for white.
  constexpr QColor HellerVerweis(0x8A, 0xB4, 0xF8);
  for (const QPalette::ColorRole verweis : {QPalette::Link, QPalette::LinkVisited}) {
    if (Kontrast(farbe(verweis), farbe(QPalette::Base)) < Textkontrast)
      palette.setColor(verweis, HellerVerweis);
  }
  QApplication::setPalette(palette);
}

/// Beside fields that are bright by what their colour means there are no dark ones, nor dark boxes for a
/// tick.
void EingabenHell() {
  QPalette palette = QApplication::palette();
  if (Leuchtdichte(palette.color(QPalette::Base)) > Leuchtdichte(palette.color(QPalette::Text))) return;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::PlaceholderText, Qt::darkGray);
  for (const char* art : {"QLineEdit", "QCheckBox", "QRadioButton"}) QApplication::setPalette(palette, art);
}

/// Draws the frame above the control, with room for it outside.
class Rahmenstil : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hinweis, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* antwort) const override {
    if (hinweis == SH_FocusFrame_AboveWidget) return 1;
    return QProxyStyle::styleHint(hinweis, option, widget, antwort);
  }
  int pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const override {
    if (mass == PM_FocusFrameHMargin || mass == PM_FocusFrameVMargin) return Rahmenbreite;
    return QProxyStyle::pixelMetric(mass, option, widget);
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* maler,
                   const QWidget* widget) const override {
    if (element != CE_FocusFrame) return QProxyStyle::drawControl(element, option, maler, widget);
    const QPalette palette =
        QApplication::palette();  // not of the control, which may have colours of its own
    const bool deutlich =
        Kontrast(palette.color(QPalette::Highlight), palette.color(QPalette::Window)) >= Markenkontrast;
    const qreal halb = Rahmenbreite / 2.0;
    maler->setPen(QPen(palette.color(deutlich ? QPalette::Highlight : QPalette::WindowText), Rahmenbreite));
    maler->drawRect(QRectF(option->rect).adjusted(halb, halb, -halb, -halb));
  }
};

/// Boxes of a list no higher than its lines, with a frame that is seen on a dark ground, too.
class Kaestchenstil : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric mass, const QStyleOption* option, const QWidget* widget) const override {
    const int wert = QProxyStyle::pixelMetric(mass, option, widget);
    const bool kasten = mass == PM_IndicatorWidth || mass == PM_IndicatorHeight;
    return kasten && widget != nullptr ? std::min(wert, widget->fontMetrics().height() - 1) : wert;
  }
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                     const QWidget* widget) const override {
    const auto* eintrag = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element != PE_IndicatorItemViewItemCheck || eintrag == nullptr) {
      return QProxyStyle::drawPrimitive(element, option, maler, widget);
    }
    QStyleOptionViewItem deutlich = *eintrag;
    // The frame is made of this colour, darkened.
    deutlich.palette.setColor(QPalette::Window, QApplication::palette().color(QPalette::Text));
    QProxyStyle::drawPrimitive(element, &deutlich, maler, widget);
  }
};

}  // namespace

void KaestchenDeutlich(QAbstractItemView& liste) {
  auto* stil = new Kaestchenstil(QApplication::style()->name());
  stil->setParent(&liste);
  liste.setStyle(stil);
}

Lesbarkeit::Lesbarkeit() {
  TexteLesbar();
  EingabenHell();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* jetzt) { Umrahmen(jetzt); });
}

Lesbarkeit::~Lesbarkeit() {
  delete rahmen_;
}

void Lesbarkeit::Umrahmen(QWidget* control) {
  // Menus mark the entry themselves; a list of a box is a window of its own.
  const bool eigen = control == nullptr || control->isWindow() || qobject_cast<QMenuBar*>(control) != nullptr;
  if (!rahmen_) {
    if (eigen) return;
    rahmen_ = new QFocusFrame;
    auto* stil = new Rahmenstil(QApplication::style()->name());
    stil->setParent(rahmen_);
    rahmen_->setStyle(stil);
  }
  rahmen_->setWidget(eigen ? nullptr : control);
}

}  // namespace vesk
