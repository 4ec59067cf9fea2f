#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>

#include "platform/QtPlattform.h"

namespace vesk {
namespace {

using namespace Qt::StringLiterals;

struct Taste {
  QEvent::Type art;
  int taste;
  bool wiederholt = false;
  quint64 zeit = 0;
};
using Tasten = std::vector<Taste>;
constexpr auto Druck = QEvent::KeyPress;
constexpr auto Los = QEvent::KeyRelease;

void Senden(const Tasten& tasten) {
  for (const Taste& taste : tasten) {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    QWidget* ziel = box->focusWidget() != nullptr ? box->focusWidget() : box;
    const QString text = taste.taste == Qt::Key_Space ? QStringLiteral(" ") : QString();
    QKeyEvent ereignis(taste.art, taste.taste, Qt::NoModifier, text, taste.wiederholt);
    ereignis.setTimestamp(taste.zeit);
    QApplication::sendEvent(ziel, &ereignis);
    QCoreApplication::processEvents();
  }
}

/// The answer to a box whose user first does `vorher`, which must answer nothing, and then presses `dann`.
Antwort Antworten(Antwort vorgabe, const std::function<void()>& vorher, const Tasten& dann) {
  QTimer::singleShot(0, qApp, [&] {
    vorher();
    QWidget* box = QApplication::activeModalWidget();
    EXPECT_TRUE(box != nullptr && box->isVisible()) << "beantwortet, ehe jemand eine Taste drückte";
    Senden(dann);
  });
  QTimer notbremse;
  QObject::connect(&notbremse, &QTimer::timeout, qApp, [] {
    ADD_FAILURE() << "eine neue Taste antwortet nicht";
    // A question refuses to be closed: any button ends it.
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->done(0);
  });
  notbremse.start(5000);
  const Knoepfe knoepfe = vorgabe == Antwort::OK ? Knoepfe::OK : Knoepfe::JaNein;
  return QtMeldungsboxen().Zeigen({"Vesk", "Ein Text", knoepfe, Symbol::Frage, vorgabe});
}

TEST(Boxen, NurEineNeueTasteAntwortet) {
  const Tasten gehalten = {{Druck, Qt::Key_Return, true},
                           {Druck, Qt::Key_Enter, true},
                           {Druck, Qt::Key_Space, true},
                           {Los, Qt::Key_Return},
                           {Los, Qt::Key_Space},
                           {Druck, Qt::Key_Escape, true},
                           {Los, Qt::Key_Return, false, 7},
                           {Druck, Qt::Key_Return, false, 7}};
  const Tasten enter = {{Druck, Qt::Key_Return}, {Los, Qt::Key_Return}};
  const Tasten leertaste = {{Druck, Qt::Key_Space}, {Los, Qt::Key_Space}};
  const Tasten escape = {{Druck, Qt::Key_Escape}, {Los, Qt::Key_Escape}};
  const Tasten anderer = {
      {Druck, Qt::Key_Tab}, {Los, Qt::Key_Tab}, {Druck, Qt::Key_Space}, {Los, Qt::Key_Space}};
  using enum Antwort;
  const std::tuple<Antwort, Tasten, Tasten, Antwort> faelle[] = {
      // default (OK: no question), what answers nothing, what answers, the answer
      {OK, gehalten, enter, OK},     {OK, gehalten, leertaste, OK}, {OK, gehalten, escape, OK},
      {Ja, gehalten, enter, Ja},     {Nein, gehalten, enter, Nein}, {Nein, gehalten, leertaste, Nein},
      {Nein, gehalten, anderer, Ja}, {Ja, escape, enter, Ja},
  };
  int nummer = 0;
  for (const auto& [vorgabe, vorher, dann, antwort] : faelle) {
    SCOPED_TRACE(nummer++);
    EXPECT_EQ(Antworten(
                  vorgabe, [&tasten = vorher] { Senden(tasten); }, dann),
              antwort);
  }
}

TEST(Boxen, RahmenSchliesstKeineFrage) {
  const auto schliessen = [] { QApplication::activeModalWidget()->close(); };
  EXPECT_EQ(Antworten(Antwort::Nein, schliessen, {{Druck, Qt::Key_Return}, {Los, Qt::Key_Return}}),
            Antwort::Nein);
}

TEST(Boxen, MehrereHintereinanderFuehrenZumSelbenFensterZurueck) {
  QWidget anderes;
  QWidget fenster;
  anderes.show();
  fenster.show();
  fenster.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
  QtMeldungsboxen boxen;
  for (int i = 0; i < 3; ++i) {
    QTimer::singleShot(0, qApp, [&] {
      QWidget* box = QApplication::activeModalWidget();
      EXPECT_EQ(box->parentWidget(), &fenster) << i;
      box->close();
      anderes.activateWindow();  // as a window manager may do
    });
    if (i == 1) {
      QtDateidialoge().Speichern({u"Speichern"_s, {}, {}, QDir::tempPath(), {}});
    } else {
      boxen.Zeigen({"Vesk", "Ein Text", Knoepfe::OK, Symbol::Ausrufezeichen, Antwort::OK});
    }
  }
  EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster, 1000));
}

}  // namespace
}  // namespace vesk
