#include "fuzz/affe/Affe.h"

#include <QTest>
#include <QtWidgets>

#include "fuzz/affe/Skript.h"

using namespace Qt::StringLiterals;

namespace vesk::affe {

namespace {

const QStringList Zahlen = {u"14,2"_s, u"145"_s,  u"435"_s, u"100"_s,  u"5"_s,    u"-3"_s,
                            u"0"_s,    u"0.05"_s, u"1e9"_s, u"1e38"_s, u"1e-9"_s, QString(45, u'9')};
// What comes from the clipboard or an input method, past every key filter.
const QStringList Texte = {u"DL1ABC"_s,    u"<b>x</b>&amp;\""_s, u"Ω\u202eoha😀"_s,
                           u"a\tb\nc\r"_s, u"%1%n%s"_s,          QString(300, u'W'),
                           u"nan"_s,       u"../../x"_s,         u"#TRUE#,\"1\""_s};
const QList<Qt::Key> Tasten = {Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Up,
                               Qt::Key_Down,   Qt::Key_Left,      Qt::Key_Space,  Qt::Key_Escape,
                               Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1,     Qt::Key_F5,
                               Qt::Key_Home,   Qt::Key_PageDown,  Qt::Key_Insert, Qt::Key_F2};
const QList<Qt::Key> Griffe = {Qt::Key_Z,      Qt::Key_Y, Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X,
                               Qt::Key_B,      Qt::Key_D, Qt::Key_N, Qt::Key_O, Qt::Key_S, Qt::Key_P,
                               Qt::Key_Return, Qt::Key_1, Qt::Key_2, Qt::Key_7, Qt::Key_L, Qt::Key_0};

QString Name(const QWidget* control) {
  return control->window()->objectName() + u'.' + control->objectName();
}

QPoint Stelle(Zufall& zufall, const QWidget* ziel) {
  return {static_cast<int>(zufall(static_cast<std::size_t>(std::max(1, ziel->width())))),
          static_cast<int>(zufall(static_cast<std::size_t>(std::max(1, ziel->height()))))};
}

/// Menu entries and the buttons' own actions that the user could choose now.
QList<QAction*> Eintraege(const QWidget* fenster) {
  QList<QAction*> eintraege;
  for (QAction* eintrag : fenster->findChildren<QAction*>()) {
    if (eintrag->isEnabled() && eintrag->isVisible() && !eintrag->objectName().isEmpty())
      eintraege << eintrag;
  }
  return eintraege;
}

}  // namespace

Affe::Affe(Zufall& zufall, Ordner& ordner) : zufall_(zufall), ordner_(ordner) {
  QObject::connect(&takt_, &QTimer::timeout, &takt_, [this] { Wegklicken(); });
  takt_.start(20);
}

void Affe::Wegklicken() {
  if (QWidget* menue = QApplication::activePopupWidget()) {
    QTest::keyClick(menue, zufall_.Aus(QList{Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape}));
  }
}

QWidgetList Affe::Fensterliste() {
  if (QWidget* modal = QApplication::activeModalWidget()) return {modal};
  QWidgetList fenster;
  for (QWidget* oben : QApplication::topLevelWidgets()) {
    if (oben->isVisible() && oben->objectName().startsWith(u"frm"_s)) fenster << oben;
  }
  std::sort(fenster.begin(), fenster.end(),
            [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
  return fenster;
}

void Affe::Maus(QWidget* ziel) {
  const QPoint stelle = Stelle(zufall_, ziel);
  const Qt::MouseButton taste = zufall_.Einmal(8) ? Qt::RightButton : Qt::LeftButton;
  const std::size_t art = zufall_(10);
  Schreiben(u"Maus %1 %2 %3,%4 %5"_s.arg(Name(ziel)).arg(taste).arg(stelle.x()).arg(stelle.y()).arg(art));
  if (art == 0) {
    QTest::mouseDClick(ziel, taste, {}, stelle);
  } else if (art == 1) {  // let go elsewhere
    QTest::mousePress(ziel, taste, {}, stelle);
    QTest::mouseMove(ziel, stelle + QPoint(60, 20));
    QTest::mouseRelease(ziel, taste, {}, stelle + QPoint(60, 20));
  } else if (art == 2) {
    QWheelEvent rad(stelle, ziel->mapToGlobal(stelle), {}, {0, zufall_.Einmal(2) ? 240 : -240}, Qt::NoButton,
                    {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(ziel, &rad);
  } else {
    QTest::mouseClick(ziel, taste, {}, stelle);
  }
}

void Affe::Tippen(QWidget* ziel) {
  QWidget* vorher = QApplication::focusWidget();
  ziel->setFocus(Qt::TabFocusReason);
  QPointer<QWidget> fokus = QApplication::focusWidget();
  if (fokus.isNull()) return;
  const bool fremd = zufall_.Einmal(4);
  const QString text = zufall_.Aus(fremd ? Texte : Zahlen);
  Schreiben(
      u"Tippen %1%2 \"%3\""_s.arg(Name(fokus), vorher == fokus ? QString() : u" (neu)"_s, text.left(60)));
  if (fremd) {
    QInputMethodEvent eingabe;
    eingabe.setCommitString(text);
    QApplication::sendEvent(fokus, &eingabe);
    return;
  }
  for (const QChar zeichen : text) {
    if (!fokus.isNull()) QTest::keyClick(fokus, zeichen.toLatin1());
  }
}

void Affe::Taste() {
  QWidget* fokus = QApplication::focusWidget();
  if (fokus == nullptr) return;
  const bool griff = zufall_.Einmal(4);
  const Qt::Key taste = zufall_.Aus(griff ? Griffe : Tasten);
  Qt::KeyboardModifiers zusatz = griff ? Qt::ControlModifier : Qt::NoModifier;
  if (zufall_.Einmal(10)) zusatz |= Qt::ShiftModifier;
  Schreiben(u"Taste %1 %2"_s.arg(Name(fokus), QKeySequence(zusatz | taste).toString()));
  QTest::keyClick(fokus, taste, zusatz);
}

void Affe::Menue(QWidget* fenster) {
  const QList<QAction*> eintraege = Eintraege(fenster);
  if (eintraege.isEmpty() || QApplication::activeModalWidget() != nullptr) return;
  QAction* eintrag = zufall_.Aus(eintraege);
  // To the end of the program leads the frame.
  if (eintrag->menu() != nullptr || eintrag->objectName() == u"mnuEnde"_s) return;
  Schreiben(u"Menü %1.%2"_s.arg(fenster->objectName(), eintrag->objectName()));
  eintrag->trigger();
}

void Affe::Werfen(QWidget* fenster) {
  const QString datei = ordner_.Datei(zufall_.Aus(QStringList{u"dat"_s, u"ang"_s, u"txt"_s}));
  Schreiben(u"Abwurf %1 %2"_s.arg(fenster->objectName(), datei.section(u'/', -2)));
  QMimeData daten;
  daten.setUrls({QUrl::fromLocalFile(datei)});
  QDropEvent wurf({5, 5}, Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(fenster, &wurf);
}

void Affe::Rechnen() {
  QWidget* haupt = nullptr;
  for (QWidget* fenster : Fensterliste()) {
    if (fenster->objectName() == u"frmVesk"_s) haupt = fenster;
  }
  if (haupt == nullptr) return;
  Schreiben(u"Rechnen"_s);
  for (const auto& [name, text] : {std::pair{u"txtQRG"_s, u"14.2"_s}, {u"txtPWR"_s, u"100"_s}}) {
    auto* feld = haupt->findChild<QLineEdit*>(name);
    feld->setFocus(Qt::TabFocusReason);
    feld->selectAll();
    QTest::keyClicks(feld, text);
  }
  QTest::mouseClick(haupt->findChild<QWidget*>(zufall_.Einmal(2) ? u"cmdBerechnen"_s : u"cmdCopy"_s),
                    Qt::LeftButton);
}

void Affe::Handeln() {
  const QWidgetList offene = Fensterliste();
  if (offene.isEmpty()) return;
  QWidget* fenster = zufall_.Aus(offene);
  fenster->activateWindow();
  QWidgetList controls;
  QWidgetList felder;
  for (QWidget* kind : fenster->findChildren<QWidget*>()) {
    const QString& name = kind->objectName();
    if (!kind->isVisible() || name.isEmpty() || name.startsWith(u"qt_"_s)) continue;
    controls << kind;
    if (qobject_cast<QLineEdit*>(kind) != nullptr) felder << kind;
  }
  if (controls.isEmpty()) return;
  switch (zufall_(12)) {
    case 0:
    case 1:
    case 2:
      Maus(zufall_.Aus(controls));
      break;
    case 3:
    case 4:
      Tippen(zufall_.Aus(felder.isEmpty() ? controls : felder));
      break;
    case 5:
    case 6:
      Taste();
      break;
    case 7:
      Menue(fenster);
      break;
    case 8:
      if (auto* reiter = fenster->findChild<QTabWidget*>()) {
        reiter->setCurrentIndex(static_cast<int>(zufall_(static_cast<std::size_t>(reiter->count()))));
      }
      break;
    case 9:
      if (zufall_.Einmal(4)) Werfen(fenster);
      break;
    case 10:
      if (fenster->objectName() != u"frmVesk"_s && zufall_.Einmal(4)) {
        Schreiben(u"Schließen "_s + fenster->objectName());
        fenster->close();
      }
      break;
    default:
      Rechnen();
  }
}

}  // namespace vesk::affe
