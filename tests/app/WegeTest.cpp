// The short ways: keys of all windows, undo, files that are dropped or used again, windows that come back.
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QUrl>
#include <fstream>

#include "app/Desktoplage.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

struct Wege : testing::Test, Verzeichnis, Lauf {
  Wege() : Lauf(path()) {}
  static void Strg(Qt::Key taste) { Taste(taste, Qt::ControlModifier); }
  /// A file of the user's that lies beside the present one.
  QString Datei(const QString& name, const std::string& bytes) {
    std::ofstream(filePath(name).toStdString()) << bytes;
    return filePath(name);
  }
  static void Fallenlassen(const QString& pfad, QWidget& ziel) {
    QMimeData daten;
    daten.setUrls({QUrl::fromLocalFile(pfad)});
    QDragEnterEvent kommt({5, 5}, Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    EXPECT_TRUE(QCoreApplication::sendEvent(&ziel, &kommt) && kommt.isAccepted());
    QDropEvent wurf({5, 5}, Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    EXPECT_TRUE(QCoreApplication::sendEvent(&ziel, &wurf) && wurf.isAccepted());
    QCoreApplication::processEvents();
  }
};

TEST_F(Wege, DreiBaenderMitDerTastatur) {
  for (const QString& band : {u"14"_s, u"7"_s, u"3.5"_s}) {
    Aktivieren(u"frmVesk"_s);
    Ding<>(u"txtQRG"_s).setFocus(Qt::TabFocusReason);
    Ding<>(u"txtQRG"_s).selectAll();
    Tippen(band);
    Taste(Qt::Key_Down);
    Tippen(u"100"_s);
    Strg(Qt::Key_Return);
  }
  EXPECT_EQ(Zelle(1, ZeileFrequenz) + Zelle(2, ZeileFrequenz) + Zelle(3, ZeileFrequenz), u"1473.5");
  Strg(Qt::Key_2);
  EXPECT_EQ(Fokus() + u' ' + Text(u"txtQRG"_s), Zellenname(2, 1) + u" 7"_s);
  Tippen(u"10"_s);
  Taste(Qt::Key_F5);
  Strg(Qt::Key_S);
  EXPECT_FALSE(station.UserGeaendert);
  programm.Befehlen(Befehl::BenutzerZeigen);
  Aktivieren(u"frmUser"_s);
  Ding<>(u"txtOrt"_s, u"frmUser"_s).setFocus();
  Strg(Qt::Key_P);
  // Only a window that belongs to a modal one can be used beside it.
  QWindow& papiere = *Fenster(u"frmVorschau"_s).windowHandle();
  EXPECT_EQ(papiere.transientParent(), Fenster(u"frmUser"_s).windowHandle());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&papiere));
  Fenster(u"frmUser"_s).close();
  QCoreApplication::processEvents();
  EXPECT_TRUE(papiere.isVisible() && papiere.transientParent() == nullptr);
}

TEST_F(Wege, ZurueckUndVorInJedemFenster) {
  EXPECT_FALSE(Ding<QAction>(u"mnuRueckgaengig"_s).isEnabled());
  Rechnen({u"14.2"_s, u"100"_s});
  Strg(Qt::Key_Return);
  Menue(u"mnuDatenblatt"_s);
  Aktivieren(u"frmDatenblatt"_s);
  Ding<>(Zellenname(1, ZeileHoehe), u"frmDatenblatt"_s).setFocus();
  Tippen(u"10"_s);
  buehne.boxen.Erwarten("Vesk", "Datenblatt wirklich löschen?", Antwort::Ja);
  Menue(u"mnuDelete"_s, u"frmDatenblatt"_s);
  Strg(Qt::Key_Z);
  EXPECT_EQ(Zelle(1, ZeileHoehe) + Zelle(1, ZeileFrequenz), u"1014.2");
  Strg(Qt::Key_Z);  // typed without a pause: one step
  EXPECT_EQ(Zelle(1, ZeileHoehe) + Zelle(1, ZeileFrequenz), u"14.2");
  Strg(Qt::Key_Y);
  EXPECT_EQ(Zelle(1, ZeileHoehe), u"10");
  Menue(u"mnuUser"_s);
  Aktivieren(u"frmUser"_s);
  Ding<>(u"txtName"_s, u"frmUser"_s).setFocus();
  Tippen(u"Anna"_s);
  Strg(Qt::Key_Z);
  EXPECT_EQ(Text(u"txtName"_s, u"frmUser"_s), u"");
  Tippen(u"Eva"_s);  // nothing to be repeated after that
  const int toene = buehne.ton.anzahl;
  Strg(Qt::Key_Y);
  EXPECT_EQ(Text(u"txtName"_s, u"frmUser"_s) + QString::number(buehne.ton.anzahl - toene), u"Eva1");
}

TEST_F(Wege, FallengelasseneDateien) {
  auto& feld = Ding<>(u"txtQRG"_s);
  // A desktop tells of drags only to windows that take them.
  for (const QString& offen : Offene()) EXPECT_TRUE(Fenster(offen).acceptDrops()) << offen.toStdString();
  Fallenlassen(Datei(u"TURM.ANG"_s, "[Turm]\r\n12\r\n144\r\n0\r\n1\r\n"), feld);
  EXPECT_EQ(Text(u"txtWAntenne"_s, u"frmOptions"_s) + Text(u"txtQRG"_s), u"Turm");
  const QString kabel = Datei(u"Kabel.txt"_s, "");
  QTemporaryDir anderswo;
  QFile::copy(QStringLiteral(VESK_DATEN) + u"/Kabel.txt"_s, anderswo.filePath(u"KABEL.TXT"_s));
  buehne.boxen.Erwarten("Katalog übernehmen", "Kabel-alt.txt", Antwort::Ja);
  const QRect lage(30, 70, 760, 520);
  Fenster(u"frmOptions"_s).setGeometry(lage);
  Menue(u"mnuPapiere"_s);
  const QPointer<QWidget> vorschau = &Fenster(u"frmVorschau"_s);
  Fallenlassen(anderswo.filePath(u"KABEL.TXT"_s), feld);
  EXPECT_TRUE(!vorschau && Sichtbar(u"frmVorschau"_s)) << "its papers tell of cables";
  Fenster(u"frmVorschau"_s).close();
  EXPECT_EQ(Fenster(u"frmOptions"_s).geometry(), lage);
  EXPECT_EQ(Ding<QTabWidget>(u"SSTab1"_s, u"frmOptions"_s).currentIndex(), 3);
  EXPECT_TRUE(QFile::exists(filePath(u"Kabel-alt.txt"_s)) && QFileInfo(kabel).size() > 0);
  buehne.boxen.Erwarten("Vesk - Fehlermeldung", "leer", Antwort::OK);
  Fallenlassen(Datei(u"leer.dat"_s, ""), feld);
  Fenster(u"frmOptions"_s).close();
  for (const QString& fehlt : {u"fehlt.dat"_s, u"fehlt.ang"_s}) {
    buehne.boxen.Erwarten("Vesk - Fehlermeldung", fehlt.toStdString() + " gibt es nicht", Antwort::OK);
    programm.DateiOeffnen(filePath(fehlt));
  }
  EXPECT_FALSE(Sichtbar(u"frmOptions"_s));
  EXPECT_EQ(Text(u"txtWAntenne"_s, u"frmOptions"_s), u"Turm");
  EXPECT_EQ(station.UserDatei, "user.dat");
}

TEST_F(Wege, ZuletztBenutzteDateien) {
  const QString andere = filePath(u"andere.dat"_s);
  EXPECT_EQ(Text(u"lblGespeichert"_s), u"Änderungen: noch keine Datei");
  station.Zellen[0] = "12 m";
  Menue(u"mnuDatenblatt"_s);
  EXPECT_EQ(Text(u"lblGespeichert"_s), u"Änderungen: nicht gespeichert");
  Menue(u"mnuDateiSpeichern"_s);
  EXPECT_EQ(Text(u"lblGespeichert"_s), u"Änderungen: gespeichert");
  QFile::copy(filePath(u"user.dat"_s), andere);
  buehne.dialoge.Antworten(andere);
  Menue(u"mnuDateiLaden"_s);
  EXPECT_EQ(ZuletztBenutzt(buehne.speicher).front(), andere.toStdString());
  Menue(u"mnuZuletzt_1"_s);
  EXPECT_EQ(station.UserDatei, "user.dat");
  EXPECT_TRUE(Ding<QAction>(u"mnuZuletzt_0"_s).text().startsWith(u"&1 user.dat"_s));
}

TEST_F(Wege, FensterKommenWiederUndAufDenBildschirm) {
  auto& fenster = Fenster(u"frmVesk"_s);
  fenster.setGeometry(40, 50, 640, 480);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Beenden());
  const auto geholt = [&] {
    QMainWindow neu;
    neu.setObjectName(u"frmVesk"_s);
    LageHolen(neu, buehne.speicher);
    return neu.geometry();
  };
  EXPECT_EQ(geholt().size(), QSize(640, 480));
  fenster.setGeometry(9000, 9000, 300, 200);
  LageMerken(fenster, buehne.speicher);
  EXPECT_TRUE(fenster.screen()->availableGeometry().intersects(geholt()));
}

}  // namespace
}  // namespace vesk
