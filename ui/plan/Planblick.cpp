#include "ui/plan/Planblick.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/basis/Zugang.h"
#include "ui/plan/Planansicht.h"
#include "ui/plan/Planfarben.h"
#include "ui/plan/Plangriffe.h"

using namespace Qt::StringLiterals;

namespace vesk {

Planblick::Planblick(Ablauf& ablauf, QWidget* eltern)
    : QWidget(eltern), ablauf_(ablauf), txtMass(new QLineEdit(this)) {
  ZugangsrolleSetzen(*this, QAccessible::Graphic);
  setObjectName(u"picPlan"_s);
  setAccessibleName(u"Lageplan"_s);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  txtMass->setObjectName(u"txtMass"_s);
  txtMass->setAccessibleName(u"Länge der Kante in Metern, nach einem Semikolon ihre Richtung"_s);
  txtMass->setMaxLength(20);
  txtMass->setAttribute(Qt::WA_TransparentForMouseEvents);  // it must not stop what is being drawn below it
  txtMass->hide();
  qApp->installEventFilter(this);  // before the keys that hold in all windows
}

QSize Planblick::sizeHint() const {
  return {80 * fontMetrics().averageCharWidth(), 24 * fontMetrics().height()};
}

QSize Planblick::minimumSizeHint() const {
  return {24 * fontMetrics().averageCharWidth(), 8 * fontMetrics().height()};
}

double Planblick::JeMillimeter() const {
  return Bildschirmmass(*this);
}

double Planblick::Fangweite() const {
  constexpr double Weite = 2.5;  // mm
  return Weite * abbildung_.jeMillimeter / abbildung_.jeMeter;
}

void Planblick::Zeigen(const Station& s) {
  if (s.lageplan != station_.lageplan) zug_.reset();
  station_ = s;
  if (!zug_) BildZeigen(PlanbildVon(s));
}

void Planblick::BildZeigen(Planbild bild) {
  if (bild == bild_) return;
  const bool leer = bild_.plan.objekte.empty();
  bild_ = std::move(bild);
  BildtextSetzen();
  gemalt_ = {};
  update();
  const QRectF rahmen = Planrahmen(bild_, hintergrund_.deviceIndependentSize());
  const Punkt oben = abbildung_.Von(QPointF(0, 0));
  const Punkt unten = abbildung_.Von(QPointF(width(), height()));
  const QRectF sicht(QPointF(oben.x, unten.y), QPointF(unten.x, oben.y));
  // Another user's plot may lie anywhere.
  const bool fort = !rahmen.intersects(sicht) || (leer && !sicht.contains(rahmen));
  constexpr double Winzig = 2.5;
  const bool winzig = sicht.width() > Winzig * rahmen.width() && sicht.height() > Winzig * rahmen.height();
  const bool hinaus = !sicht.contains(Planausdehnung(bild_));
  if (fort || (eingepasst_ && !zug_ && (hinaus || winzig))) AllesZeigen();
}

void Planblick::BildtextSetzen() {
  QStringList texte{bild_.plan.objekte.size() == 1 ? u"1 Objekt"_s
                                                   : u"%1 Objekte"_s.arg(bild_.plan.objekte.size())};
  for (const Bildzone& zone : bild_.zonen) {
    const QString art = QString::fromUtf8(Zonenname(zone.art));
    texte << (zone.antenne
                  ? u"%1 %2: %3 m"_s.arg(QString::fromStdString(Objektname(bild_.plan, *zone.antenne)), art,
                                         QString::number(zone.abstand, 'f', 2))
                  : u"Alle Antennen zusammen, %1"_s.arg(art)) +
                 (zone.veraltet ? u" (veraltet)"_s : QString());
  }
  setAccessibleDescription(texte.join(u", "_s));
}

void Planblick::HintergrundZeigen(const QImage& bild) {
  hintergrund_ = bild;
  gemalt_ = {};
  update();
  if (eingepasst_) AllesZeigen();
}

void Planblick::SchichtenZeigen(const Planschichten& schichten) {
  schichten_ = schichten;
  gemalt_ = {};
  update();
}

void Planblick::WahlZeigen(const std::optional<Planstelle>& wahl) {
  if (wahl == wahl_) return;
  wahl_ = wahl;
  update();
}

void Planblick::Abbilden(const Planabbildung& abbildung) {
  abbildung_ = abbildung;
  abbildung_.jeMillimeter = JeMillimeter();
  gemalt_ = {};
  MassfeldZeigen();
  update();
}

void Planblick::AllesZeigen() {
  eingepasst_ = true;
  const QRectF rahmen = Planrahmen(bild_, hintergrund_.deviceIndependentSize());
  Abbilden(Eingepasst(rahmen, size(), JeMillimeter()));
}

void Planblick::Vergroessern(double faktor) {
  eingepasst_ = false;
  Abbilden(Vergroessert(abbildung_, faktor, QPointF(width(), height()) / 2));
}

void Planblick::Hinzeigen(Punkt ort) {
  const QPointF stelle = abbildung_.Nach(ort);
  if (rect().contains(stelle.toPoint())) return;
  eingepasst_ = false;
  Planabbildung neu = abbildung_;
  neu.ursprung += QPointF(width(), height()) / 2 - stelle;
  Abbilden(neu);
}

void Planblick::resizeEvent(QResizeEvent* ereignis) {
  QWidget::resizeEvent(ereignis);
  if (eingepasst_ || !ereignis->oldSize().isValid()) return AllesZeigen();
  const QSize wuchs = ereignis->size() - ereignis->oldSize();
  Planabbildung neu = abbildung_;
  neu.ursprung += QPointF(wuchs.width(), wuchs.height()) / 2;
  Abbilden(neu);
}

void Planblick::changeEvent(QEvent* ereignis) {
  QWidget::changeEvent(ereignis);
  if (ereignis->type() == QEvent::PaletteChange || ereignis->type() == QEvent::FontChange)
    Abbilden(abbildung_);
}

void Planblick::wheelEvent(QWheelEvent* ereignis) {
  constexpr double JeRaste = 1.2;
  constexpr double Raste = 120;
  eingepasst_ = false;
  Abbilden(
      Vergroessert(abbildung_, std::pow(JeRaste, ereignis->angleDelta().y() / Raste), ereignis->position()));
  ereignis->accept();
}

void Planblick::paintEvent(QPaintEvent* /*ereignis*/) {
  const Planfarben farben = PlanfarbenAus(palette());
  if (gemalt_.isNull()) {
    gemalt_ = QPixmap(size() * devicePixelRatioF());
    gemalt_.setDevicePixelRatio(devicePixelRatioF());
    gemalt_.fill(farben.grund);
    QPainter maler(&gemalt_);
    maler.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    maler.setFont(font());
    PlanMalen(maler, bild_, abbildung_, schichten_, farben, hintergrund_);
  }
  QPainter maler(this);
  maler.drawPixmap(0, 0, gemalt_);
  maler.setRenderHint(QPainter::Antialiasing);
  maler.setFont(font());
  const Grifffarben griffe{palette().color(QPalette::Highlight), farben.grund};
  BezugMalen(maler, abbildung_, bild_.plan.bezug, farben.schrift);
  if (wahl_ && wahl_->objekt < bild_.plan.objekte.size()) {
    WahlMalen(maler, abbildung_, bild_.plan, *wahl_, zug_ && zug_->bewegt, griffe);
  }
  if (Zeichnet()) StrichMalen(maler, abbildung_, bild_.plan, strich_.ecken, strich_.zeiger, griffe);
  if (bild_.plan.objekte.empty() && strich_.ecken.empty()) {
    maler.setPen(farben.schrift);
    maler.drawText(
        rect().adjusted(20, 20, -20, -20), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
        u"Der Plan ist leer. Nehmen Sie links ein Werkzeug, zum Beispiel „Grundstück“, und klicken "
        u"Sie hier die Ecken an; oder fügen Sie rechts ein Objekt hinzu und tragen Sie seine "
        u"Punkte ein."_s);
  }
  maler.setPen(palette().color(QPalette::Mid));
  maler.setBrush(Qt::NoBrush);
  maler.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Planblick::focusOutEvent(QFocusEvent* ereignis) {
  QWidget::focusOutEvent(ereignis);
  leertaste_ = false;
  unsetCursor();
}

}  // namespace vesk
