#include "ui/basis/Menue.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QSet>
#include <QStyleOptionMenuItem>
#include <QTimer>
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
  QToolTip::showText(stelle, eintrag.isEnabled() ? QString() : eintrag.toolTip());
}

/// Keys reach entries that are disabled, too, and the one reached bears a frame.
class Menuestil : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hinweis, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* antwort) const override {
    if (hinweis == SH_Menu_AllowActiveAndDisabled) return 1;
    return QProxyStyle::styleHint(hinweis, option, widget, antwort);
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* maler,
                   const QWidget* widget) const override {
    QProxyStyle::drawControl(element, option, maler, widget);
    if (element != CE_MenuItem || (option->state & (State_Selected | State_Enabled)) != State_Selected)
      return;
    maler->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
    maler->drawRect(option->rect.adjusted(0, 0, -1, -1));
  }
};

/// One for all menus, which the application owns.
QStyle* Gemeinsam() {
  const QString name = u"Menuestil"_s;
  auto* stil = qApp->findChild<QProxyStyle*>(name, Qt::FindDirectChildrenOnly);
  if (stil == nullptr) {
    stil = new Menuestil(QApplication::style()->name());
    stil->setObjectName(name);
    stil->setParent(qApp);
  }
  return stil;
}

}  // namespace

Fenstermenue::Fenstermenue(const QString& titel, QWidget* eltern) : QMenu(titel, eltern) {
  setToolTipsVisible(true);
  setStyle(Gemeinsam());
  // Queued, because the first entry is reached before the menu is on the screen.
  connect(this, &QMenu::hovered, this, &Fenstermenue::Begruenden, Qt::QueuedConnection);
}

void Fenstermenue::showEvent(QShowEvent* ereignis) {
  QMenu::showEvent(ereignis);
  // A change of focus when the menu opens closes the tooltip of its first entry.
  constexpr int Fokuswechsel = 100;  // ms
  QTimer::singleShot(Fokuswechsel, this, [this] {
    if (isVisible()) Begruenden();
  });
}

/// Beside the entry: a tooltip is shown below the place that it is said to be of.
void Fenstermenue::Begruenden() {
  if (activeAction() == nullptr) return;
  const QRect platz = actionGeometry(activeAction());
  GrundZeigen(*activeAction(), mapToGlobal(platz.topRight() - QPoint(0, platz.height())));
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
    Begruenden();
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
