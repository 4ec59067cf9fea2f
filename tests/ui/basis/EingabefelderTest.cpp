#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "tests/Tabelle.h"
#include "tests/platform/Skript.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Textfeld.h"
#include "ui/basis/Zahlenfeld.h"

namespace vesk {
namespace {

using namespace Qt::StringLiterals;

void Eingeben(QLineEdit& feld, const std::string& weg, const QString& text) {
  if (weg == "einfuegen") {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&feld, Qt::Key_V, Qt::ControlModifier);
  } else if (weg == "methode") {
    QInputMethodEvent ereignis;
    ereignis.setCommitString(text);
    QApplication::sendEvent(&feld, &ereignis);
  } else {
    for (const char32_t zeichen : text.toUcs4()) {
      QKeyEvent taste(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&zeichen, 1));
      QApplication::sendEvent(&feld, &taste);
    }
  }
}

/// A field with this text, `|` its cursor or `[..]` its selection.
void Fuellen(QLineEdit& feld, const std::string& text) {
  QString rest = QString::fromStdString(text);
  feld.setText(rest.remove(u'[').remove(u']').remove(u'|'));
  if (text.starts_with('|')) feld.setCursorPosition(0);
  if (text.starts_with('[')) feld.selectAll();
}

TEST(Zahlenfeld, NimmtNurEineZahl) {
  for (const Tabellenzeile& zeile : Tabelle("ui/basis/Zahlenfeld.csv")) {
    skript::Ton ton;
    Zahlenfeld feld(ton);
    feld.VorzeichenErlauben(zeile["vorzeichen"] == "1");
    Fuellen(feld, zeile["vorher"]);
    Eingeben(feld, zeile["weg"], QString::fromStdString(zeile["eingabe"]));
    EXPECT_EQ(feld.text().toStdString(), zeile["nachher"]) << zeile.text;
    EXPECT_EQ(ton.anzahl, zeile.Zahl("piepser")) << zeile.text;
  }
}

TEST(Textfeld, NimmtWasInDieDateiPasst) {
  skript::Ton ton;
  Textfeld feld(ton);
  Eingeben(feld, "tippen", u"Köln \"5€\" \U0001F4FB"_s);
  EXPECT_EQ(feld.text(), u"Köln 5€ ");
  EXPECT_EQ(ton.anzahl, 3);
  Eingeben(feld, "einfuegen", u" eins\tzwei\nд"_s);
  EXPECT_EQ(feld.text(), u"Köln 5€ eins zwei ");
  EXPECT_EQ(ton.anzahl, 4);
}

struct Seite {
  Seite() {
    auto* spalte = new QVBoxLayout(&fenster);
    const std::vector<QWidget*> felder = {&eins, &zwei, &drei, &knopf};
    for (QWidget* feld : felder) spalte->addWidget(feld);
    new Feldfolge(felder, &fenster);
    fenster.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
    eins.setFocus();
  }
  skript::Ton ton;
  QWidget fenster;
  Zahlenfeld eins{ton}, zwei{ton}, drei{ton};
  QPushButton knopf;
};

TEST(Feldfolge, UebergehtGesperrteUndHoertNichtAufGehaltenes) {
  Seite s;
  s.zwei.setEnabled(false);
  s.drei.setText(u"12"_s);
  int gedrueckt = 0;
  QObject::connect(&s.knopf, &QPushButton::clicked, &s.fenster, [&] { ++gedrueckt; });
  const std::tuple<Qt::Key, bool, QWidget*> wege[] = {
      {Qt::Key_Up, false, &s.eins},   {Qt::Key_Return, true, &s.eins}, {Qt::Key_Return, false, &s.drei},
      {Qt::Key_Up, false, &s.eins},   {Qt::Key_Down, false, &s.drei},  {Qt::Key_Enter, false, &s.knopf},
      {Qt::Key_Enter, true, &s.knopf}};
  for (const auto& [taste, gehalten, ziel] : wege) {
    QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier, u"\r"_s, gehalten);
    QApplication::sendEvent(QApplication::focusWidget(), &ereignis);
    EXPECT_EQ(QApplication::focusWidget(), ziel);
    EXPECT_EQ(s.drei.selectedText(), ziel == &s.drei ? u"12"_s : QString());
  }
  EXPECT_EQ(gedrueckt, 0);
  QTest::keyClick(&s.knopf, Qt::Key_Enter);
  EXPECT_EQ(gedrueckt, 1);
  EXPECT_EQ(s.ton.anzahl, 0);
}

TEST(Filterfeld, VerlassenHeisstWoandersHingehen) {
  Seite s;
  int betreten = 0;
  int verlassen = 0;
  QObject::connect(&s.zwei, &Filterfeld::betreten, &s.fenster, [&] { ++betreten; });
  QObject::connect(&s.zwei, &Filterfeld::verlassen, &s.fenster, [&] { ++verlassen; });
  s.zwei.setFocus();
  {
    QMessageBox box(QMessageBox::Warning, {}, u"Ein Hinweis"_s, QMessageBox::Ok, &s.fenster);
    box.open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return box.isAncestorOf(QApplication::focusWidget()); }));
  }
  s.fenster.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return s.zwei.hasFocus(); }));
  EXPECT_EQ(verlassen, 0) << "eine Box ist kein Verlassen";
  EXPECT_EQ(betreten, 1);
  s.drei.setFocus();
  EXPECT_EQ(verlassen, 1);
}

}  // namespace
}  // namespace vesk
