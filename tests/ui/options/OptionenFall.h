#pragma once
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest/QtTest>

#include "Datenblatt.h"
#include "Farben.h"
#include "Finden.h"
#include "OptionenSkript.h"
#include "Skript.h"
#include "frmOptions.h"

namespace vesk {

using namespace Qt::StringLiterals;

/// The options window among scripted neighbours, loaded and shown, as the program starts it.
class OptionenFall : public testing::Test {
 protected:
  void SetUp() override {
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

  Zustand zustand;
  skript::Buehne buehne;
  skript::Umgebung umgebung;
  frmOptions fenster{zustand, buehne.plattform, umgebung};
};

}  // namespace vesk
