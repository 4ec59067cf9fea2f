#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include "Hilfebuch.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const char* const Verzeichnis = VESK_DATEN "/hilfe";

std::vector<int> AlleNummern() {
  const std::pair<int, int> bereiche[] = {{1001, 1012}, {1015, 1018}, {1029, 1037}, {2001, 2005},
                                          {2100, 2119}, {3001, 3005}, {4001, 4001}};
  std::vector<int> nummern;
  for (const auto& [von, bis] : bereiche) {
    for (int nummer = von; nummer <= bis; ++nummer) nummern.push_back(nummer);
  }
  return nummern;
}

class HilfebuchTest : public testing::Test {
 protected:
  QStringList Dateien() const {
    return QDir(QString::fromUtf8(Verzeichnis)).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
  }
  Hilfebuch buch{QString::fromUtf8(Verzeichnis)};
};

TEST_F(HilfebuchTest, JedeKontextnummerHatIhrenEintrag) {
  EXPECT_EQ(buch.Kontextnummern(), AlleNummern());
  for (const int nummer : AlleNummern()) {
    const QString seite = buch.Kontextseite(nummer);
    EXPECT_EQ(seite, u"kontext-%1.html"_s.arg(nummer));
    const QString html = buch.Html(seite).value_or(QString());
    EXPECT_FALSE(Seitentitel(html).isEmpty()) << nummer;
    EXPECT_TRUE(html.contains(u"href="_s)) << nummer << " names no page of the manual";
  }
}

TEST_F(HilfebuchTest, UnbekannteNummerGibtDenAnfangIhresBlocks) {
  const std::pair<int, int> faelle[] = {{0, 1001},    {1013, 1001}, {1038, 1001}, {2006, 2001},
                                        {2120, 2100}, {3006, 3001}, {4002, 4001}, {99999, 4001}};
  for (const auto& [nummer, anfang] : faelle) {
    EXPECT_EQ(buch.Kontextseite(nummer), u"kontext-%1.html"_s.arg(anfang)) << nummer;
  }
}

TEST_F(HilfebuchTest, SeitenSindInOrdnungUndJederVerweisFuehrtZumZiel) {
  const QRegularExpression verweis(u"href=\"([^\"]*)\""_s);
  for (const QString& name : Dateien()) {
    const QString html = buch.Html(name).value_or(QString());
    EXPECT_FALSE(Seitentitel(html).isEmpty()) << name.toStdString();
    EXPECT_TRUE(html.contains(u"charset=\"utf-8\""_s)) << name.toStdString();
    EXPECT_FALSE(html.contains(u"color"_s)) << name.toStdString() << " may be unreadable in a dark theme";
    for (auto treffer = verweis.globalMatch(html); treffer.hasNext();) {
      const QUrl ziel(treffer.next().captured(1));
      if (!ziel.scheme().isEmpty()) continue;
      const QString zielseite = buch.Html(ziel.path()).value_or(QString());
      EXPECT_FALSE(zielseite.isEmpty()) << name.toStdString() << " -> " << ziel.toString().toStdString();
      if (ziel.hasFragment()) {
        EXPECT_TRUE(zielseite.contains(u"name=\""_s + ziel.fragment() + u'"'))
            << ziel.toString().toStdString();
      }
    }
  }
}

TEST_F(HilfebuchTest, InhaltNenntJedeSeiteEinmal) {
  QStringList seiten;
  for (const Hilfeseite& seite : buch.Inhalt()) {
    seiten << seite.name;
    EXPECT_FALSE(seite.titel.isEmpty()) << seite.name.toStdString();
    EXPECT_LE(seite.ebene, 1);
  }
  EXPECT_EQ(seiten.value(0), u"start.html");
  seiten.sort();
  EXPECT_EQ(seiten.join(u' ').toStdString(), Dateien().join(u' ').toStdString());
}

TEST_F(HilfebuchTest, Suche) {
  const auto seiten = [this](const QString& begriff) {
    QStringList namen;
    for (const Fundstelle& stelle : buch.Suchen(begriff)) namen << stelle.seite;
    return namen;
  };
  EXPECT_EQ(seiten(u"Nahfeldsituation"_s).value(0), u"nahfeld.html");  // a word of the title comes first
  EXPECT_TRUE(seiten(u"nahfeld PROBLEMATIK"_s).contains(u"nahfeld.html"_s));
  EXPECT_TRUE(seiten(u"störschwelle ATV"_s).contains(u"hsmvde.html"_s));
  EXPECT_TRUE(seiten(u"Kabellänge"_s).contains(u"kontext-2108.html"_s));
  EXPECT_FALSE(seiten(u"Kabellänge"_s).contains(u"kontext.html"_s));
  EXPECT_TRUE(seiten(u"Nahfeld Xylophon"_s).isEmpty());
  EXPECT_TRUE(seiten(u"  "_s).isEmpty());
  EXPECT_TRUE(seiten(u"href"_s).isEmpty());
  ASSERT_FALSE(buch.Suchen(u"potenzgesetz"_s).empty());
  for (const Fundstelle& stelle : buch.Suchen(u"potenzgesetz"_s)) {
    EXPECT_TRUE(stelle.auszug.contains(u"Potenzgesetz"_s)) << stelle.auszug.toStdString();
    EXPECT_LT(stelle.auszug.size(), 160);
  }
}

TEST(Hilfebuch, OhneDateien) {
  const QTemporaryDir leer;
  Hilfebuch buch(leer.path());
  EXPECT_FALSE(buch.Vorhanden(u"F1.HLP"_s));
  EXPECT_FALSE(buch.Vorhanden(u"Vesk32.HLP"_s));
  EXPECT_TRUE(buch.Inhalt().empty());
  EXPECT_FALSE(buch.Html(u"start.html"_s));
  EXPECT_FALSE(buch.Html(buch.Kontextseite(1001)));
  EXPECT_TRUE(buch.Suchen(u"Nahfeld"_s).empty());
}

TEST_F(HilfebuchTest, NurSeitenDesVerzeichnisses) {
  EXPECT_FALSE(buch.Html(u"../TIPOFDAY.TXT"_s));
  EXPECT_FALSE(buch.Html(QString()));
}

}  // namespace
}  // namespace vesk
