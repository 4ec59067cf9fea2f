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

QString Veraltet() {
  return u"Ergebnisse veraltet"_s;
}

/// Name of the field that the user types in; what he types he knows.
QString GetipptesFeld() {
  const auto* feld = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
  return feld != nullptr && !feld->isReadOnly() ? feld->accessibleName() : QString();
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

void Ansage::Zeigen(Ergebniswerte werte) {
  werte_ = std::move(werte);
  if (!isVisible()) gesagt_ = werte_;
  if (werte_ != gesagt_) Warten();
}

void Ansage::Vorlesen(std::size_t erster, std::size_t anzahl) {
  QStringList texte;
  bool veraltet = false;
  for (std::size_t i = erster; i < erster + anzahl; ++i) {
    if (werte_.at(i).text.empty()) continue;
    texte << QString::fromStdString(InWorten(werte_.at(i)));
    veraltet = veraltet || werte_.at(i).veraltet;
  }
  if (veraltet) texte << Veraltet();
  if (!texte.isEmpty()) Sagen(texte);
}

void Ansage::Warten() {
  constexpr int Andere = 20;  // ms: for the other windows
  sammeln_.start(isActiveWindow() ? Andere : 0);
}

void Ansage::Sammeln() {
  const Ergebniswerte vorher = std::exchange(gesagt_, werte_);
  const QString getippt = GetipptesFeld();
  QStringList texte;
  for (std::size_t i = 0; i < werte_.size(); ++i) {
    const Ergebniswert& wert = werte_[i];
    const bool wieZuvor = i < vorher.size() && vorher[i] == wert;
    if (wieZuvor || wert.text.empty() || QString::fromStdString(wert.name) == getippt) continue;
    texte << (wert.veraltet ? Veraltet() : QString::fromStdString(InWorten(wert)));
  }
  const QStringList fremde = std::exchange(fremde_, {});
  for (const QString& text : fremde) {
    const auto dasselbe = [&](const QString& eigener) { return eigener.endsWith(text); };
    if (std::none_of(texte.begin(), texte.end(), dasselbe)) texte << text;
  }
  texte.removeDuplicates();
  if (!texte.isEmpty()) Sagen(texte);
}

void Ansage::Sagen(const QStringList& texte) {
  if (const QWidget* aktiv = QApplication::activeWindow(); aktiv != nullptr && aktiv != window()) {
    const QList<Ansage*> dort = aktiv->findChildren<Ansage*>();
    for (Ansage* ansage : dort) {
      if (ansage->window() != aktiv || !ansage->isVisible()) continue;
      ansage->fremde_ << texte;
      return ansage->Warten();
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
