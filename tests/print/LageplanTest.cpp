#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

#include "print/Dokumente.h"
#include "print/Planbild.h"
#include "print/Satz.h"
#include "print/Svg.h"
#include "tests/Tabelle.h"
#include "tests/print/Aufnahme.h"
#include "tests/station/Tisch.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const QDate Datum(2026, 11, 21);
constexpr double Hoehe = 9.5;
constexpr double Kante = 24;

Planobjekt Objekt(Planart art, const std::string& name, const Umriss& punkte, double hoehe = 0) {
  Planobjekt objekt;
  objekt.art = art;
  objekt.name = name;
  objekt.punkte = punkte;
  objekt.hoehe = hoehe;
  return objekt;
}

Umriss Rechteck(double x, double y, double breite, double hoehe) {
  return {{x, y}, {x + breite, y}, {x + breite, y + hoehe}, {x, y + hoehe}};
}

/// A plot with a forest in the west and a neighbour's house in the east; the antenna is nearest to the north.
Tisch Beispiel(const std::string& leistung) {
  Tisch t;
  t.s.benutzer.Rufzeichen = "DL1ABC";
  t.Eingeben("14.2", leistung, "0").Rechnen().Kopieren().Zelle(1, ZeileHoehe, "9.5");
  auto& objekte = t.s.lageplan.objekte;
  objekte = {Objekt(Planart::Grundstueck, "", Rechteck(0, 0, Kante, Kante)),
             Objekt(Planart::Bereich, "", Rechteck(1, 1, Kante - 2, Kante - 2)),
             Objekt(Planart::Gebaeude, "Wohnhaus", Rechteck(2, 3, 11, 8), 7.5),
             Objekt(Planart::Gebaeude, "", Rechteck(29, 2, 8, 8), 6),
             Objekt(Planart::Nachbar, "Flurstück 7, Wald", Rechteck(-10, 0, 10, Kante)),
             Objekt(Planart::Antenne, "Vertikal", {{17, 16}})};
  objekte[3].nutzung = Nutzung::Nachbar;
  objekte.back().spalten.set(0);
  return t;
}

std::vector<QLineF> Striche(const Aufnahme& bild, double staerke) {
  std::vector<QLineF> linien;
  for (const Strich& strich : bild.striche) {
    if (std::abs(strich.staerke - staerke) < 1e-6) linien.push_back(strich.linie);
  }
  return linien;
}

TEST(Lageplan, IstMassstaeblichUndSagtWasErZeigt) {
  for (const Tabellenzeile& fall : Tabelle("print/Lageplan.csv")) {
    SCOPED_TRACE(fall.text);
    Tisch t = Beispiel(fall["leistung"]);
    t.s.lageplan.format = Planformat{fall.Zahl("format")};
    t.s.lageplan.massstab = fall.Zahl("massstab");
    const Dokument dokument = Lageplandokument(t.s, Datum);
    ASSERT_EQ(static_cast<int>(dokument.seiten.size()), fall.Zahl("seiten"));
    std::vector<Aufnahme> bilder;
    QString alles;
    for (const auto& seite : dokument.seiten) {
      bilder.push_back(Aufnehmen(seite));
      AllesIn(Satzspiegel(seite.format), bilder.back());
      NichtsUeberdeckt(bilder.back().texte);
      alles += bilder.back().Wortlaut();
    }
    for (const QString& text : QString::fromStdString(fall["sagt"]).split(u'|')) {
      EXPECT_TRUE(alles.contains(text)) << qPrintable(text) << "\n" << qPrintable(alles);
    }
    for (const QString& text : QString::fromStdString(fall["schweigt"]).split(u'|', Qt::SkipEmptyParts)) {
      EXPECT_FALSE(alles.contains(text)) << qPrintable(text);
    }

    const double jeMeter = 1000.0 / fall.Zahl("gezeichnet");
    std::vector<QLineF> grenzen = Striche(bilder[0], 0.5);
    ASSERT_EQ(grenzen.size(), 8U);
    grenzen.resize(4);  // those behind are the legend's
    for (const QLineF& grenze : grenzen) EXPECT_NEAR(grenze.length(), Kante * jeMeter, 0.005);
    const auto links = [](const QLineF& a, const QLineF& b) { return a.center().x() < b.center().x(); };
    const auto unten = [](const QLineF& a, const QLineF& b) { return a.center().y() < b.center().y(); };
    const QPointF ecke(std::min_element(grenzen.begin(), grenzen.end(), links)->x1(),
                       std::max_element(grenzen.begin(), grenzen.end(), unten)->y1());
    const QPointF mast = ecke + QPointF(17, -16) * jeMeter;
    for (const Zeile zeile : {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde}) {
      const double radius = std::stod(t.Blatt(1, zeile)) * jeMeter;
      const std::vector<QLineF> zonen = Striche(bilder[0], 0.35);
      const auto getroffen = std::count_if(zonen.begin(), zonen.end(), [&](const QLineF& linie) {
        return std::abs(QLineF(mast, linie.p1()).length() - radius) < 0.01 * jeMeter;
      });
      EXPECT_GE(getroffen, 360) << zeile;
    }
    if (bilder.size() < 3) continue;
    const std::vector<QLineF> masten = Striche(bilder[1], 0.6);
    ASSERT_EQ(masten.size(), 2U);
    EXPECT_NEAR(masten[0].length(), Hoehe * jeMeter, 0.005);
  }
}

TEST(Lageplan, EinAusschnittZeigtNichtsDarueberHinaus) {
  const Tisch t = Beispiel("300");
  const QRectF ausschnitt(4000, 4000, 6000, 5000);
  for (const double jeMeter : {20., 500., 1e6}) {
    const Planabbildung abbildung{{-10 * jeMeter, 20 * jeMeter}, jeMeter, Aufnahmegeraet::JeMillimeter};
    Aufnahmegeraet geraet;
    QPainter maler(&geraet);
    maler.setClipRect(ausschnitt);
    PlanMalen(maler, PlanbildVon(t.s), abbildung, Planschichten().set());
    SeitenansichtMalen(maler, t.s, 30, abbildung, Planschichten().set());
    AllesIn({40, 40, 60, 50}, geraet.aufnahme);
    EXPECT_FALSE(geraet.aufnahme.striche.empty());
  }
}

TEST(Lageplan, VeralteteZonenSindGrauUndHeissenSo) {
  Tisch t = Beispiel("10");
  t.Zelle(1, ZeileLeistung, "20");
  const Planbild bild = PlanbildVon(t.s);
  ASSERT_EQ(bild.zonen.size(), 3U);
  int grau = 0;
  for (const Textstelle& text : Aufnehmen(Lageplandokument(t.s, Datum).seiten[0]).texte) {
    if (!text.text.endsWith(u" m veraltet"_s)) continue;
    ++grau;
    EXPECT_GT(text.farbe.lightness(), 100) << qPrintable(text.text);
  }
  EXPECT_EQ(grau, 3);
}

TEST(Lageplan, OhnePlanKeineSeite) {
  EXPECT_TRUE(Lageplandokument({}, Datum).seiten.empty());
  EXPECT_EQ(MappeBilden(Tisch().s, {}, {.kurve = {}, .massstab = {}, .datum = Datum}).dokumente.back().titel,
            u"Formblatt RegTP"_s);
  EXPECT_EQ(
      MappeBilden(Beispiel("10").s, {}, {.kurve = {}, .massstab = {}, .datum = Datum}).dokumente.back().titel,
      u"Lageplan"_s);
}

TEST(Lageplan, AlsSvgInWahrerGroesseMitLesbaremText) {
  Tisch t = Beispiel("10");
  t.s.lageplan.objekte[2].name = "Haus <\x01&>";
  const Papierauftrag auftrag{Papierart::Lageplan, {}, {}, Datum};
  QXmlStreamReader xml(Svg(MappeBilden(t.s, {}, auftrag), 0));
  QString breite;
  QString texte;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"svg") breite = xml.attributes().value(u"width"_s).toString();
    if (xml.name() == u"text") texte += xml.readElementText() + u'\n';
  }
  EXPECT_EQ(breite, u"297mm"_s);
  EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
  for (const QString& text : {u"E Haus <&>\n"_s, u"DL1ABC\n"_s, u"1:250\n"_s, u"Seite 1 von 2\n"_s}) {
    EXPECT_TRUE(texte.contains(text)) << qPrintable(texte);
  }
}

QByteArray Png(int breite, int hoehe) {
  QImage bild(breite, hoehe, QImage::Format_Mono);
  bild.fill(0);
  QByteArray bytes;
  QBuffer puffer(&bytes);
  bild.save(&puffer, "PNG");
  return bytes;
}

TEST(Lageplan, HintergrundbilderHaltenIhreGroesseOderSagenWarumNicht) {
  const std::tuple<QString, QByteArray, QString> faelle[] = {
      {u"gut.png"_s, Png(300, 200), {}},
      {u"gross.png"_s, Png(8000, 4000), {}},
      {u"fehlt.png"_s, {}, u"gibt es nicht"_s},
      {u"."_s, {}, u"keine gewöhnliche Datei"_s},
      {u"text.png"_s, QByteArray("Kein Bild, nur Text."), u"weder ein PNG- noch ein JPEG-Bild"_s},
      {u"halb.png"_s, Png(300, 200).left(20), u"beschädigt"_s},
      {u"riese.png"_s, Png(20001, 2), u"hat 20001 × 2 Bildpunkte"_s},
  };
  const QTemporaryDir ordner;
  Station s;
  s.Arbeitsverzeichnis = ordner.path().toStdString();
  for (const auto& [name, bytes, erwartet] : faelle) {
    SCOPED_TRACE(qPrintable(name));
    QFile datei(ordner.filePath(name));
    if (!bytes.isEmpty() && datei.open(QFile::WriteOnly)) datei.write(bytes);
    datei.close();
    s.lageplan.hintergrund.emplace().datei = name.toStdString();
    QString grund;
    const QImage bild = PlanhintergrundLaden(s, grund);
    EXPECT_EQ(bild.isNull(), !erwartet.isEmpty());
    EXPECT_TRUE(erwartet.isEmpty() ? grund.isEmpty() : grund.contains(erwartet)) << qPrintable(grund);
    if (bild.isNull()) continue;
    EXPECT_LE(double(bild.width()) * bild.height(), 16e6);
    EXPECT_NEAR(bild.deviceIndependentSize().width(), name == u"gut.png" ? 300 : 8000, 0.5);
  }
}

TEST(Stationsblockbild, NenntLeistungUndVerlustAnJederStelle) {
  for (const Tabellenzeile& fall : Tabelle("print/Blockbild.csv")) {
    Tisch t;
    t.Zelle(1, ZeileFrequenz, "14.2")
        .Zelle(1, ZeileAntenne, "Beam")
        .Zelle(1, ZeileLeistung, fall["leistung"]);
    t.Zelle(1, ZeileVerluste, fall["verluste"]).Zelle(1, ZeileGewinn, fall["gewinn"]);
    Datenblattspalte& satz = t.s.Datenblattspalten[1];
    satz.KabelIndex = satz.Antenne = satz.QRG = "";
    satz.KabelLaenge = "20";
    satz.D100 = "15";
    satz.Kabeldaempfung = fall["kabel"];
    satz.Stecker = fall["stecker"];
    const Dokument dokument = Stationsblockbild(t.s, t.k);
    const Aufnahme bild = Aufnehmen(dokument.seiten.at(0));
    EXPECT_NE(bild.Wortlaut().toStdString().find(fall["kette"]), std::string::npos)
        << fall.text << "\n"
        << bild.Wortlaut().toStdString();
    NichtsUeberdeckt(bild.texte);
  }
}

}  // namespace
}  // namespace vesk
