#include "ui/basis/Zugang.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr const char* Rolleneigenschaft = "Zugangsrolle";

class Zugang : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text art) const override {
    const QString text = QAccessibleWidget::text(art);
    return art == QAccessible::Name && text.isEmpty() ? widget()->property("text").toString() : text;
  }
  QStringList actionNames() const override {
    if (role() != QAccessible::Button) return QAccessibleWidget::actionNames();
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    QKeyEvent leertaste(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s);
    QCoreApplication::sendEvent(widget(), &leertaste);
  }
};

QAccessibleInterface* ZugangZu(const QString& /*klasse*/, QObject* objekt) {
  const QVariant rolle = objekt != nullptr ? objekt->property(Rolleneigenschaft) : QVariant();
  if (!rolle.isValid()) return nullptr;
  return new Zugang(static_cast<QWidget*>(objekt), static_cast<QAccessible::Role>(rolle.toInt()));
}

struct Einheit {
  QStringView zeichen;
  QStringView wort;
};
constexpr Einheit Einheiten[] = {
    {u" [m]", u" Meter"}, {u" [W]", u" Watt"}, {u" [V/m]", u" Volt je Meter"},
    {u" [V]", u" Volt"},  {u" [dB]", u" dB"},
};

QString InWorten(const QLineEdit& feld) {
  const QString name = feld.accessibleName();
  for (const Einheit& einheit : Einheiten) {
    if (name.endsWith(einheit.zeichen))
      return name.chopped(einheit.zeichen.size()) + u' ' + feld.text() + einheit.wort.toString();
  }
  return name + u' ' + feld.text();
}

}  // namespace

void ZugangsrolleSetzen(QWidget& control, QAccessible::Role rolle) {
  QAccessible::installFactory(ZugangZu);
  control.setProperty(Rolleneigenschaft, static_cast<int>(rolle));
}

Ansage::Ansage(QWidget* fenster) : QWidget(fenster) {
  setObjectName(u"lblAnsage"_s);
  ZugangsrolleSetzen(*this, QAccessible::Notification);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(1, 1);
  sammeln_.setSingleShot(true);
  connect(&sammeln_, &QTimer::timeout, this, &Ansage::Sammeln);
}

void Ansage::Beobachten(QLineEdit& feld) {
  const auto schon = [&](const Beobachtet& beobachtet) { return beobachtet.feld == &feld; };
  if (std::any_of(felder_.begin(), felder_.end(), schon)) return;
  felder_.push_back({&feld});
  feld.installEventFilter(this);
  connect(&feld, &QLineEdit::textChanged, this, [this, &feld] { Melden(&feld); });
}

void Ansage::Vorlesen(QWidget& feld, const QList<const QLineEdit*>& ergebnisse) {
  daneben_.insert(&feld, ergebnisse);
  feld.installEventFilter(this);
}

bool Ansage::eventFilter(QObject* objekt, QEvent* ereignis) {
  // Fields say by a property that they are out of date.
  if (ereignis->type() == QEvent::DynamicPropertyChange) Melden(objekt);
  if (ereignis->type() != QEvent::FocusIn) return false;
  QStringList texte;
  const QList<const QLineEdit*> ergebnisse = daneben_.value(objekt);
  for (const QLineEdit* feld : ergebnisse) {
    if (!feld->text().isEmpty()) texte << InWorten(*feld);
  }
  if (!texte.isEmpty()) Sagen(texte);
  return false;
}

void Ansage::Melden(const QObject* feld) {
  for (Beobachtet& beobachtet : felder_) {
    const bool tippt = beobachtet.feld->hasFocus() && !beobachtet.feld->isReadOnly();
    if (beobachtet.feld == feld && !tippt) beobachtet.neu = true;
  }
  constexpr int Warten = 20;  // ms: for the other windows
  sammeln_.start(isActiveWindow() ? Warten : 0);
}

void Ansage::Sammeln() {
  QStringList texte;
  bool veraltet = false;
  for (Beobachtet& beobachtet : felder_) {
    const QLineEdit& feld = *beobachtet.feld;
    if (!std::exchange(beobachtet.neu, false) || !feld.isVisible() || feld.text().isEmpty()) continue;
    texte << InWorten(feld);
    veraltet = veraltet || feld.property("Veraltet").toBool();
  }
  if (veraltet) texte = {u"Ergebnisse veraltet"_s};
  const QStringList fremde = std::exchange(fremde_, {});
  for (const QString& text : fremde) {
    const auto dasselbe = [&](const QString& eigener) { return eigener.endsWith(text); };
    if (std::none_of(texte.begin(), texte.end(), dasselbe)) texte << text;
  }
  if (!texte.isEmpty()) Sagen(texte);
}

void Ansage::Sagen(const QStringList& texte) {
  if (const QWidget* aktiv = QApplication::activeWindow(); aktiv != nullptr && aktiv != window()) {
    const QList<Ansage*> dort = aktiv->findChildren<Ansage*>();
    for (Ansage* ansage : dort) {
      if (ansage->window() != aktiv || !ansage->isVisible()) continue;
      ansage->fremde_ << texte;
      return ansage->Melden(nullptr);
    }
  }
  constexpr qsizetype Hoechstens = 8;
  QString text = texte.first(std::min(texte.size(), Hoechstens)).join(u", "_s);
  if (texte.size() > Hoechstens) text += u" und %1 weitere"_s.arg(texte.size() - Hoechstens);
  setAccessibleName(text);
  // One of them is what the desktop's reader listens to.
  for (const QAccessible::Event art : {QAccessible::Alert, QAccessible::ObjectShow}) {
    QAccessibleEvent ereignis(this, art);
    QAccessible::updateAccessibility(&ereignis);
  }
}

}  // namespace vesk
