#include "ui/preview/Seitenliste.h"

#include <QScrollBar>
#include <algorithm>

#include "ui/basis/Einpassen.h"
#include "ui/preview/Seitenblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double JeMillimeter = 0.026;  // of the height of a line
constexpr int Textzeilen = 3;           // below a picture

double Langseite(Blattformat format) {
  const QSizeF blatt = Blattgroesse(format);
  return std::max(blatt.width(), blatt.height());
}

/// The document that a page begins with, or that it belongs to.
QString Beschriftung(const Mappe& mappe, std::size_t seite) {
  std::size_t erste = 0;
  for (const Dokument& dokument : mappe.dokumente) {
    if (seite < erste + dokument.seiten.size()) return dokument.titel;
    erste += dokument.seiten.size();
  }
  return {};
}

}  // namespace

Seitenliste::Seitenliste(QWidget* eltern) : QListWidget(eltern) {
  setObjectName(u"lstSeiten"_s);
  setAccessibleName(u"Seiten"_s);
  setViewMode(QListView::IconMode);
  setFlow(QListView::TopToBottom);
  setWrapping(false);
  setMovement(QListView::Static);
  setWordWrap(true);
  setSpacing(4);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  MitSchrift(*this, [this] {
    const int breite = static_cast<int>(Langseite(Blattformat::Quer) * Massstab(Blattformat::Quer));
    setIconSize({breite, breite});
    setFixedWidth(Eintragsbreite() + 2 * (spacing() + frameWidth()) +
                  verticalScrollBar()->sizeHint().width());
  });
  takt_.setInterval(0);
  connect(&takt_, &QTimer::timeout, this, &Seitenliste::NaechsteMalen);
}

int Seitenliste::Eintragsbreite() const {
  return iconSize().width() + 2 * fontMetrics().height();
}

double Seitenliste::Massstab(Blattformat format) const {
  return JeMillimeter * fontMetrics().height() * Langseite(Blattformat::Hoch) / Langseite(format);
}

void Seitenliste::Zeigen(const Mappe& mappe) {
  mappe_ = &mappe;
  const int zahl = static_cast<int>(Seitenzahl(mappe));
  while (count() > zahl) delete takeItem(count() - 1);
  for (int i = 0; i < zahl; ++i) {
    const QString text = u"%1 · %2"_s.arg(i + 1).arg(Beschriftung(mappe, static_cast<std::size_t>(i)));
    if (i == count()) addItem(text);
    item(i)->setText(text);
    const Blattformat format = Seitenformat(mappe, static_cast<std::size_t>(i));
    const double hoehe = Blattgroesse(format).height() * Massstab(format);
    item(i)->setSizeHint(
        {Eintragsbreite(), static_cast<int>(hoehe) + Textzeilen * fontMetrics().lineSpacing()});
  }
  naechste_ = 0;
  takt_.start();
}

void Seitenliste::NaechsteMalen() {
  if (naechste_ >= count()) return takt_.stop();
  const auto seite = static_cast<std::size_t>(naechste_);
  const QImage bild = Seitenbild(*mappe_, seite, Massstab(Seitenformat(*mappe_, seite)), devicePixelRatioF());
  item(naechste_++)->setIcon(QPixmap::fromImage(bild));
}

}  // namespace vesk
