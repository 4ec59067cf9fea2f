#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <fstream>
#include <sstream>

#include "app/Kommandozeile.h"
#include "app/Verzeichnisse.h"
#include "tests/Tabelle.h"
#include "tests/platform/Skript.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

struct Lauf : Aufruf {
  QString aus;
  std::string fehler;
};

Lauf Ausfuehren(const QString& zeile, std::ostream&& aus = std::stringstream()) {
  std::ostringstream fehler;
  const Aufruf aufruf = KommandozeileAusfuehren(zeile.split(u' ', Qt::SkipEmptyParts), ',', aus, fehler);
  const std::string text(std::istreambuf_iterator<char>(aus.rdbuf()), {});
  return {aufruf, QString::fromStdString(text), fehler.str()};
}

QJsonObject Json(const QString& zeile) {
  return QJsonDocument::fromJson(Ausfuehren("rechnen --json "_L1 + zeile).aus.toUtf8()).object();
}

QString NamenOhneWert(const QJsonValue& objekt) {
  QStringList namen = objekt.toObject().keys();
  namen.removeIf([&](const QString& name) { return !objekt[name].isNull(); });
  return namen.join(u' ');
}

TEST(Rechnen, JsonTraegtAlleFelder) {
  const QJsonObject o = Json(u"--qrg 14,2 --pwr 100 --faktor 0.4 --gewinn -,0"_s);
  EXPECT_EQ(o[u"txtAusgabe"], u"1.26"_s);
  EXPECT_EQ(o[u"txtGewinn"], u"-.0"_s);
  EXPECT_EQ(o[u"Nahfeldflags"], 1);
  EXPECT_EQ(o[u"Meldungen"].toArray().size(), 1);
  EXPECT_NEAR(o[u"Werte"][u"Fernfeld"].toDouble(), 85.655, 1e-9);
  EXPECT_EQ(NamenOhneWert(o[u"Werte"]), u"");
}

TEST(Rechnen, UndefiniertesHatKeinenWert) {
  const QJsonObject o = Json(u"--qrg 145 --abstand 5 --gewinn=12.5 --daempfung 1,2 --winkel 3.33"_s);
  EXPECT_EQ(o[u"txtAusgabe"], u"100.58"_s);
  EXPECT_EQ(NamenOhneWert(o),
            u"lblStrahlung txtAusgabeHSM306 txtAusgabeHSMvde txtGrenzwertHSM306 "
            "txtGrenzwertHSMvde txtStrahlung txtUssHSM306 txtUssVDE");
  EXPECT_EQ(NamenOhneWert(o[u"Werte"]),
            u"EIRP GrenzwertHSM306 GrenzwertHSMvde LeistungHSM306 "
            "LeistungHSMvde SpitzenfeldHSM306 Uss306 UssVDE");
}

TEST(Rechnen, LaufzeitfehlerGibtAusWasGerechnetIst) {
  EXPECT_EQ(Ausfuehren(u"rechnen --qrg 0.002 --pwr 100 --exakt"_s).rueckgabe, 1);
  const QJsonObject o = Json(u"--qrg 0.002 --pwr 100 --exakt"_s);
  EXPECT_EQ(o[u"txtStrahlung"], u"100.00"_s);
  EXPECT_EQ(o[u"Laufzeitfehler"], u"Gleitkommafehler in der Berechnung."_s);
  const QString leer = NamenOhneWert(Json(u"--qrg 0.002 --abstand 5 --exakt"_s));
  EXPECT_TRUE(leer.startsWith(u"Nahfeldflags lblStrahlung txtAusgabe txtAusgabeHSM306 txtAusgabeHSMvde"));
}

TEST(Rechnen, ErgebnisseStehenUnterIhrenKoepfen) {
  const QString aus = Ausfuehren(u"rechnen --qrg 14,2 --pwr 100 --faktor 0.4"_s).aus;
  EXPECT_TRUE(
      aus.contains(uR"(
                                                    ohne HSM         HSM VDE         HSM 306
Berechnung für  f  [MHz]                               14,00           14,35           14,35
Grenzwert der Ersatzfeldstärke Eg [V/m]                27.50           12.33            6.56
Spitzenspannung Uss [V]                                                 0.89            0.32
Erforderlicher Sicherheitsabstand [m]                   1.26            4.44            8.35
)")) << aus.toStdString();
}

TEST(Kommandozeile, FalscheEingaben) {
  for (const Tabellenzeile& fall : Tabelle("app/Kommandozeile.csv")) {
    const Lauf lauf = Ausfuehren(QString::fromStdString(fall["zeile"]));
    EXPECT_TRUE(lauf.rueckgabe == 2 && lauf.aus.isEmpty()) << fall.text;
    EXPECT_NE(lauf.fehler.find(fall["meldung"]), std::string::npos) << fall.text << "\n" << lauf.fehler;
  }
}

TEST(Kommandozeile, OptionenDesToolkitsGehenDurch) {
  const Lauf lauf = Ausfuehren(u"--platform=minimal -display :9 -style x -geometry 9x9 --verzeichnis d"_s);
  EXPECT_TRUE(!lauf.rueckgabe && lauf.verzeichnis == u"d") << lauf.fehler;
  EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "minimal");
}

TEST(Kommandozeile, AusgabeDieNichtGeht) {
  for (const QString& zeile : {u"rechnen --qrg 14 --pwr 1"_s, u"rechnen -h"_s, u"--help"_s, u"--version"_s}) {
    EXPECT_EQ(Ausfuehren(zeile).rueckgabe, 0) << zeile.toStdString();
    const Lauf lauf = Ausfuehren(zeile, std::ofstream("/dev/full"));
    EXPECT_EQ(lauf.rueckgabe, 1) << zeile.toStdString();
    EXPECT_NE(lauf.fehler.find("Ausgabe"), std::string::npos) << zeile.toStdString();
  }
}

QByteArray Inhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QIODevice::ReadOnly) ? datei.readAll() : "fehlt";
}

TEST(Verzeichnisse, MitgelieferteKommenEinmal) {
  const QTemporaryDir ordner;
  const Verzeichnisse v{ordner.path(), QStringLiteral(VESK_DATEN)};
  const QString kabel = ordner.filePath(u"Kabel.txt"_s);
  QFile eigene(ordner.filePath(u"Antennen.txt"_s));
  ASSERT_TRUE(eigene.open(QIODevice::WriteOnly) && eigene.setPermissions(QFile::ReadOwner));
  skript::Speicher speicher;

  MitgelieferteKopieren(v, speicher);
  EXPECT_EQ(Inhalt(kabel), Inhalt(v.daten + "/Kabel.txt"_L1));
  EXPECT_EQ(Inhalt(ordner.filePath(u"TIPOFDAY.TXT"_s)), Inhalt(v.daten + "/TIPOFDAY.TXT"_L1));
  EXPECT_EQ(Inhalt(eigene.fileName()), "") << "die des Benutzers bleibt";
  EXPECT_FALSE(eigene.permissions() & QFile::WriteOwner);

  ASSERT_TRUE(QFile::remove(kabel) && eigene.remove());
  MitgelieferteKopieren(v, speicher);
  EXPECT_EQ(QDir(v.programm).entryList(QDir::Files), QStringList(u"TIPOFDAY.TXT"_s))
      << "gelöscht bleibt gelöscht";
}

}  // namespace
}  // namespace vesk
