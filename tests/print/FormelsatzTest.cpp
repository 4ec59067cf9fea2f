#include "print/Dokumente.h"
#include "print/Formelsatz.h"
#include "station/Formel.h"
#include "tests/print/Aufnahme.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

Aufnahme Gesetzt(const Kasten& kasten) {
  return Aufnehmen({Blattformat::Hoch, [=](Blatt& blatt) { Malen(blatt, {20, 20}, kasten); }});
}
std::string Gelesen(const Aufnahme& seite) {
  return seite.Wortlaut().remove(u' ').remove(u'\n').toStdString();
}

TEST(Formelsatz, KlammernWoSieNoetigSindUndTeileAnIhremOrt) {
  const Ausdruck a = Term(Groesse{"a", "i", "2", {}}), n = Term(Groesse{"n", {}, "-3", {}});
  const std::tuple<Ausdruck, std::string, std::string> faelle[] = {
      {a - (a + n) - (n - a) * n, "ai−(ai+n)−(n−ai)·n", "2−(2+(−3))−(−3−2)·(−3)"},
      {n * a + Hoch(n, a), "n·ai+nai", "−3·2+(−3)2"},
      {Hoch(a, n / (a / n)), "ain/(ai/n)", "2−3/(2/(−3))"},
      {Hoch(a, (a - n) / (a * n)), "ai(ai−n)/(ai·n)", "2(2−(−3))/(2·(−3))"},
      {a / n * Wurzel(a - n), "ain·ai−n", "2−3·2−(−3)"},
      {Ln(a / n) / (n / a), "ln(ai/n)n/ai", "ln(2/(−3))−3/2"},
      {Hoch(Wurzel(a) / n, n), "(ain)n", "(2−3)−3"}};
  for (const auto& [formel, symbole, zahlen] : faelle) {
    EXPECT_EQ(Gelesen(Gesetzt(Formelkasten(formel, Einsatz::Symbole, 9))), symbole);
    EXPECT_EQ(Gelesen(Gesetzt(Formelkasten(formel, Einsatz::Zahlen, 9))), zahlen);
  }
  const Aufnahme bild = Gesetzt(Formelkasten(std::get<0>(faelle[6]), Einsatz::Symbole, 9));
  const auto& t = bild.texte;  // bracket, a, its index, n, bracket, exponent
  const QLineF bruch = bild.striche.front().linie, wurzel = bild.striche.back().linie;
  EXPECT_TRUE(t[0].tinte.top() < t[1].tinte.top() && t[0].tinte.bottom() > t[3].tinte.bottom());
  EXPECT_TRUE(t[2].grund.y() > t[1].grund.y() && t[2].punkt < t[1].punkt);
  EXPECT_TRUE(t[5].grund.y() < t[1].grund.y() && t[5].punkt < t[1].punkt);
  EXPECT_TRUE(t[2].tinte.bottom() < bruch.y1() && bruch.y1() < t[3].tinte.top());
  EXPECT_TRUE(wurzel.y1() < t[1].tinte.top() && wurzel.x2() > t[2].tinte.right());
}

TEST(Formelsatz, GleichungBrichtVorDemGleichheitszeichen) {
  const Groesse x{"x", {}, "27.5", "V/m"};
  EXPECT_EQ(Gelesen(Gesetzt(Gleichungskasten({x, Term(27.5)}, 9, 10, 170))), "x=27.5V/m");
  const Ausdruck formel = Term(Groesse{"y", {}, "30", {}}) - Term(2.5);
  for (const auto& [breite, zeilen] : {std::pair{170, 1}, {40, 2}, {30, 3}, {18, 3}}) {
    const Aufnahme bild = Gesetzt(Gleichungskasten({x, formel}, 9, 10, breite));
    EXPECT_EQ(Gelesen(bild), "x=y−2.5=30−2.5=27.5V/m");
    int anfaenge = 0;
    for (const Textstelle& t : bild.texte) {
      EXPECT_LE(t.grund.x() + t.breite, 20 + breite);
      if (t.grund.x() == 30) anfaenge += t.text.contains(u'=');
    }
    EXPECT_EQ(anfaenge, zeilen);
  }
}

TEST(Rechenwege, JedeSpalteAufEinerSeiteMitIhrerGanzenRechnung) {
  Tisch tisch;
  tisch.Eingeben("3.6", "750", "-2.15", "", "3.33").Kabel("Aircell 7", "20").Rechnen().Kopieren();
  const Dokument papier = Rechenwege(tisch.Eingeben("144").Rechnen().Kopieren().s, tisch.k);
  ASSERT_EQ(papier.seiten.size(), 2U);
  for (const std::size_t seite : {0U, 1U}) {
    const std::string alles = Gelesen(Aufnehmen(papier.seiten[seite]));
    for (const Rechenabschnitt& abschnitt : Rechenweg(tisch.s, tisch.k, int(seite) + 1)) {
      for (auto [ganz, ein, gleichung] : abschnitt.zeilen) {
        if (ein) ganz += ein->symbol + ein->index + ein->zahl + ein->einheit;
        if (gleichung) ganz += Gelesen(Gesetzt(Gleichungskasten(*gleichung, 9, 20, 170)));
        std::erase(ganz, ' ');
        EXPECT_NE(alles.find(ganz), std::string::npos) << ganz;
      }
    }
  }
}

}  // namespace
}  // namespace vesk
