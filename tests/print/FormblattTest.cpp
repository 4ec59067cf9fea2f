#include <gtest/gtest.h>

#include "print/Dokumente.h"
#include "station/Datenblatt.h"
#include "station/Spalten.h"
#include "tests/print/Aufnahme.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

/// Where `text` stands; it is there once.
Textstelle Stelle(const Aufnahme& seite, const QString& text) {
  const auto gleich = [&](const Textstelle& t) { return t.text == text; };
  EXPECT_EQ(std::count_if(seite.texte.begin(), seite.texte.end(), gleich), 1) << text.toStdString();
  const auto stelle = std::find_if(seite.texte.begin(), seite.texte.end(), gleich);
  return stelle == seite.texte.end() ? Textstelle{} : *stelle;
}

TEST(Formblatt, ZellenStehenUnterIhremBuchstabenUndAufEinerLinie) {
  const std::array zahlen{"55", "12.25", "-0.75", "0.123456", "98765", "1234567890.1"};
  Station s;
  for (std::size_t i = 0; i < AnzahlZellen; ++i) s.Zellen[i] = "z" + std::to_string(i);
  std::copy(zahlen.begin(), zahlen.end(), s.Zellen.begin() + AnzahlZeilen);
  s.Datenblattspalten[3].Stecker = "c";
  for (const Dokument& form : {Formblatt(s, {}), FormblattRegTP(s)}) {
    const Aufnahme seite = Aufnehmen(form.seiten.front());
    for (int i = 0; i < AnzahlZellen; ++i) {
      const QString text = QString::fromStdString(s.Zellen[std::size_t(i)]);
      const Textstelle zelle = Stelle(seite, text);
      const double mitte = Stelle(seite, QChar(u'A' + i / AnzahlZeilen)).tinte.center().x();
      const double punkt = zelle.grund.x() + Textbreite(text.section(u'.', 0, 0), {zelle.punkt});
      EXPECT_NEAR(text.startsWith(u'z') ? zelle.tinte.center().x() : punkt - 1, mitte, 0.3);
      EXPECT_EQ(zelle.grund.y(), Stelle(seite, QString::number(i % AnzahlZeilen + 1)).grund.y());
    }
  }
  const Aufnahme seite = Aufnehmen(Formblatt(s, {}).seiten.front());
  EXPECT_NEAR(Stelle(seite, u"c"_s).tinte.center().x(), Stelle(seite, u"C"_s).tinte.center().x(), 0.3);
}

/// Columns with coloured cells, and how the notes begin.
QString Kurzbericht(const Dokument& form) {
  QString bunt;
  QString hinweise;
  for (const Textstelle& text : Aufnehmen(form.seiten.front()).texte) {
    const QChar spalte(u'A' + int((text.grund.x() - 75) / 30));
    if (text.farbe != Qt::black && !bunt.contains(spalte)) bunt += spalte;
    if (text.text.startsWith(u"Spalte"_s)) hinweise += u'|' + text.text.section(u' ', 0, 6);
  }
  return bunt + hinweise;
}

TEST(Formblatt, HinweiseUndFarbenGenauDannWennSieGelten) {
  const std::tuple<void (*)(Station&), QString, QString> faelle[] = {
      {[](Station&) {}, {}, {}},
      {[](Station& s) { s.spaltenfarben[2].rueckwaerts = true; },
       u"C|Spalte C: In Türkis, weil die Sendeleistung"_s, u"|Spalte C: Die Sendeleistung (Zeile 6) ist"_s},
      {[](Station& s) { s.Datenblattspalten[2].Zyklusfaktor = "0.50", KopfGeklickt(s, {}, 2); },
       u"|Spalte B: Gerechnet ist mit einem Faktor"_s,
       {}},
      {[](Station& s) { ZelleSetzen(s, 2, ZeileFrequenz, "145"), KopfGeklickt(s, {}, 2); },
       u"|Spalte B: Wo in Zeile 11 oder"_s, u"|Spalte B: Wo in Zeile 11 oder"_s},
      {[](Station& s) { ZelleSetzen(s, 1, ZeileGewinn, "3"), ZelleSetzen(s, 3, ZeileOhneHSM, "3"); },
       u"AC|Spalten A und C: Die Sicherheitsabstände (Zeilen"_s,
       u"|Spalten A und C: Die Sicherheitsabstände (Zeilen"_s},
  };
  for (const auto& [aendern, eigene, behoerde] : faelle) {
    Station s;
    for (int i = 1; i <= 3; ++i) {
      s.Datenblattspalten[std::size_t(i)] = LeereSpalte();
      for (const Zeile zeile : {ZeileFrequenz, ZeileLeistung, ZeileGewinn}) ZelleSetzen(s, i, zeile, "30");
      KopfGeklickt(s, {}, i);
    }
    aendern(s);
    EXPECT_EQ(Kurzbericht(Formblatt(s, {})), eigene);
    EXPECT_EQ(Kurzbericht(FormblattRegTP(s)), behoerde);
  }
}

TEST(Formblatt, LangeTexteFliessenWeiterUnterBuchstaben) {
  Station s;
  s.Zellen.fill("@@@@@@@@@@@@@@@@@@@@");
  s.benutzer.Standort = std::string(3000, '@');
  s.Datenblattspalten[7].Stecker = std::string(2000, '@');
  for (const auto& [form, zeichen] :
       {std::pair{Formblatt(s, {}), 5000}, std::pair{FormblattRegTP(s), 3000}}) {
    QString alles;
    for (const Seite& seite : form.seiten) alles += Aufnehmen(seite).Wortlaut();
    EXPECT_EQ(alles.count(u'@'), AnzahlZellen * 20 + zeichen);
    Stelle(Aufnehmen(form.seiten.back()), u"G"_s);
  }
}

}  // namespace
}  // namespace vesk
