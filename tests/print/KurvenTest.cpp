#include <gtest/gtest.h>

#include <cmath>

#include "print/Dokumente.h"
#include "print/Kurven.h"
#include "station/Diagramme.h"
#include "tests/print/Aufnahme.h"
#include "tests/station/Tisch.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

/// Paints a chart alone, 150 mm x 100 mm.
Aufnahme Bildaufnahme(const Kurvenbild& bild) {
  return Aufnehmen(Seite{Blattformat::Hoch, [&](Blatt& blatt) {
                           KurvenbildMalen(blatt, {20, 20, 150, 100}, bild);
                         }});
}

/// Of numbers that both axes have, the upright axis paints its own last.
QPointF Mitte(const Aufnahme& bild, const QString& text, bool hochachse = false) {
  std::optional<QPointF> mitte;
  for (const Textstelle& stelle : bild.texte) {
    if (stelle.text == text && (hochachse || !mitte)) mitte = stelle.tinte.center();
  }
  return mitte.value();
}

/// Where a value is on an axis with round numbers at two places.
double Zwischen(double wert, double a, double ortA, double b, double ortB) {
  return ortA + (ortB - ortA) * std::log(wert / a) / std::log(b / a);
}

TEST(Kurvenbilder, WerteLiegenZwischenDenZahlenDerAchsen) {
  Tisch t;
  t.Eingeben("14.2", "150").Rechnen();
  const Aufnahme bild = Bildaufnahme(Diagramm(t.s, t.k, Diagrammart::AbstandUeberLeistung));
  const double x = Zwischen(150, 10, Mitte(bild, u"10"_s).x(), 100, Mitte(bild, u"100"_s).x());
  EXPECT_NEAR(Mitte(bild, u"150 W"_s).x(), x, 0.2);
  const double y = Zwischen(t.s.ergebnis->zahlen.ohneHSM.value(), 1, Mitte(bild, u"1"_s, true).y(), 2,
                            Mitte(bild, u"2"_s, true).y());
  int getroffen = 0;
  for (const Strich& strich : bild.striche) {
    const QLineF& l = strich.linie;
    if (std::abs(strich.staerke - 0.4) > 0.01 || l.x1() > x || l.x2() < x) continue;
    const double hier = l.y1() + (l.y2() - l.y1()) * (x - l.x1()) / (l.x2() - l.x1());
    if (std::abs(hier - y) < 0.3) ++getroffen;
  }
  EXPECT_EQ(getroffen, 1);
}

TEST(Kurvenbilder, LueckenTrennenDieLinie) {
  Kurvenbild bild;
  bild.x = {u"x"_s, 1, 100};
  bild.kurven.push_back({u"a"_s, 0, {{1, 2.}, {10, 3.}, {20, std::nullopt}, {50, 4.}, {100, 5.}}, {}});
  int striche = 0;
  for (const Strich& strich : Bildaufnahme(bild).striche)
    striche += std::abs(strich.staerke - 0.4) < 0.01 ? 1 : 0;
  EXPECT_EQ(striche, 3);  // one of them in the legend
}

/// The marks of a kind in a line, with "/" where it is interrupted.
QString Linientext(const Bildkurve& kurve) {
  QString text = kurve.name + u':';
  std::size_t zeichen = 0;
  for (const Kurvenpunkt& punkt : kurve.linie) {
    text += !punkt.y ? u'/' : Bildpunkt{punkt.x, *punkt.y} == kurve.punkte.at(zeichen++) ? u'x' : u'?';
  }
  return text;
}

TEST(Kurvenbilder, BaenderSindKurvenMitLuecken) {
  Tisch t;
  t.Eingeben("14.2", "100");
  std::vector<Bandzeile> zeilen = AlleBaender(t.s, t.k);
  zeilen.at(2).rechenbar = false;
  QStringList linien;
  for (const Bildkurve& kurve : BaenderbildVon(t.s, zeilen).abstaende.kurven) linien << Linientext(kurve);
  EXPECT_EQ(linien.join(u' ').toStdString(),
            "ohne HSM:xx/xxxxxxxxxxxxxxx HSM VDE:xx/xxxxxxx//////// HSM 306:xx/xxxxxx/////////");
}

/// The documents of a station on paper: nothing outside, nothing on top of another.
void Geprueft(const Tisch& t, std::size_t seiten) {
  const Mappe mappe = MappeBilden(t.s, t.k, {Papierart::Diagramme, {}, {}, {2026, 11, 21}});
  ASSERT_EQ(Seitenzahl(mappe), seiten);
  for (const Seite& seite : mappe.dokumente.front().seiten) {
    const Aufnahme bild = Aufnehmen(seite);
    const QRectF satz = Satzspiegel(seite.format).adjusted(-0.3, -0.3, 0.3, 0.3);
    for (std::size_t i = 0; i < bild.texte.size(); ++i) {
      EXPECT_TRUE(satz.contains(bild.texte[i].tinte)) << qPrintable(bild.texte[i].text);
      EXPECT_EQ(bild.texte[i].farbe, QColor(Qt::black));
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(bild.texte[i].tinte.intersects(bild.texte[j].tinte))
            << qPrintable(bild.texte[i].text + u" | "_s + bild.texte[j].text);
      }
    }
    for (const Strich& strich : bild.striche) {
      EXPECT_TRUE(satz.contains(strich.linie.p1()) && satz.contains(strich.linie.p2()));
    }
  }
}

TEST(Kurvenbilder, DiagrammeHaltenDenSatzspiegel) {
  Tisch t;
  Geprueft(t, 1);
  t.Eingeben("14.2", "750", "12.5")
      .Rechnen()
      .Kopieren()
      .Eingeben("144")
      .Kabel("RG213", "20")
      .Rechnen()
      .Kopieren();
  for (int i = 1; i < 5; ++i) t.Tun(KabelAnkreuzen, i, true);
  Geprueft(t, 3);
  t.Tun(ModusGeklickt).Eingeben("0.0031", "0.001").Rechnen();
  Geprueft(t, 3);
  t.Tun(EingabeGeklickt, Eingabefeld::PWR);
  Geprueft(t, 3);  // two columns instead
}

}  // namespace
}  // namespace vesk
