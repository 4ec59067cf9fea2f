#include <gtest/gtest.h>

#include "print/Dokumente.h"
#include "tests/Tabelle.h"
#include "tests/print/Aufnahme.h"

namespace vesk {
namespace {

constexpr float Muster[AnzahlSektoren] = {1, 0.9F, 0.5F, 0.6F, 0.2F, 0.1F, 0.1F, 0.05F, 0.3F};

/// With a pacemaker the distances are twice, resp. three times those without.
Winkelblatt Messblatt(float weit, const std::string& text = "Yagi", float EIRP = 7) {
  Winkelblatt blatt{text, text, text, text, text, Winkelebene::Vertikal, {}, {}};
  blatt.daempfung.fill("-1.25" + text);
  for (const float m : Muster) blatt.tabelle.sektoren.push_back({EIRP, weit * m, 2 * weit * m, 3 * weit * m});
  return blatt;
}

TEST(Winkeldiagramm, EinLinealFindetWasDieMassstabszeileSagt) {
  for (const Tabellenzeile& fall : Tabelle("print/Massstaebe.csv")) {
    SCOPED_TRACE(fall.text);
    const Massstabswunsch wunsch = fall["gewuenscht"].empty() ? Massstabswunsch() : fall.Wert("gewuenscht");
    const int art = fall.Zahl("kurve");
    const Winkelblatt blatt = Messblatt(fall.Wert("hoechster"));
    const Aufnahme bild = Aufnehmen(Winkeldiagramm(blatt, Winkelkurve(art), wunsch).seiten.at(0));
    const std::string worte = bild.Wortlaut().toStdString();
    EXPECT_NE(worte.find(fall["zeile"]), worte.npos) << worte;
    EXPECT_TRUE(worte.ends_with("Sendeart.\n" + fall["hinweis"])) << worte;
    const double millimeter = 1000 / fall.Wert("gezeichnet");
    QPointF antenne;  // where the lines of the grid come from
    for (const Strich& s : bild.striche) {
      if (std::abs(s.linie.length() - 80) < 0.01) antenne = s.linie.p1();
    }
    std::vector<QPointF> punkte;
    for (const Strich& s : bild.striche) {
      if (s.staerke < 0.36) continue;
      for (const QPointF p : {s.linie.p1() - antenne, s.linie.p2() - antenne}) punkte.push_back(p);
      EXPECT_GT(punkte.back().x() * (s.linie.x1() - antenne.x()), -0.6);
    }
    const double radius = millimeter * fall.Wert("hoechster") * (art + 1);
    for (int i = 0; i < 36; ++i) {
      const int grad = (i / 4 + i % 2) * (i % 4 < 2 ? 10 : -10);
      const QPointF ecke = QLineF::fromPolar(radius * Muster[i / 4], 90 - grad).p2();
      const auto hier = [&](QPointF punkt) { return QLineF(punkt, ecke).length() < 0.05; };
      EXPECT_TRUE(std::any_of(punkte.begin(), punkte.end(), hier)) << grad;
    }
    int zahlen = 0;
    for (const Textstelle& t : bild.texte) {
      const QPointF ort = t.grund + QPointF(t.breite / 2, 0) - antenne;
      const bool balken = ort.y() > 4;  // it stands in the middle below the antenna
      if (ort.y() < 0 || (balken && !t.text.endsWith(u" m"))) continue;
      EXPECT_NEAR(ort.x() * (balken ? 2 : 1), t.text.section(u' ', 0, 0).toDouble() * millimeter, 0.1);
      ++zahlen;
    }
    EXPECT_GE(zahlen, 6);
  }
}

TEST(Winkeldiagramm, TexteUndAbstaende) {
  Winkelblatt blatt = Messblatt(8);
  for (Sektor& sektor : blatt.tabelle.sektoren) sektor.HSMvde.reset();
  const Dokument dokument = Winkeldiagramm(blatt, Winkelkurve::HSM306, {});
  EXPECT_EQ(dokument.titel, QStringLiteral("Winkeldiagramm HSM 306 (Yagi)"));
  const std::string worte = Aufnehmen(dokument.seiten.at(0)).Wortlaut().toStdString();
  for (const Tabellenzeile& stueck : Tabelle("print/Winkeltexte.csv")) {
    EXPECT_NE(worte.find(stueck["text"]), worte.npos) << stueck.text << worte;
  }
  EXPECT_TRUE(Winkeldiagramm(blatt, Winkelkurve::HSMvde, {}).seiten.empty());
  EXPECT_TRUE(Winkeldiagramm({}, Winkelkurve::OhneHSM, {}).seiten.empty());
}

TEST(Winkeldiagramm, JederTextHatPlatz) {
  for (const char letter : {'W', '8'}) {
    const Winkelblatt blatt = Messblatt(3e18F, std::string(5000, letter), 3e38F);
    const Aufnahme bild = Aufnehmen(Winkeldiagramm(blatt, Winkelkurve::HSM306, 3e38F).seiten.at(0));
    for (const Textstelle& a : bild.texte) {
      EXPECT_TRUE(Satzspiegel(Blattformat::Hoch).contains(a.tinte)) << qPrintable(a.text);
      for (const Textstelle& b : bild.texte) EXPECT_TRUE(&a == &b || !a.tinte.intersects(b.tinte));
    }
  }
}

}  // namespace
}  // namespace vesk
