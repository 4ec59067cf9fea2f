#include <QTest>

#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QString Vorschau = u"frmVorschau"_s;

/// One column; the operator has no town, the column no height.
struct PapiereTest : testing::Test, Verzeichnis, Lauf {
  PapiereTest() : Lauf(path()) {
    Rechnen({u"145"_s, u"50"_s, u"12.5"_s, u"0"_s, u"0"_s});
    Klick(u"cmdCopy"_s);
    station.benutzer = {"Äbel", "Am Bach 1", "", "", "", "DL1ÄB/P", "1", "Köln"};
  }
  static QStringList Offen() {
    QStringList texte;
    const auto& liste = Ding<QListWidget>(u"lstOffen"_s, Vorschau);
    for (int i = 0; i < liste.count(); ++i) texte << liste.item(i)->text();
    return texte;
  }
  void Oeffnen() {
    Menue(u"mnuPapiere"_s);
    ASSERT_TRUE(Sichtbar(Vorschau));
  }
  void Sichern(const QString& pfad) {
    buehne.dialoge.Antworten(pfad);
    Menue(u"mnuPdfSpeichern"_s, Vorschau);
  }
  static QByteArray Inhalt(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("fehlt");
  }
};

TEST_F(PapiereTest, AntragFragtNachFehlendemUndNeinFuehrtDorthin) {
  buehne.boxen.Erwarten("Felder bitte korrekt ausfüllen", "Datenblatt trotzdem drucken?", Antwort::Nein);
  Menue(u"mnuAntragDrucken"_s);
  EXPECT_TRUE(Sichtbar(u"frmUser"_s) && !Sichtbar(Vorschau));
  buehne.boxen.Erwarten("Felder bitte korrekt ausfüllen", "Datenblatt trotzdem drucken?", Antwort::Ja);
  Menue(u"mnuUserPrint"_s, u"frmUser"_s);
  EXPECT_EQ(station.papiere.art, Papierart::Benutzer);
  EXPECT_TRUE(Sichtbar(Vorschau));
  station.benutzer.Ort = "Köln";
  Menue(u"mnuAntragDrucken"_s);
  EXPECT_EQ(Ding<QComboBox>(u"cboPapier"_s, Vorschau).currentText(), u"Antrag");
}

TEST_F(PapiereTest, VorschauFolgtDerStationUndFuehrtZurStelle) {
  Oeffnen();
  const auto& seiten = Ding<QListWidget>(u"lstSeiten"_s, Vorschau);
  const int vorher = seiten.count();
  EXPECT_EQ(Offen().filter(u"Ort"_s).size(), 1) << Offen().join(u'|').toStdString();
  const QStringList hoehe = Offen().filter(u"Montagehöhe"_s);
  ASSERT_EQ(hoehe.size(), 1);
  programm.Befehlen(Befehl::BenutzerZeigen);  // modal: it must not bar the place
  auto& liste = Ding<QListWidget>(u"lstOffen"_s, Vorschau);
  liste.setCurrentRow(static_cast<int>(Offen().indexOf(hoehe[0])));
  Q_EMIT liste.itemActivated(liste.currentItem());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Lauf::Fenster(u"frmDatenblatt"_s)));
  EXPECT_FALSE(Sichtbar(u"frmUser"_s));
  EXPECT_EQ(Fokus(), Zellenname(1, 1));
  EXPECT_EQ(station.werte.Spalte, 0);
  Tippen(u"12"_s);
  QTest::qWait(400);
  EXPECT_TRUE(Offen().filter(u"Montagehöhe"_s).isEmpty());
  // Another column is another page of the way of the calculation.
  station.Zellen[Zellenindex(2, ZeileFrequenz)] = "14.2";
  station.Zellen[Zellenindex(2, ZeileLeistung)] = "100";
  Menue(u"mnuPapiere"_s);
  QTest::qWait(400);
  EXPECT_EQ(seiten.count(), vorher + 1);
  Aktivieren(Vorschau);
  QTest::keyClick(&Lauf::Fenster(Vorschau), Qt::Key_End, Qt::ControlModifier);
  auto& seite = Ding<QSpinBox>(u"txtSeite"_s, Vorschau);
  EXPECT_EQ(seite.value(), seiten.count());
  // At the end of a page the wheel goes on; Esc leaves a field first, and then the window.
  auto* blatt = Ding<QAbstractScrollArea>(u"rolSeite"_s, Vorschau).viewport();
  for (const auto& [drehung, davor] :
       {std::pair(120, 1), std::pair(-60, 1), std::pair(-60, 0), std::pair(-120, 0)}) {
    QWheelEvent rad({5, 5}, blatt->mapToGlobal(QPointF(5, 5)), {}, {0, drehung}, {}, {}, Qt::NoScrollPhase,
                    false);
    QCoreApplication::sendEvent(blatt, &rad);
    EXPECT_EQ(seite.value(), seiten.count() - davor);
  }
  seite.setFocus();
  Tippen(u"1"_s);
  Taste(Qt::Key_Escape);
  EXPECT_EQ(Fokus() + QString::number(seite.value()), u"rolSeite%1"_s.arg(seiten.count()));
  QTest::keyClick(&Lauf::Fenster(Vorschau), Qt::Key_Escape);
  EXPECT_FALSE(Sichtbar(Vorschau));
}

TEST_F(PapiereTest, PdfEntstehtGanzOderGarNicht) {
  Oeffnen();
  const QString ziel = filePath(u"Papiere.pdf"_s);
  buehne.boxen.Erwarten("PDF speichern", ziel.toStdString(), Antwort::Ja);
  Sichern(ziel);
  EXPECT_EQ(buehne.dialoge.gezeigt.back().vorschlag, u"Unterlagen DL1ÄB-P.pdf");
  EXPECT_TRUE(Inhalt(ziel).startsWith("%PDF-") && Inhalt(ziel).trimmed().endsWith("%%EOF"));
  EXPECT_EQ(buehne.betrachter.dateien, QStringList(ziel));

  // The folder is remembered; a work that was ended leaves what was there, and so does one that fails.
  const QByteArray fertig = Inhalt(ziel);
  buehne.fortschritt.abbruchBei = 2;
  Sichern(ziel);
  EXPECT_EQ(buehne.dialoge.gezeigt.back().verzeichnis, path());
  EXPECT_EQ(Inhalt(ziel), fertig);
  buehne.fortschritt.abbruchBei = 1000;
  buehne.boxen.Erwarten("Vesk - Fehlermeldung", "konnte nicht gespeichert werden");
  Sichern(filePath(u"fehlt/Papiere.pdf"_s));
  const QString offen = filePath(u"user.dat"_s);
  buehne.boxen.Erwarten("Vesk - Fehlermeldung", "In user.dat stehen die Daten der Station.");
  Sichern(offen);
  EXPECT_FALSE(Inhalt(offen).startsWith("%PDF-"));
  EXPECT_EQ(buehne.speicher.werte.value({u"Unterlagen"_s, u"Verzeichnis"_s}), path());
  Menue(u"mnuPapiereDrucken"_s, Vorschau);
  EXPECT_EQ(buehne.papier.seiten, Ding<QListWidget>(u"lstSeiten"_s, Vorschau).count());
  for (const auto& [ausgang, text] : {std::pair(Druckausgang::KeinDrucker, "kein Drucker eingerichtet"),
                                      std::pair(Druckausgang::Gescheitert, "nicht alles gedruckt")}) {
    buehne.papier.ausgang = ausgang;
    buehne.boxen.Erwarten("Drucken", text);
    Menue(u"mnuPapiereDrucken"_s, Vorschau);
  }
}

TEST_F(PapiereTest, WinkeldiagrammNurMitTabelleUndImGewaehltenMassstab) {
  Menue(u"mnuMoreOptions"_s);
  Ding<QTabWidget>(u"SSTab1"_s, u"frmOptions"_s).setCurrentIndex(3);
  buehne.boxen.Erwarten("Winkeldiagramm", "nichts zu zeichnen");
  Menue(u"mnuWDruck"_s, u"frmOptions"_s);
  Menue(u"mnuWinkelBeispiel"_s, u"frmOptions"_s);
  EXPECT_FALSE(Ding<QAction>(u"mnuWHSM306"_s, u"frmOptions"_s).isEnabled());  // 144 MHz: no such limit
  Menue(u"mnuWDruck"_s, u"frmOptions"_s);
  EXPECT_EQ(Ding<QListWidget>(u"lstSeiten"_s, Vorschau).count(), 1);
  auto& massstab = Ding<QComboBox>(u"cboMassstab"_s, Vorschau);
  EXPECT_EQ(massstab.currentText(), u"1:100");
  massstab.setFocus();
  massstab.lineEdit()->selectAll();
  Tippen(u"1:250"_s);
  Taste(Qt::Key_Return);
  EXPECT_EQ(Text(u"txtWPolar"_s, u"frmOptions"_s), u"250");
  EXPECT_FALSE(station.papiere.passend);
  massstab.lineEdit()->selectAll();
  Tippen(u"egal"_s);
  Taste(Qt::Key_Return);
  EXPECT_EQ(massstab.currentText(), u"passend");
}

}  // namespace
}  // namespace vesk
