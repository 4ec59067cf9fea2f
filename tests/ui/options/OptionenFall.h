#pragma once
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest/QtTest>

#include "Datenblatt.h"
#include "Farben.h"
#include "Finden.h"
#include "OptionenSkript.h"
#include "Skript.h"
#include "frmOptions.h"

namespace vesk {

using namespace Qt::StringLiterals;

/// The options window among scripted neighbours, loaded and shown, as the program starts it, in a directory
/// of its own with the shipped catalogues or those that the test has put there before.
class OptionenFall : public testing::Test {
 protected:
  void SetUp() override {
    for (const QString& name : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
      if (!QFile::exists(verzeichnis.filePath(name))) {
        QFile::copy(QStringLiteral(VESK_DATEN_VERZEICHNIS "/") + name, verzeichnis.filePath(name));
      }
    }
    zustand.ProgrammVerzeichnis = verzeichnis.path().toStdString();
    zustand.Datenblattspalten.fill(LeereSpalte());
    fenster.Laden();
    fenster.show();
    fenster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
  }

  void Klicken(const QString& name) {
    auto& knopf = Finden<QAbstractButton>(fenster, name);
    QTest::mouseClick(&knopf, Qt::LeftButton, {}, QPoint(8, knopf.height() / 2));
  }
  void Reiter(int seite) { Finden<QTabWidget>(fenster, u"SSTab1"_s).setCurrentIndex(seite); }
  /// Real keys into a field that has the focus afterwards.
  void Tippen(const QString& name, const QString& text) {
    auto& feld = Finden<QLineEdit>(fenster, name);
    feld.setFocus();
    QTest::keyClicks(&feld, text);
  }
  void FeldKlicken(const QString& name, Qt::MouseButton taste = Qt::LeftButton) {
    QTest::mouseClick(&Finden<QLineEdit>(fenster, name), taste);
  }
  void ZeileKlicken(const QString& name, const QString& teil) {
    auto& liste = Finden<QListWidget>(fenster, name);
    const auto treffer = liste.findItems(teil, Qt::MatchContains);
    ASSERT_FALSE(treffer.isEmpty()) << teil.toStdString();
    liste.scrollToItem(treffer.first());
    const int y = liste.visualItemRect(treffer.first()).center().y();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, QPoint(5, y));
  }
  QByteArray Datei(const QString& name) {
    QFile datei(verzeichnis.filePath(name));
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
  }
  void DateiAnlegen(const QString& name, const QByteArray& bytes) {
    QFile datei(verzeichnis.filePath(name));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(bytes);
  }
  void WarnungErwarten(Antwort antwort = Antwort::Ja) {
    buehne.boxen.Erwarten(u"Faktor für vorgesehene Sendeart <1"_s, u"Faktor <1 ermittelt"_s, antwort);
  }
  QString Text(const QString& name) { return Finden<QLineEdit>(fenster, name).text(); }
  QColor Farbe(const QString& name) { return Hintergrundfarbe(Finden<QLineEdit>(fenster, name)); }
  /// Indices of the checked buttons of a control array.
  QString Gewaehlt(const QString& feld, int anzahl) {
    QString indizes;
    for (int i = 0; i < anzahl; ++i) {
      const QString name = feld + u'_' + QString::number(i);
      if (Finden<QAbstractButton>(fenster, name).isChecked()) indizes += QString::number(i);
    }
    return indizes;
  }
  QString Kreuze() { return Gewaehlt(u"chkBetriebsart"_s, 8); }
  QString Zyklus() { return Gewaehlt(u"optDuty"_s, 6); }
  QString Typ() { return Gewaehlt(u"optSSB"_s, 3); }
  Datenblattspalte& Satz(std::size_t spalte) { return zustand.Datenblattspalten.at(spalte); }
  void Spaltenzelle(std::int16_t spalte, const QString& arten) {
    umgebung.zellen.at(static_cast<std::size_t>(Gitterindex(spalte, ZeileBetriebsarten))) = arten;
  }

  QTemporaryDir verzeichnis;
  Zustand zustand;
  skript::Buehne buehne;
  skript::Umgebung umgebung;
  frmOptions fenster{zustand, buehne.plattform, umgebung};
};

}  // namespace vesk
