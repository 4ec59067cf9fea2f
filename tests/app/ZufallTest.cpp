#include <cstdlib>
#include <random>

#include "engine/Ausgabe.h"
#include "station/Spalten.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

/// Real events on any control of any window; after each the figures on the screen are computed anew from the
/// inputs beside them.
class Zufallsbenutzer : public Verzeichnis, public Lauf {
 public:
  explicit Zufallsbenutzer(unsigned saat) : Lauf(path()), zufall_(saat) {
    buehne.boxen.alleErlaubt = true;
    buehne.dialoge.alleErlaubt = true;
    Menue(u"mnuDatenblatt"_s);
    Ding<>(u"txtKabelLaenge"_s, u"frmOptions"_s).setText(u"20"_s);
  }

  QString Handeln() {
    QWidget* fenster = Waehlen(Fensterliste());
    fenster->activateWindow();
    if (auto* reiter = fenster->findChild<QTabWidget*>(); reiter != nullptr && Zahl(8) == 0) {
      reiter->setCurrentIndex(static_cast<int>(Zahl(4)));
    }
    QWidgetList controls;
    for (QWidget* kind : fenster->findChildren<QWidget*>()) {
      const QString& name = kind->objectName();
      if (!kind->isVisible() || !kind->isEnabled() || name.isEmpty() || name.startsWith(u"qt_"_s)) continue;
      if (qobject_cast<QMenuBar*>(kind) == nullptr) controls << kind;
    }
    QWidget* ziel = Waehlen(controls);
    Bedienen(ziel);
    return fenster->objectName() + u'.' + ziel->objectName();
  }

  void Pruefen() {
    QCoreApplication::processEvents();
    const QString gezeigt = Text(u"txtAusgabe"_s);
    if (gezeigt.isEmpty() || Veraltet(u"txtAusgabe"_s)) {
      ASSERT_FALSE(Ding<QPushButton>(u"cmdCopy"_s).isEnabled() && !gezeigt.isEmpty());
    } else {
      Rechenwerte werte = station.werte;
      const QStringList eingaben =
          Text(u"txtQRG txtPWR txtGewinn txtDaempfung txtWinkelDaempfung"_s).split(u'|');
      for (std::size_t i = 0; i < Eingabetexte.size(); ++i) {
        werte.*Eingabetexte.at(i) = eingaben.at(static_cast<qsizetype>(i)).toStdString();
      }
      const bool abstand = Text(u"lblPWR"_s) == u"Sendeleistung [W]";
      const Rechenart art{abstand ? Modus::Abstand : Modus::Leistung, Ding<QAction>(u"mnuAFu"_s).isChecked()};
      const Feldtexte texte = Ausgabetexte(Berechnen(werte, art), ',');
      for (std::size_t i = 0; i <= static_cast<std::size_t>(Feld::Fernfeld); ++i) {
        const std::string feld = Text(QLatin1String(Feldnamen[i])).toStdString();
        ASSERT_EQ(feld, texte[Feld(i)].value_or(feld)) << Feldnamen[i];
      }
      ++aktuell;
    }
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
      const bool veraltet = Veraltet(Zellenname(spalte, 10), u"frmDatenblatt"_s);
      ASSERT_EQ(veraltet, SpalteVeraltet(station, spalte)) << spalte;
      for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
        ASSERT_EQ(Zelle(spalte, zeile).toStdString(), vesk::Zelle(station, spalte, vesk::Zeile(zeile)));
      }
    }
  }

  int aktuell = 0;

 private:
  static QWidgetList Fensterliste() {
    if (QWidget* modal = QApplication::activeModalWidget()) return {modal};
    QWidgetList fenster;
    for (const QString& name : Offene()) fenster << &Fenster(name);
    return fenster;
  }
  template <typename Liste>
  typename Liste::value_type Waehlen(const Liste& liste) {
    return liste.at(static_cast<qsizetype>(Zahl(static_cast<std::size_t>(liste.size()))));
  }
  std::size_t Zahl(std::size_t grenze) { return zufall_() % grenze; }
  QString Eingabe() {
    return Waehlen(
        QStringList{u"14,2"_s, u"145"_s, u"435"_s, u"100"_s, u"5"_s, u"-3"_s, u"0"_s, QString(45, u'9')});
  }

  void Bedienen(QWidget* ziel) {
    const bool feld = qobject_cast<QLineEdit*>(ziel) != nullptr;
    QWidget* modal = QApplication::activeModalWidget();
    switch (Zahl(6)) {
      case 0:
        QTest::mouseClick(ziel, Zahl(8) == 0 ? Qt::RightButton : Qt::LeftButton);
        if (feld) Tippen(Eingabe());
        break;
      case 1:
        ziel->setFocus(Qt::TabFocusReason);
        if (ziel->hasFocus() && feld) Tippen(Eingabe());
        break;
      case 2:
        if (QWidget* fokus = QApplication::focusWidget()) {
          QTest::keyClick(
              fokus, Waehlen(QList{Qt::Key_Tab, Qt::Key_Return, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space}));
        }
        break;
      case 3:
        if (modal == nullptr) {
          Menue(Waehlen(QStringList{u"mnuAFu"_s, u"mnuAbstand"_s, u"mnuDatenblatt"_s, u"mnuUmrechnung"_s}));
        }
        break;
      default:  // what leads to figures: inputs, the buttons, heads and cells
        if (modal != nullptr) {
          modal->close();
        } else if (Zahl(2) == 0) {
          Rechnen({u"14.2"_s, u"100"_s, u"0"_s});
        } else if (!feld) {
          QTest::mouseClick(ziel, Qt::LeftButton);
        } else {
          Klick(Zahl(2) == 0 ? u"cmdCopy"_s : u"cmdBerechnen"_s);
        }
    }
  }

  std::mt19937 zufall_;
};

/// VESK_EREIGNISSE: number of actions, 2,000 unless told otherwise.
TEST(Zufall, KeineZahlNebenFremdenEingaben) {
  const char* anzahl = std::getenv("VESK_EREIGNISSE");
  const int handlungen = anzahl != nullptr ? std::atoi(anzahl) : 2000;
  constexpr int JeBenutzer = 500;
  int aktuell = 0;
  for (int i = 0; i < handlungen; i += JeBenutzer) {
    const auto saat = static_cast<unsigned>(i / JeBenutzer);
    Zufallsbenutzer benutzer(saat);
    for (int j = 0; j < JeBenutzer; ++j) {
      const QString ziel = benutzer.Handeln();
      benutzer.Pruefen();
      if (testing::Test::HasFailure()) FAIL() << "Saat " << saat << ", " << j << ": " << ziel.toStdString();
    }
    aktuell += benutzer.aktuell;
  }
  EXPECT_GT(aktuell, handlungen / 20);  // a user who never gets a figure proves nothing
}

}  // namespace
}  // namespace vesk
