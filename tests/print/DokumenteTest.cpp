#include <gtest/gtest.h>

#include "print/Satz.h"
#include "tests/print/Aufnahme.h"
#include "tests/station/Tisch.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

constexpr const char* Baender[] = {"144", "430", "1240", "50", "28", "14", "3.6"};

/// A station with `spalten` columns that could be filed.
Tisch Fertig(int spalten) {
  Tisch t;
  t.s.benutzer = {
      "Erika Mustermann", "Am Funkturm 7", "12345 Musterstadt", "0123 45", "0123 46", "DL1ABC", "1",
      "Flurstück 12/3"};
  for (int i = 1; i <= spalten; ++i) {
    t.Eingeben(Baender[i - 1], "750", "15.3", "2.1").Rechnen().Kopieren();
    t.Zelle(i, ZeileHoehe, "12").Zelle(i, ZeileRichtung, "0-360").Zelle(i, ZeileAntenne, "Beam");
  }
  return t;
}

/// Words that end with one of their own.
std::string Langtext(std::size_t nummer) {
  const std::string ende = "Ende" + std::to_string(nummer);
  std::string text;
  while (text.size() < MaxFeldlaenge - ende.size()) text += "Wort ";
  return text.replace(MaxFeldlaenge - ende.size(), std::string::npos, ende);
}

Tisch Fall(const std::string& name) {
  if (name == "leer") return {};
  if (name == "typisch") return Fertig(3);
  Tisch t = Fertig(7);
  t.Tun(WinkelBeispiel);
  for (std::size_t i = 1; i <= 7; ++i) t.s.Datenblattspalten.at(i).Winkel = t.s.Datenblattspalten[0].Winkel;
  const bool lang = name == "lang";
  for (std::size_t i = 0; i < AnzahlZellen; ++i) {
    const auto zeile = i % AnzahlZeilen + 1;
    const bool text = zeile == ZeileHoehe || zeile == ZeileRichtung || zeile == ZeileAntenne;
    if (lang || text) t.s.Zellen.at(i) = lang ? "WWWWWWWWWWWWWWWWWWWW" : "WWWWÄÖÜ WWWWWWWWWWWW";
  }
  if (!lang) return t;
  for (std::size_t i = 0; i < Benutzerfelder.size(); ++i) t.s.benutzer.*Benutzerfelder.at(i) = Langtext(i);
  t.s.benutzer.Strasse = std::string(4000, 'W') + " Ende1";
  t.s.Fusszeile = Langtext(9);
  return t;
}

Mappe Binden(const Tisch& t) {
  return MappeBilden(t.s, t.k, {.kurve = {}, .massstab = {}, .datum = {2026, 11, 21}});
}

void HatZeilen(const QString& wortlaut, const QString& zeilen) {
  EXPECT_TRUE((u'\n' + wortlaut).contains(u'\n' + zeilen + u'\n')) << qPrintable(zeilen);
}

/// Takes off the footer, which is painted last.
Aufnahme FussAbnehmen(Aufnahme& seite, const QString& zaehlung) {
  const auto gleich = [&](const Textstelle& t) { return t.text == zaehlung; };
  const auto fuss = std::find_if(seite.texte.begin(), seite.texte.end(), gleich);
  Aufnahme abgenommen{{fuss, seite.texte.end()}, {seite.striche.back()}};
  seite.texte.erase(fuss, seite.texte.end());
  seite.striche.pop_back();
  return abgenommen;
}

/// Checks all pages; returns what the documents say.
std::vector<QString> Geprueft(const Mappe& mappe) {
  std::vector<QString> wortlaut;
  std::size_t nummer = 0;
  for (const Dokument& dokument : mappe.dokumente) {
    QString& text = wortlaut.emplace_back();
    for (const Seite& seite : dokument.seiten) {
      SCOPED_TRACE(qPrintable(u"%1, Seite %2"_s.arg(dokument.titel).arg(nummer + 1)));
      Aufnahme bild = Aufnehmen(mappe, nummer++);
      NichtsUeberdeckt(bild.texte);
      const Aufnahme fuss = FussAbnehmen(bild, u"Seite %1 von %2"_s.arg(nummer).arg(Seitenzahl(mappe)));
      const QRectF satz = Satzspiegel(seite.format);
      AllesIn(satz, bild);
      AllesIn({satz.left(), satz.bottom() + 1, satz.width(), 16}, fuss);
      EXPECT_TRUE(fuss.Wortlaut().contains(u"Erstellt mit "_s));
      text += bild.Wortlaut();
    }
  }
  return wortlaut;
}

class Papiere : public ::testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Faelle, Papiere, ::testing::Values("leer", "typisch", "voll", "lang"),
                         [](const auto& fall) { return std::string(fall.param); });

TEST_P(Papiere, HaltenDenSatzspiegelUndZaehlenIhreSeiten) {
  const Tisch t = Fall(GetParam());
  const Mappe mappe = Binden(t);
  const std::vector<QString> wortlaut = Geprueft(mappe);
  std::size_t seite = 1;
  for (std::size_t i = 0; i < wortlaut.size(); ++i) {
    const auto& [titel, seiten] = mappe.dokumente[i];
    const QString zahl = QString::number(seiten.size()) + (seiten.size() == 1 ? u" Seite"_s : u" Seiten"_s);
    if (i > 0) HatZeilen(wortlaut[0], titel + u'\n' + QString::number(seite));
    if (i > 1) HatZeilen(wortlaut[1], titel + u'\n' + zahl);
    seite += seiten.size();
  }
  for (const auto feld : Benutzerfelder) {
    // The end of a text that goes on over many pages.
    const QString ende = Papiertext(t.s.benutzer.*feld).section(u' ', -1);
    for (const std::size_t i : {1U, 2U})
      EXPECT_TRUE(wortlaut.at(i).contains(ende + u'\n')) << qPrintable(ende);
  }
}

TEST(Dokumente, TragenIhreTexteInDieserFolge) {
  const QString betreiber =
      u"Name|Erika Mustermann|Straße|Am Funkturm 7|Ort|12345 Musterstadt|Telefon|0123 45|Telefax|0123 46|"
      u"Rufzeichen|DL1ABC|Klasse|1|Standort|Flurstück 12/3"_s;
  const QString erwartet[] = {
      u"DL1ABC|Erika Mustermann|Flurstück 12/3|21.11.2026"_s,
      u"Angaben|zur Gewährleistung des Personenschutzes|"
      u"Gemäß §7 (AFuG) in Verbindung mit §6 (TKZulV) werden die Berechnungsunterlagen und ggf. die|"
      u"ergänzenden Meßprotokolle von folgender ortsfester Amateurfunkstelle(n) vorgelegt.|"_s +
          betreiber +
          u"|Am Standort sind weitere ortsfeste Sendefunkanlagen vorhanden|ja|nein|Beigefügt sind:|"
          u"Unterschrift|Datum"_s,
      betreiber,
  };
  const std::vector<QString> wortlaut = Geprueft(Binden(Fall("typisch")));
  for (std::size_t i = 0; i < std::size(erwartet); ++i) {
    QString rest = u'\n' + wortlaut.at(i);
    for (const QString& zeile : erwartet[i].split(u'|')) {
      const qsizetype ort = rest.indexOf(u'\n' + zeile + u'\n');
      ASSERT_GE(ort, 0) << i << qPrintable(zeile);
      rest.remove(0, ort + 1);
    }
  }
}

TEST(Dokumente, DasDeckblattNenntWasOffenIst) {
  Tisch vieles = Fertig(7);
  for (int i = 1; i <= 7; ++i) vieles.Zelle(i, ZeileHoehe, "").Zelle(i, ZeileRichtung, "");
  for (const auto& [t, mindestens] : {std::pair{Fall("typisch"), 0U}, {Fall("leer"), 1U}, {vieles, 14U}}) {
    const std::vector<Befund> befunde = PapierePruefen(t.s, t.k);
    EXPECT_GE(befunde.size(), mindestens);
    const QString text = Geprueft(Binden(t)).front().simplified();
    EXPECT_EQ(text.contains(u"Vor dem Einreichen offen:"_s), mindestens > 0);
    for (const Befund& b : befunde) EXPECT_TRUE(text.contains(QString::fromStdString(b.text))) << b.text;
  }
}

TEST(Dokumente, KeineUeberschriftStehtAlleinAmFussDerSeite) {
  const double hoehe = Satzspiegel(Blattformat::Hoch).height() - 14;  // room for the head, not for its text
  Bloecke bloecke{{.hoehe = hoehe, .malen = [](Blatt&, double) {}}, Ueberschrift(u"Kopf"_s)};
  bloecke += Textbloecke(u"Text"_s);
  const std::vector<Seite> seiten = Seitenumbruch(bloecke, {}, {}, false);
  ASSERT_EQ(seiten.size(), 2U);
  HatZeilen(Aufnehmen(seiten[1]).Wortlaut(), u"Kopf\nText"_s);
}

}  // namespace
}  // namespace vesk
