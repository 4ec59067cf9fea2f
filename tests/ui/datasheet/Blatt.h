#pragma once
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "Datenblatt.h"
#include "Finden.h"
#include "Skript.h"
#include "Zahlen.h"
#include "Zelle.h"
#include "Zustand.h"
#include "frmDatenblatt.h"

namespace vesk {

using namespace Qt::StringLiterals;

/// A shown data sheet over a state of its own and the scripted platform.
class Blatt : public testing::Test {
 protected:
  Blatt() {
    fenster.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
    zustand.UserGeaendert = false;
  }

  Zelle& Feld(int spalte, int zeile) {
    return Finden<Zelle>(fenster, u"txtA_%1"_s.arg((spalte - 1) * 12 + zeile - 1));
  }
  QLabel& Kopf(int spalte) { return Finden<QLabel>(fenster, u"lblSpalte_%1"_s.arg(spalte - 1)); }
  std::string& Text(int spalte, int zeile) {
    return zustand.Zellen.at(static_cast<std::size_t>((spalte - 1) * 12 + zeile - 1));
  }
  Datenblattspalte& Satz(int spalte) {
    return zustand.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  }
  void Waehlen(const QString& menueeintrag) { Finden<QAction>(fenster, menueeintrag).trigger(); }
  /// Fills a column so that it is not free; the texts name column and row.
  void Belegen(int spalte) {
    for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
      fenster.ZelleSetzen(std::int16_t(spalte), Zeile(zeile), u"%1.%2"_s.arg(spalte).arg(zeile));
    }
    Satz(spalte) = LeereSpalte();
    Satz(spalte).Antenne = "Antenne " + std::to_string(spalte);
    Satz(spalte).Winkel[8] = std::to_string(spalte);
    Satz(spalte).Grenzwerttyp = 2;
  }

  Zustand zustand;
  skript::Buehne buehne;
  frmDatenblatt fenster{zustand, buehne.plattform};
};

}  // namespace vesk
