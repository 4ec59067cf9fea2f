#include "ui/plan/Planfeld.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <utility>

#include "station/Planbearbeitung.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"

using namespace Qt::StringLiterals;

namespace vesk {

QString Zahltext(double zahl) {
  return QString::fromStdString(Dezimaltext(zahl));
}

double Zahlwert(const QString& wert) {
  return Dezimalzahl(wert.toStdString()).value_or(0);
}

Deuter ZahlVon(double von, double bis, const QString& einheit) {
  return [=](const QString& text) -> Deutung {
    const auto zahl = Dezimalzahl(text.toStdString());
    if (zahl && *zahl >= von && *zahl <= bis) return {Zahltext(*zahl)};
    return {std::nullopt,
            u"Bitte eine Zahl von %1 bis %2 %3."_s.arg(Zahltext(von), Zahltext(bis), einheit).simplified()};
  };
}

Deuter Plantext() {
  return [](const QString& text) -> Deutung { return {text}; };
}

Deuter Geoort() {
  return [](const QString& text) -> Deutung {
    if (text.trimmed().isEmpty()) return {QString()};
    if (const auto punkt = GeoLesen(text.toStdString())) return {QString::fromStdString(Geotext(*punkt))};
    return {std::nullopt, u"Bitte Breite und Länge in Grad, zum Beispiel 50.7374; 7.0982."_s};
  };
}

Planfeld::Planfeld(Ablauf& ablauf, const QString& name, const QString& zugang, Deuter deuter, QWidget* eltern)
    : QLineEdit(eltern), ablauf_(ablauf), deuter_(std::move(deuter)) {
  setObjectName(name);
  setAccessibleName(zugang);
  setMaxLength(int{plangrenzen::Textlaenge});
  connect(this, &QLineEdit::textEdited, this, &Planfeld::Deuten);
}

bool Planfeld::Unklar() const {
  return !deuter_(text()).wert;
}

void Planfeld::Zeigen(const QString& wert) {
  if (wert == wert_ && hasFocus() && isModified()) return;
  wert_ = vorher_ = wert;
  Glaetten();
}

void Planfeld::Deuten(const QString& text) {
  const Deutung deutung = deuter_(text);
  if (deutung.wert) {
    ThemaFaerben(*this);
  } else {
    Faerben(*this, farben::Rot);
  }
  Q_EMIT beanstandet(deutung.grund);
  Gelten(deutung.wert.value_or(vorher_));
}

void Planfeld::Gelten(const QString& wert) {
  if (wert == wert_) return;
  wert_ = wert;
  Q_EMIT eingegeben(wert);
}

void Planfeld::Glaetten() {
  if (text() != wert_) setText(wert_);
  setModified(false);
  ThemaFaerben(*this);
}

void Planfeld::focusInEvent(QFocusEvent* ereignis) {
  QLineEdit::focusInEvent(ereignis);
  if (!isModified()) vorher_ = wert_;
}

void Planfeld::focusOutEvent(QFocusEvent* ereignis) {
  QLineEdit::focusOutEvent(ereignis);
  const Qt::FocusReason grund = ereignis->reason();
  if (grund == Qt::PopupFocusReason || grund == Qt::ActiveWindowFocusReason) return;
  const bool unklar = Unklar();
  const QString getippt = text();
  Glaetten();
  if (unklar) {
    Q_EMIT beanstandet(u"„%1“ ist hier nicht möglich. Es bleibt bei: %2"_s.arg(getippt.left(40), wert_));
  }
  ablauf_.TunBeimVerlassen([](Station&, const Kataloge&) { return Meldungen{}; });
}

void Planfeld::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() != Qt::Key_Escape || !isModified()) return QLineEdit::keyPressEvent(ereignis);
  Gelten(vorher_);
  Glaetten();
  Q_EMIT beanstandet({});
}

}  // namespace vesk
