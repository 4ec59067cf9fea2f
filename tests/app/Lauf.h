#pragma once
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QtWidgets>

#include "app/Programm.h"
#include "tests/platform/Skript.h"
#include "tests/ui/Finden.h"
#include "ui/basis/Farben.h"

namespace vesk {

using namespace Qt::StringLiterals;

/// A directory with the shipped catalogues.
struct Verzeichnis : QTemporaryDir {
  Verzeichnis() {
    for (const QString& name : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
      EXPECT_TRUE(QFile::copy(QStringLiteral(VESK_DATEN) + u'/' + name, filePath(name)));
    }
  }
};

/// One run of the whole program, used by mouse and keyboard.
struct Lauf {
  explicit Lauf(const QString& verzeichnis, bool meldungen = false)
      : programm(station, buehne.plattform, {verzeichnis, {}}) {
    buehne.speicher.werte = OhneTips;
    QObject::connect(&programm, &Programm::beendet, &programm, [this] { beendet = true; });
    programm.Starten();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&programm.Hauptfenster()));
    if (station.einstellungen.Meldungen != meldungen) Menue(u"mnuMeldungen"_s);
    QCoreApplication::processEvents();
  }

  static QWidget& Fenster(const QString& name) {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
      if (fenster->objectName() == name) return *fenster;
    }
    throw std::runtime_error("Kein " + name.toStdString());
  }
  /// The windows that the user sees, by name.
  static QStringList Offene() {
    QStringList namen;
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
      if (fenster->isVisible() && fenster->objectName().startsWith(u"frm"_s)) namen << fenster->objectName();
    }
    namen.sort();
    return namen;
  }
  static bool Sichtbar(const QString& name) { return Offene().contains(name); }
  template <typename T = QLineEdit>
  static T& Ding(const QString& name, const QString& fenster = u"frmVesk"_s) {
    return Finden<T>(Fenster(fenster), name);
  }
  /// What the fields, labels and buttons of these names show, side by side.
  static QString Text(const QString& namen, const QString& fenster = u"frmVesk"_s) {
    QStringList texte;
    for (const QString& name : namen.split(u' '))
      texte << Ding<QWidget>(name, fenster).property("text").toString();
    return texte.join(u'|');
  }
  static bool Veraltet(const QString& name, const QString& fenster = u"frmVesk"_s) {
    return Ding<QWidget>(name, fenster).property("Veraltet").toBool();
  }
  QString Zelle(int spalte, int zeile) {
    programm.Datenblatt();
    return Text(Zellenname(spalte, zeile), u"frmDatenblatt"_s);
  }
  static QString Zellenname(int spalte, int zeile) { return u"txtA_%1"_s.arg((spalte - 1) * 12 + zeile - 1); }

  void Menue(const QString& name, const QString& fenster = u"frmVesk"_s) {
    Ding<QAction>(name, fenster).trigger();
    QCoreApplication::processEvents();
  }
  static void Aktivieren(const QString& fenster) {
    Fenster(fenster).show();
    Fenster(fenster).activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Fenster(fenster)));
    QCoreApplication::processEvents();
  }
  static void Klick(const QString& name, const QString& fenster = u"frmVesk"_s,
                    Qt::MouseButton taste = Qt::LeftButton) {
    auto& ziel = Ding<QWidget>(name, fenster);
    // The text of a check box ends before the box does.
    QTest::mouseClick(&ziel, taste, {}, {std::min(10, ziel.width() / 2), ziel.height() / 2});
    QCoreApplication::processEvents();
  }
  static QWidget& Fokusfeld() {
    if (QApplication::focusWidget() == nullptr) throw std::runtime_error("Kein Fokus");
    return *QApplication::focusWidget();
  }
  static QString Fokus() { return Fokusfeld().objectName(); }
  static void Taste(Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::NoModifier) {
    QTest::keyClick(&Fokusfeld(), taste, zusatz);
    QCoreApplication::processEvents();
  }
  static void Tippen(const QString& text) { QTest::keyClicks(&Fokusfeld(), text); }
  /// Types inputs of the main window from the frequency on, going on with Enter.
  static void Eingeben(const QStringList& texte) {
    Aktivieren(u"frmVesk"_s);
    Ding<>(u"txtQRG"_s).setFocus(Qt::TabFocusReason);
    for (const QString& text : texte) {
      Ding<>(Fokus()).selectAll();
      Tippen(text);
      Taste(Qt::Key_Return);
    }
  }
  static void Rechnen(const QStringList& texte) {
    Eingeben(texte);
    Klick(u"cmdBerechnen"_s);
  }
  bool Beenden() { return programm.Hauptfenster().close(), beendet; }

  static inline const QMap<QPair<QString, QString>, QString> OhneTips = {
      {{u"Options"_s, u"Show Tips at Startup"_s}, u"0"_s}};
  skript::Buehne buehne;
  Station station;
  Programm programm;
  bool beendet = false;
};

}  // namespace vesk
