#include "station/Lageplanhandlungen.h"
#include "tests/app/Lauf.h"
#include "ui/plan/Planblick.h"
#include "ui/plan/frmLageplan.h"

namespace vesk {
namespace {

const QString Plan = u"frmLageplan"_s;

/// Column A: 14.2 MHz, 100 W: 1.99 m.
struct Lageplanfenster : testing::Test, Verzeichnis, Lauf {
  Lageplanfenster() : Lauf(path()) {
    Rechnen({u"14.2"_s, u"100"_s});
    Klick(u"cmdCopy"_s);
    Ding<>(u"txtQRG"_s).setFocus();
    Taste(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&programm.Lageplan()));
    QCoreApplication::processEvents();
  }
  static Planblick& Bild() { return Ding<Planblick>(u"picPlan"_s, Plan); }
  static QPoint Stelle(Punkt ort) { return Bild().Abbildung().Nach(ort).toPoint(); }
  static void Nach(Punkt ort, Qt::KeyboardModifiers tasten = {}) {
    QMouseEvent bewegt(QEvent::MouseMove, Stelle(ort), Bild().mapToGlobal(Stelle(ort)), Qt::NoButton,
                       QApplication::mouseButtons(), tasten);
    QCoreApplication::sendEvent(&Bild(), &bewegt);
  }
  static void Klicken(Punkt ort, Qt::KeyboardModifiers tasten = {}) {
    Nach(ort);
    QTest::mouseClick(&Bild(), Qt::LeftButton, tasten, Stelle(ort));
    QCoreApplication::processEvents();
  }
  static void Ziehen(Punkt von, Punkt bis) {
    QTest::mousePress(&Bild(), Qt::LeftButton, {}, Stelle(von));
    Nach({(von.x + bis.x) / 2, von.y});
    Nach(bis);
    QTest::mouseRelease(&Bild(), Qt::LeftButton, {}, Stelle(bis));
    QCoreApplication::processEvents();
  }
  static void Werkzeug(int i) { Klick(u"optWerkzeug_%1"_s.arg(i), Plan); }
  static void Eintragen(const QString& feld, const QString& text) {
    Ding<>(feld, Plan).setFocus(Qt::TabFocusReason);
    Ding<>(feld, Plan).selectAll();
    Tippen(text);
  }
  static void Zelleneintrag(int zeile, int spalte, const QString& text) {
    auto& tabelle = Ding<QTableWidget>(u"tblPunkte"_s, Plan);
    tabelle.setFocus();
    tabelle.setCurrentCell(zeile, spalte);
    Taste(Qt::Key_F2);
    Tippen(text);
    Taste(Qt::Key_Return);
  }
  static QString Hinweis() { return Text(u"lblPlanhinweis"_s, Plan); }
  const std::vector<Planobjekt>& Objekte() const { return station.lageplan.objekte; }
};

TEST_F(Lageplanfenster, MitDerMausGezeichnet) {
  Werkzeug(1);
  Klicken({-8.1, -8.2});
  Klicken({8.1, -7.6});  // the right angle holds it level
  Nach({8, 0});
  Tippen(u"16"_s);
  EXPECT_EQ(Fokus(), u"txtMass");
  Taste(Qt::Key_Return);
  Tippen(u"20<27x"_s);
  Taste(Qt::Key_Return);
  EXPECT_TRUE(Hinweis().startsWith(u"Bitte eine Länge"_s));
  EXPECT_EQ(Text(u"txtMass"_s, Plan), u"20<27x");
  Taste(Qt::Key_Backspace);
  Tippen(u"0"_s);
  Taste(Qt::Key_Return);
  Taste(Qt::Key_Backspace);  // too long
  Tippen(u"16<270"_s);
  Taste(Qt::Key_Return);
  EXPECT_TRUE(Objekte().empty());
  Klicken({-8, -8});
  ASSERT_EQ(Objekte().size(), 1U);
  const Umriss grund{{-8, -8}, {8, -8}, {8, 8}, {-8, 8}};
  ASSERT_EQ(Objekte()[0].punkte.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(Objekte()[0].punkte[i].x, grund[i].x, 1e-9);
    EXPECT_NEAR(Objekte()[0].punkte[i].y, grund[i].y, 1e-9);
  }
  EXPECT_TRUE(Ding<QRadioButton>(u"optWerkzeug_0"_s, Plan).isChecked());
  Klick(u"cmdBereich"_s, Plan);
  ASSERT_EQ(Objekte().size(), 2U);
  EXPECT_EQ(Objekte()[1].art, Planart::Bereich);

  Werkzeug(7);
  Klicken({2.2, 2.75}, Qt::AltModifier);
  ASSERT_EQ(Objekte().size(), 3U);
  EXPECT_NEAR(Objekte()[2].punkte[0].y, 2.75, 0.1);
  EXPECT_FALSE(Bild().accessibleDescription().contains(u"1.99"_s));
  Klick(u"chkSpalte_0"_s, Plan);
  EXPECT_TRUE(Bild().accessibleDescription().contains(u"Antenne 1 ohne HSM: 1.99 m"_s));
  // One drag is one step.
  Ziehen(Objekte()[2].punkte[0], {7.5, 0});
  EXPECT_EQ(Objekte()[2].punkte[0], (Punkt{7.5, 0}));
  auto& befunde = Ding<QListWidget>(u"lstBefunde"_s, Plan);
  ASSERT_TRUE(QTest::qWaitFor([&] { return befunde.count() > 0; }));
  Ding<QTabWidget>(u"tabLageplan"_s, Plan).setCurrentIndex(3);
  EXPECT_FALSE(Ding<QPushButton>(u"cmdAbhilfe"_s, Plan).isEnabled());
  befunde.setFocus();
  Taste(Qt::Key_Space);
  Klick(u"cmdAbhilfe"_s, Plan);
  EXPECT_TRUE(Text(u"lblAbhilfe"_s, Plan).contains(u"ohne HSM: Es würde passen mit"_s));
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NEAR(Objekte()[2].punkte[0].x, 2.2, 0.1);
  Taste(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Objekte()[2].punkte[0], (Punkt{7.5, 0}));
  // The zone follows the figures of the sheet.
  const QString blatt = u"frmDatenblatt"_s;
  Menue(u"mnuDatenblatt"_s);
  Aktivieren(blatt);
  Klick(Zellenname(1, ZeileLeistung), blatt);
  Ding<>(Zellenname(1, ZeileLeistung), blatt).selectAll();
  Tippen(u"400"_s);
  EXPECT_TRUE(Bild().accessibleDescription().contains(u"(veraltet)"_s));
  Klick(u"cmdRechnen"_s, blatt);
  EXPECT_TRUE(Bild().accessibleDescription().contains(u"ohne HSM: 3.98 m"_s));
}

TEST_F(Lageplanfenster, OhneMausGezeichnet) {
  Taste(Qt::Key_Down);
  EXPECT_EQ(Fokus(), u"optWerkzeug_1");
  Taste(Qt::Key_Return);
  EXPECT_EQ(Fokus(), u"picPlan");
  Taste(Qt::Key_Return);
  for (const QString& kante : {u"20<90"_s, u"15<0"_s, u"20<270"_s}) {
    Tippen(kante);
    Taste(Qt::Key_Return);
  }
  Taste(Qt::Key_Return);
  ASSERT_EQ(Objekte().size(), 1U);
  ASSERT_EQ(Objekte()[0].punkte.size(), 4U);
  Zelleneintrag(2, 0, u"2x,5"_s);
  EXPECT_EQ(Fokus(), u"txtZelle");  // Enter does not leave what means nothing
  EXPECT_TRUE(Hinweis().startsWith(u"Bitte eine Zahl von"_s));
  EXPECT_NEAR(Objekte()[0].punkte[2].x, 20, 1e-9);
  Ding<>(Fokus(), Plan).selectAll();
  Tippen(u"22,5"_s);
  Taste(Qt::Key_Return);
  EXPECT_EQ(Objekte()[0].punkte[2].x, 22.5);
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NEAR(Objekte()[0].punkte[2].x, 20, 1e-9);  // typed, mistyped and mended: one step
  Taste(Qt::Key_F2);
  Tippen(u"9"_s);
  Taste(Qt::Key_Escape);
  EXPECT_NEAR(Objekte()[0].punkte[2].x, 20, 1e-9);
  Taste(Qt::Key_Escape);
  EXPECT_EQ(Fokus(), u"tblPunkte");

  Ding<QComboBox>(u"cboNeu"_s, Plan).setFocus();
  Taste(Qt::Key_End);
  Taste(Qt::Key_Tab);
  Taste(Qt::Key_Space);
  ASSERT_EQ(Objekte().size(), 2U);
  Eintragen(u"txtObjektname"_s, u"Vertikal"_s);
  Ding<QWidget>(u"chkSpalte_0"_s, Plan).setFocus();
  Taste(Qt::Key_Space);
  EXPECT_TRUE(Bild().accessibleDescription().contains(u"Antenne „Vertikal“ ohne HSM: 1.99 m"_s));
  Zelleneintrag(0, 0, u"4.5"_s);
  Bild().setFocus();
  Taste(Qt::Key_Up);
  Taste(Qt::Key_Up);
  Taste(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_NEAR(Objekte()[1].punkte[0].y, 1.1, 1e-9);
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Objekte()[1].punkte[0], (Punkt{4.5, 0}));
  Taste(Qt::Key_Delete);
  EXPECT_EQ(Objekte().size(), 1U);
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Objekte().size(), 2U);
}

TEST_F(Lageplanfenster, HinweisNenntWasJetztGeht) {
  const auto zusagen = [] { return Hinweis().contains(u"schließt den Umriß"_s); };
  Werkzeug(1);
  Klicken({0, 0});
  EXPECT_FALSE(zusagen());
  Klicken({10, 0});
  EXPECT_TRUE(zusagen());
  Taste(Qt::Key_Backspace);
  EXPECT_FALSE(zusagen());
  EXPECT_TRUE(Hinweis().contains(u"Rücktaste"_s));
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Hinweis(), QString());
}

TEST_F(Lageplanfenster, RueckgaengigNimmtZuerstWasGezeichnetWird) {
  Werkzeug(1);
  Klicken({0, 0});
  Werkzeug(3);  // what has been begun is to be a building
  Bild().setFocus();
  Tippen(u"80<90"_s);
  Taste(Qt::Key_Return);
  EXPECT_TRUE(Bild().rect().contains(Stelle({80, 0})));  // it follows what is typed
  Tippen(u"7"_s);
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(u"txtMass"_s, Plan), u"");
  Ding<QRadioButton>(u"optWerkzeug_3"_s, Plan).setFocus();
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Fokus(), u"picPlan");
  Tippen(u"10<90"_s);
  Taste(Qt::Key_Return);
  Tippen(u"10<0"_s);
  Taste(Qt::Key_Return);
  Taste(Qt::Key_Return);
  ASSERT_EQ(Objekte().size(), 1U);
  EXPECT_EQ(Objekte()[0].art, Planart::Gebaeude);
  EXPECT_NEAR(Objekte()[0].punkte.at(1).x, 10, 1e-9);
  QTest::mousePress(&Bild(), Qt::LeftButton, {}, Stelle({10, 0}));
  Nach({15, 5});
  Taste(Qt::Key_Z, Qt::ControlModifier);
  QTest::mouseRelease(&Bild(), Qt::LeftButton, {}, Stelle({15, 5}));
  ASSERT_EQ(Objekte().size(), 1U);
  EXPECT_NEAR(Objekte()[0].punkte.at(1).x, 10, 1e-9);
  Taste(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Objekte().empty());
}

TEST_F(Lageplanfenster, HinweisGiltDemGewaehlten) {
  Werkzeug(7);
  Klicken({0, 0});
  EXPECT_TRUE(Hinweis().contains(u"keine Spalte"_s));
  Klick(u"chkSpalte_0"_s, Plan);
  EXPECT_EQ(Hinweis(), QString());
  Klick(u"chkSpalte_0"_s, Plan);
  programm.Tun(Mit(LageplanSetzen, Lageplan{}));
  EXPECT_EQ(Hinweis(), QString());
  // An outline that has lost all corners in its file.
  Lageplan plan;
  plan.objekte.emplace_back();
  programm.Tun(Mit(LageplanSetzen, plan));
  Ding<QTableWidget>(u"tblObjekte"_s, Plan).selectRow(0);
  EXPECT_TRUE(Hinweis().contains(u"drei Ecken"_s));
  EXPECT_FALSE(Ding<QPushButton>(u"cmdEckeLoeschen"_s, Plan).isEnabled());
  Bild().setFocus();
  Taste(Qt::Key_Insert);
  EXPECT_TRUE(Objekte().at(0).punkte.empty());
}

TEST_F(Lageplanfenster, FeldBehaeltWasUnklarIst) {
  Ding<QTabWidget>(u"tabLageplan"_s, Plan).setCurrentIndex(2);
  Eintragen(u"txtNord"_s, u"12,5"_s);
  EXPECT_EQ(station.lageplan.nord, 12.5);
  Taste(Qt::Key_Tab);
  Eintragen(u"txtNord"_s, u"400"_s);  // 4 and 40 would be possible
  EXPECT_EQ(Text(u"txtNord lblPlanhinweis"_s, Plan), u"400|Bitte eine Zahl von -360 bis 360 Grad.");
  EXPECT_EQ(station.lageplan.nord, 12.5);
  Taste(Qt::Key_Tab);
  EXPECT_EQ(Text(u"txtNord"_s, Plan), u"12.5");
  EXPECT_TRUE(Hinweis().contains(u"„400“"_s));
}

TEST_F(Lageplanfenster, BilderUndUmrisseAusDateien) {
  QImage bild(200, 100, QImage::Format_RGB32);
  bild.fill(Qt::white);
  ASSERT_TRUE(bild.save(filePath(u"karte.png"_s)));
  buehne.dialoge.Antworten(filePath(u"karte.png"_s));
  buehne.boxen.Erwarten("Hintergrundbild wählen", "Karte eichen");
  Menue(u"mnuHintergrund"_s, Plan);
  ASSERT_TRUE(station.lageplan.hintergrund);
  EXPECT_EQ(station.lageplan.hintergrund->datei, "karte.png");
  Werkzeug(9);
  Klicken({0, 5});
  Klicken({20, 5});
  Tippen(u"10"_s);
  Taste(Qt::Key_Return);
  EXPECT_EQ(station.lageplan.hintergrund->abstand, 10);
  EXPECT_NEAR(station.lageplan.hintergrund->bildpunkte[1].x, 40, 1.5);
  QFile umriss(filePath(u"flur.geojson"_s));
  ASSERT_TRUE(umriss.open(QFile::WriteOnly));
  umriss.write(R"({"type":"Polygon","coordinates":[[[7,50],[7.0002,50],[7.0002,50.0002],[7,50]]]})");
  umriss.close();
  buehne.dialoge.Antworten(filePath(u"flur.geojson"_s));
  buehne.boxen.alleErlaubt = true;
  Menue(u"mnuGeojson"_s, Plan);
  EXPECT_EQ(Objekte().size(), 1U);
  EXPECT_TRUE(station.lageplan.geo);
  buehne.dialoge.Antworten(filePath(u"karte.png"_s));
  Menue(u"mnuGeojson"_s, Plan);
  EXPECT_EQ(Objekte().size(), 1U);
  EXPECT_TRUE(buehne.boxen.gezeigt.back().text.starts_with("Die Datei karte.png konnte nicht eingelesen"));
}

}  // namespace
}  // namespace vesk
