#include "ui/basis/Menue.h"

#include <QAction>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSet>
#include <QStyleOptionMenuItem>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Key of the letter behind "&"; 0: none.
int Zugriffstaste(const QString& text) {
  const QKeySequence folge = QKeySequence::mnemonic(text);
  return folge.isEmpty() ? 0 : int{folge[0].key()};
}

int Buchstabentaste(QChar zeichen) {
  return zeichen.toUpper().unicode();
}

void GrundZeigen(const QAction& eintrag, const QPoint& stelle) {
  if (!eintrag.isEnabled()) QToolTip::showText(stelle, eintrag.toolTip());
}

}  // namespace

Fenstermenue::Fenstermenue(const QString& titel, QWidget* eltern) : QMenu(titel, eltern) {
  setToolTipsVisible(true);
  connect(this, &QMenu::hovered, this, [this](const QAction* eintrag) {
    GrundZeigen(*eintrag, mapToGlobal(actionGeometry(const_cast<QAction*>(eintrag)).bottomLeft()));
  });
}

QString Fenstermenue::Gezeigt(const QAction& eintrag) const {
  QString text = eintrag.text();
  const int taste = Zugriffstaste(text);
  QSet<int> vergeben;
  bool doppelt = false;
  const QList<QAction*> alle = actions();
  const qsizetype stelle = alle.indexOf(&eintrag);
  for (qsizetype i = 0; i < alle.size(); ++i) {
    const int andere = alle[i]->isVisible() ? Zugriffstaste(alle[i]->text()) : 0;
    vergeben.insert(andere);
    doppelt = doppelt || (i < stelle && taste != 0 && andere == taste);
  }
  if (!doppelt) return text;
  QString frei = text;
  frei.remove(u'&');
  for (qsizetype i = 0; i < frei.size(); ++i) {
    if (frei[i].isLetter() && !vergeben.contains(Buchstabentaste(frei[i]))) return frei.insert(i, u'&');
  }
  return frei;
}

void Fenstermenue::initStyleOption(QStyleOptionMenuItem* option, const QAction* aktion) const {
  QMenu::initStyleOption(option, aktion);
  // The keys of the entry follow its text.
  if (option->text.startsWith(aktion->text()))
    option->text.replace(0, aktion->text().size(), Gezeigt(*aktion));
}

void Fenstermenue::keyPressEvent(QKeyEvent* ereignis) {
  const bool buchstabe = ereignis->text().size() == 1 && (ereignis->modifiers() & Qt::ControlModifier) == 0;
  const QList<QAction*> alle = actions();
  for (QAction* eintrag : alle) {
    if (!buchstabe || !eintrag->isVisible()) continue;
    if (Zugriffstaste(Gezeigt(*eintrag)) != Buchstabentaste(ereignis->text().at(0))) continue;
    setActiveAction(eintrag);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    return QMenu::keyPressEvent(&enter);
  }
  QMenu::keyPressEvent(ereignis);
}

bool Fenstermenue::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::ToolTip) {
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    const auto* leiste = static_cast<QMenuBar*>(objekt);
    if (leiste->actionAt(hilfe->pos()) == menuAction()) GrundZeigen(*menuAction(), hilfe->globalPos());
  }
  return false;
}

void EintraegeAnlegen(QMenu& menue, std::span<const Menueeintrag> eintraege, Ablauf& ablauf) {
  for (const Menueeintrag& eintrag : eintraege) {
    QAction* aktion = menue.addAction(eintrag.beschriftung.toString());
    aktion->setObjectName(eintrag.name.toString());
    aktion->setCheckable(eintrag.schalter);
    aktion->setSeparator(eintrag.tun == nullptr && eintrag.gesperrt.isEmpty());
    aktion->setEnabled(eintrag.gesperrt.isEmpty());
    aktion->setShortcut(QKeySequence(eintrag.taste.toString()));
    aktion->setShortcutContext(Qt::WidgetShortcut);
    aktion->setToolTip(eintrag.gesperrt.toString());
    if (eintrag.tun != nullptr) {
      QObject::connect(aktion, &QAction::triggered, &menue, [&ablauf, tun = eintrag.tun] { tun(ablauf); });
    }
  }
}

Fenstermenue& MenueAnlegen(QMenuBar& leiste, const QString& name, const QString& titel,
                           std::span<const Menueeintrag> eintraege, Ablauf& ablauf) {
  auto* menue = new Fenstermenue(titel, &leiste);
  menue->setObjectName(name);
  menue->menuAction()->setObjectName(name);
  leiste.addMenu(menue);
  leiste.installEventFilter(menue);
  EintraegeAnlegen(*menue, eintraege, ablauf);
  return *menue;
}

}  // namespace vesk
