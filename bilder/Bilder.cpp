// vesk_bilder CATALOGUES TARGET: plays the first chapter of the manual and its plan in the real program and
// leaves the pictures of them in the directory TARGET. Ends with 1 when a step of the chapter does not go,
// with 3 where no pictures can be made.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <algorithm>
#include <iostream>

#include "app/Programm.h"
#include "bilder/Antworten.h"
#include "station/Spalten.h"
#include "ui/bands/frmBaender.h"
#include "ui/datasheet/frmDatenblatt.h"
#include "ui/options/frmOptions.h"
#include "ui/preview/frmVorschau.h"
#include "ui/user/frmUser.h"

using namespace Qt::StringLiterals;

namespace vesk::bilder {

namespace {

/// With 256 colours at most, the most frequent ones; that keeps the files small.
QImage InWenigFarben(const QImage& bild) {
  QHash<QRgb, int> haeufigkeit;
  for (int y = 0; y < bild.height(); ++y) {
    for (int x = 0; x < bild.width(); ++x) ++haeufigkeit[bild.pixel(x, y)];
  }
  QList<QRgb> farben = haeufigkeit.keys();
  std::sort(farben.begin(), farben.end(),
            [&](QRgb a, QRgb b) { return std::pair(-haeufigkeit[a], a) < std::pair(-haeufigkeit[b], b); });
  return bild.convertToFormat(QImage::Format_Indexed8, farben.mid(0, 256),
                              Qt::ThresholdDither | Qt::AvoidDither);
}

/// The user of the example, at his keyboard.
class Spiel {
 public:
  Spiel(const QString& daten, QString ziel)
      : ziel_(std::move(ziel)), programm_(station_, buehne_.plattform, {daten, {}}) {
    buehne_.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
    programm_.Starten();
    Warten();
  }

  void Benutzerdaten();
  void Frequenz();
  void Kabel();
  void Antenne();
  void Ergebnis();
  void WeitereBaender();
  void Datenblatt();
  void Unterlagen();
  void Lageplan(const QString& beispiele);

 private:
  static void Warten() {
    // Twice: the first answers may ask for more.
    for (int i = 0; i < 2; ++i) QCoreApplication::processEvents();
  }
  static QWidget& Fenster(const QString& name) {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
      if (fenster->objectName() == name && fenster->isVisible()) return *fenster;
    }
    throw std::runtime_error("Kein Fenster " + name.toStdString());
  }
  template <typename T = QWidget>
  static T& Ding(const QString& fenster, const QString& name) {
    auto* ding = Fenster(fenster).findChild<T*>(name);
    if (ding == nullptr) throw std::runtime_error("Kein " + name.toStdString());
    return *ding;
  }
  static void Menue(const QString& fenster, const QString& name) {
    Ding<QAction>(fenster, name).trigger();
    Warten();
  }
  static void Druecken(const QString& fenster, const QString& name) {
    auto& knopf = Ding<QAbstractButton>(fenster, name);
    if (!knopf.isEnabled()) throw std::runtime_error("Gesperrt: " + name.toStdString());
    knopf.click();
    Warten();
  }
  static void Taste(int taste, const QString& text = {}, Qt::KeyboardModifiers zusatz = Qt::NoModifier) {
    QWidget* feld = QApplication::focusWidget();
    if (feld == nullptr) throw std::runtime_error("Kein Feld hat den Fokus.");
    for (const QEvent::Type art : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent ereignis(art, taste, zusatz, text);
      QCoreApplication::sendEvent(feld, &ereignis);
    }
    Warten();
  }
  static void Aktivieren(const QString& fenster) {
    Fenster(fenster).activateWindow();
    Warten();
  }
  static void Tippen(const QString& fenster, const QString& name, const QString& text) {
    Aktivieren(fenster);
    Ding(fenster, name).setFocus(Qt::TabFocusReason);
    for (const QChar zeichen : text) Taste(0, zeichen);
  }
  static void Karte(int nummer) {
    Ding<QTabWidget>(u"frmOptions"_s, u"SSTab1"_s).setCurrentIndex(nummer);
    Warten();
  }
  void Bild(const QString& name, const QString& fenster, QSize groesse);

  Buehne buehne_;
  Station station_;
  QString ziel_;
  Programm programm_;
};

void Spiel::Bild(const QString& name, const QString& fenster, QSize groesse) {
  QWidget& motiv = Fenster(fenster);
  motiv.resize(groesse);
  Warten();
  // The user's own directory instead of the one that the example lies in.
  Station gezeigt = station_;
  gezeigt.Arbeitsverzeichnis = "/home/dl1abc/.local/share/Vesk/Vesk";
  programm_.Hauptfenster().Zeigen(gezeigt);
  Warten();
  const QImage bild = InWenigFarben(motiv.grab().toImage().convertToFormat(QImage::Format_RGB32));
  const QString datei = ziel_ + u'/' + name + u".png"_s;
  if (!bild.save(datei, "PNG", 0)) throw std::runtime_error("Nicht geschrieben: " + datei.toStdString());
  programm_.Hauptfenster().Zeigen(station_);
}

void Spiel::Benutzerdaten() {
  Menue(u"frmVesk"_s, u"mnuUser"_s);
  const QString fenster = u"frmUser"_s;
  Tippen(fenster, u"txtName"_s, u"Anna Beispiel"_s);
  Tippen(fenster, u"txtStrasse"_s, u"Lindenweg 5"_s);
  Tippen(fenster, u"txtOrt"_s, u"12345 Musterstadt"_s);
  Tippen(fenster, u"txtRufzeichen"_s, u"dl1abc"_s);
  Tippen(fenster, u"txtStandort"_s, u"Lindenweg 5, 12345 Musterstadt"_s);
  Bild(u"benutzerdaten"_s, fenster, {560, 300});
  Menue(fenster, u"mnuUserBeenden"_s);
}

void Spiel::Frequenz() {
  Menue(u"frmVesk"_s, u"mnuDatenblatt"_s);
  Tippen(u"frmVesk"_s, u"txtQRG"_s, u"14"_s);
  Taste(Qt::Key_Return);
}

void Spiel::Kabel() {
  Karte(1);
  Tippen(u"frmOptions"_s, u"txtKabelLaenge"_s, u"20"_s);
  Tippen(u"frmOptions"_s, u"txtStecker"_s, u"0.5"_s);
  Druecken(u"frmOptions"_s, u"cmdGleich"_s);
  Bild(u"kabel"_s, u"frmOptions"_s, {760, 460});
}

void Spiel::Antenne() {
  Karte(2);
  Tippen(u"frmOptions"_s, u"txtSuche"_s, u"efhw 20m"_s);
  Taste(Qt::Key_Return);
  Druecken(u"frmOptions"_s, u"cmdAntenne"_s);
  Bild(u"antennen"_s, u"frmOptions"_s, {760, 460});
}

void Spiel::Ergebnis() {
  buehne_.boxen.angekuendigt << u"Nahfeld Problematik"_s;
  Tippen(u"frmVesk"_s, u"txtPWR"_s, u"100"_s);
  Druecken(u"frmVesk"_s, u"cmdBerechnen"_s);
  Bild(u"hauptfenster"_s, u"frmVesk"_s, {1000, 470});
  Druecken(u"frmVesk"_s, u"cmdCopy"_s);
}

void Spiel::WeitereBaender() {
  buehne_.boxen.angekuendigt << u"Alle Bänder"_s;
  Menue(u"frmVesk"_s, u"mnuBaender"_s);
  auto& tabelle = Ding<QTableWidget>(u"frmBaender"_s, u"tblBaender"_s);
  for (int zeile = 0; zeile < tabelle.rowCount(); ++zeile) {
    const QString band = tabelle.item(zeile, 0)->text();
    if (band == u"40 m"_s || band == u"15 m"_s || band == u"10 m"_s) {
      tabelle.item(zeile, 0)->setCheckState(Qt::Checked);
    }
  }
  Bild(u"baender"_s, u"frmBaender"_s, {860, 620});
  Druecken(u"frmBaender"_s, u"cmdBaenderKopieren"_s);
  Fenster(u"frmBaender"_s).close();
}

void Spiel::Datenblatt() {
  Aktivieren(u"frmDatenblatt"_s);
  for (int spalte = 1; spalte <= 4; ++spalte) {
    Taste(Qt::Key_0 + spalte, {}, Qt::ControlModifier);
    for (const auto& [zeile, text] :
         {std::pair{ZeileHoehe, u"10"_s}, {ZeileRichtung, u"ND"_s}, {ZeileAntenne, u"EFHW 20m"_s}}) {
      Tippen(u"frmDatenblatt"_s, u"txtA_%1"_s.arg(Zellenindex(spalte, zeile)), text);
    }
  }
  Bild(u"datenblatt"_s, u"frmDatenblatt"_s, {860, 420});
}

void Spiel::Unterlagen() {
  Menue(u"frmVesk"_s, u"mnuPapiere"_s);
  Bild(u"unterlagen"_s, u"frmVorschau"_s, {860, 620});
}

/// One of the examples that come with the program, instead of the station above.
void Spiel::Lageplan(const QString& beispiele) {
  buehne_.boxen.angekuendigt << u"User Datei laden"_s;
  programm_.DateiOeffnen(beispiele + u"/Reihenhaus.dat"_s);
  Menue(u"frmVesk"_s, u"mnuLageplan"_s);
  Bild(u"lageplan"_s, u"frmLageplan"_s, {1000, 660});
}

void Ansehen() {
  QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
  QApplication::setPalette(QApplication::style()->standardPalette());
  QFont schrift(
      QFontDatabase::families().contains(u"DejaVu Sans"_s) ? u"DejaVu Sans"_s : QApplication::font().family(),
      10);
  schrift.setStyleStrategy(QFont::NoSubpixelAntialias);
  QApplication::setFont(schrift);
}

void Spielen(const QString& kataloge, const QString& ziel) {
  const QTemporaryDir daten;
  for (const QString& name : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
    if (!QFile::copy(kataloge + u'/' + name, daten.filePath(name))) {
      throw std::runtime_error("Nicht kopiert: " + name.toStdString());
    }
  }
  QDir().mkpath(ziel);
  Spiel spiel(daten.path(), ziel);
  for (const auto schritt :
       {&Spiel::Benutzerdaten, &Spiel::Frequenz, &Spiel::Kabel, &Spiel::Antenne, &Spiel::Ergebnis,
        &Spiel::WeitereBaender, &Spiel::Datenblatt, &Spiel::Unterlagen}) {
    (spiel.*schritt)();
  }
  spiel.Lageplan(kataloge + u"/beispiele"_s);
}

}  // namespace
}  // namespace vesk::bilder

int main(int anzahl, char** argumente) {
  const QApplication anwendung(anzahl, argumente);
  vesk::bilder::Ansehen();
  // Without any font there are boxes in place of the letters.
  if (!QFontMetrics(QApplication::font()).inFont(u'A')) return 3;
  try {
    vesk::bilder::Spielen(anwendung.arguments().at(1), anwendung.arguments().at(2));
  } catch (const std::exception& fehler) {
    std::cerr << "vesk_bilder: " << fehler.what() << '\n';
    return 1;
  }
  return 0;
}
