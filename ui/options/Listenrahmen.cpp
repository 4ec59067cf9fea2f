#include "ui/options/Listenrahmen.h"

#include <QListWidget>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace vesk {

void Listenrahmen::paintEvent(QPaintEvent* /*ereignis*/) {
  QStylePainter maler(this);
  QStyleOptionGroupBox bild;
  initStyleOption(&bild);
  const QRect zeile = style()->subControlRect(QStyle::CC_GroupBox, &bild, QStyle::SC_GroupBoxLabel, this);
  bild.subControls &= ~QStyle::SC_GroupBoxLabel;
  maler.drawComplexControl(QStyle::CC_GroupBox, bild);

  const QStringList worte = title().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  qsizetype naechstes = 0;
  for (const auto& [liste, zeichen] : stellen_) {
    const QString wort = worte.value(naechstes++);
    const QFontMetrics mass = liste->fontMetrics();
    // The text of an item begins behind the frame of the list and the mark of the focus.
    const int rand = liste->frameWidth() + liste->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const int links = liste->x() + rand + zeichen * mass.horizontalAdvance(QLatin1Char('0'));
    maler.setFont(liste->font());
    maler.drawText(QRect(links, zeile.y(), mass.horizontalAdvance(wort), zeile.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, wort);
  }
}

}  // namespace vesk
