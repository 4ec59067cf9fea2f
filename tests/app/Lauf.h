#pragma once
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "Finden.h"
#include "Programm.h"
#include "Skript.h"

namespace vesk {

using namespace Qt::StringLiterals;

/// One run of the program on a directory.
struct Lauf {
  explicit Lauf(const QString& verzeichnis, bool meldungen = false)
      : programm(zustand, buehne.plattform, {verzeichnis, {}}) {
    // The directory of the tests holds no catalogue; the window says so and goes on.
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
    programm.Starten();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&programm.Hauptfenster()));
    QAction& warnungen = programm.Hauptfenster().Aktion("mnuMeldungen");
    if (warnungen.isChecked() != meldungen) warnungen.trigger();
  }

  template <typename Fenster>
  QString Text(Fenster& fenster, const QString& name) {
    return Finden<QLineEdit>(fenster, name).text();
  }
  QString Zelle(int spalte, int zeile) {
    return Text(programm.Datenblatt(), u"txtA_%1"_s.arg((spalte - 1) * 12 + zeile - 1));
  }
  QString Haupt(const QString& name) { return Text(programm.Hauptfenster(), name); }

  void Eingeben(const QStringList& texte) {
    frmVesk& fenster = programm.Hauptfenster();
    fenster.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
    Finden<QLineEdit>(fenster, u"txtQRG"_s).setFocus();
    for (const QString& text : texte) {
      auto* feld = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      ASSERT_NE(feld, nullptr);
      feld->selectAll();
      QTest::keyClicks(feld, text);
      QTest::keyClick(feld, Qt::Key_Return);
      QCoreApplication::processEvents();
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  }
  void Klick(QWidget& fenster, const QString& name, Qt::MouseButton taste = Qt::LeftButton) {
    QTest::mouseClick(&Finden<QWidget>(fenster, name), taste);
    QCoreApplication::processEvents();
  }
  void Kopieren() { Klick(programm.Hauptfenster(), u"cmdCopy"_s); }
  void DatenblattZeigen() {
    programm.Hauptfenster().Aktion("mnuDatenblatt").trigger();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&programm.Datenblatt()));
  }
  bool Beenden() {
    bool beendet = false;
    QObject::connect(&programm, &Programm::beendet, &programm, [&] { beendet = true; });
    programm.Hauptfenster().close();
    return beendet;
  }

  skript::Buehne buehne;
  Zustand zustand;
  Programm programm;
};

}  // namespace vesk
