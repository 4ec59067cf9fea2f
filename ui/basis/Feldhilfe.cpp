#include "ui/basis/Feldhilfe.h"

#include <QHelpEvent>
#include <QString>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

namespace vesk {

namespace {

/// An object name and, for an element of a control array, its array and index.
struct Controlname {
  explicit Controlname(const QString& name) : ganz(name) {
    const qsizetype strich = ganz.lastIndexOf(u'_');
    if (strich < 0) return;
    bool zahl = false;
    const int stelle = QStringView(ganz).mid(strich + 1).toInt(&zahl);
    if (!zahl) return;
    feld = QStringView(ganz).left(strich);
    index = stelle;
  }
  bool Heisst(QStringView name, int teiler, int rest) const {
    return name == ganz || (name == feld && index % teiler == rest);
  }

  QString ganz;
  QStringView feld;
  int index = 0;
};

constexpr const char* Grundeigenschaft = "Sperrgrund";
constexpr const char* Beschreibungseigenschaft = "Beschreibung";  // of the control while it can be used

class Grundzeiger : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override {
    const QString grund = objekt->property(Grundeigenschaft).toString();
    if (ereignis->type() != QEvent::ToolTip || grund.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), grund);
    return true;
  }
};

}  // namespace

void Sperren(QWidget& control, const QString& grund) {
  control.setEnabled(grund.isEmpty());
  const QVariant bisher = control.property(Grundeigenschaft);
  if (!bisher.isValid()) control.installEventFilter(new Grundzeiger(&control));
  if (bisher.isValid() && bisher.toString() == grund) return;
  if (bisher.toString().isEmpty())
    control.setProperty(Beschreibungseigenschaft, control.accessibleDescription());
  control.setProperty(Grundeigenschaft, grund);
  control.setAccessibleDescription(grund.isEmpty() ? control.property(Beschreibungseigenschaft).toString()
                                                   : grund);
}

void TooltipsSetzen(QWidget& fenster, std::span<const Feldhilfe> tabelle, bool an) {
  for (QWidget* kind : fenster.findChildren<QWidget*>()) {
    const Controlname name(kind->objectName());
    for (const Feldhilfe& zeile : tabelle) {
      if (!name.Heisst(zeile.name, zeile.teiler, zeile.rest)) continue;
      const QString text = zeile.text.toString();
      if (const QString tip = an ? text : QString(); kind->toolTip() != tip) kind->setToolTip(tip);
      const bool gesperrt = !kind->property(Grundeigenschaft).toString().isEmpty();
      if (!gesperrt && kind->accessibleDescription() != text) kind->setAccessibleDescription(text);
    }
  }
}

void HilfenummernSetzen(QWidget& fenster, std::span<const Hilfenummer> tabelle) {
  for (QWidget* kind : fenster.findChildren<QWidget*>()) {
    const Controlname name(kind->objectName());
    for (const Hilfenummer& zeile : tabelle) {
      if (name.Heisst(zeile.name, 1, 0)) kind->setProperty(HilfekontextEigenschaft, zeile.kontext);
    }
  }
}

}  // namespace vesk
