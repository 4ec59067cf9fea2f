#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include "ui/info/Hilfebuch.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

struct HilfebuchTest : testing::Test {
  QStringList seiten =
      QDir(QStringLiteral(VESK_DATEN "/hilfe")).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
  Hilfebuch buch{QStringLiteral(VESK_DATEN "/hilfe")};
};

TEST_F(HilfebuchTest, JederVerweisFuehrtZumZiel) {
  const QRegularExpression verweis(u"href=\"([^\"]*)\""_s);
  for (const int nummer : buch.Kontextnummern()) seiten << buch.Kontextseite(nummer);
  for (const QString& name : seiten) {
    const QString html = buch.Html(name).value_or(QString());
    EXPECT_FALSE(Seitentitel(html).isEmpty()) << name.toStdString();
    if (name.startsWith(u"kontext-"_s)) {
      EXPECT_TRUE(html.contains(verweis)) << name.toStdString() << " names no page of the manual";
    }
    EXPECT_FALSE(html.contains(u"color"_s)) << name.toStdString() << " may be unreadable in a dark theme";
    for (auto treffer = verweis.globalMatch(html); treffer.hasNext();) {
      const QUrl ziel(treffer.next().captured(1));
      if (!ziel.scheme().isEmpty()) continue;
      const QString zielseite = buch.Html(ziel.path()).value_or(QString());
      const QString marke = ziel.hasFragment() ? u"name=\""_s + ziel.fragment() + u'"' : u"<title>"_s;
      EXPECT_TRUE(zielseite.contains(marke)) << name.toStdString() << ": " << ziel.toString().toStdString();
    }
  }
}

TEST_F(HilfebuchTest, UnbekannteNummerGibtDenAnfangIhresBlocks) {
  for (const auto& [nummer, anfang] :
       {std::pair(0, 1001), {1038, 1001}, {2008, 2001}, {2120, 2100}, {99999, 4001}}) {
    EXPECT_EQ(buch.Kontextseite(nummer), u"kontext-%1.html"_s.arg(anfang)) << nummer;
  }
}

TEST_F(HilfebuchTest, InhaltNenntJedeSeiteEinmal) {
  QStringList genannt;
  for (const Hilfeseite& seite : buch.Inhalt()) genannt << seite.name;
  EXPECT_EQ(genannt.value(0), u"start.html");
  genannt.sort();
  EXPECT_EQ(genannt.join(u' ').toStdString(), seiten.join(u' ').toStdString());
}

TEST_F(HilfebuchTest, Suche) {
  const auto gefunden = [this](const QString& begriff) {
    QStringList namen;
    for (const Fundstelle& stelle : buch.Suchen(begriff)) namen << stelle.seite;
    return namen;
  };
  EXPECT_EQ(gefunden(u"Nahfeldsituation"_s).value(0), u"nahfeld.html");  // a word of the title comes first
  EXPECT_TRUE(gefunden(u"störschwelle ATV"_s).contains(u"hsmvde.html"_s));
  EXPECT_TRUE(gefunden(u"Kabellänge"_s).contains(u"kontext-2108.html"_s));
  EXPECT_FALSE(gefunden(u"Kabellänge"_s).contains(u"kontext.html"_s));
  for (const QString& nichts : {u"Nahfeld Xylophon"_s, u"  "_s, u"href"_s})
    EXPECT_TRUE(gefunden(nichts).isEmpty());
  ASSERT_FALSE(buch.Suchen(u"potenzgesetz"_s).empty());
  const QString auszug = buch.Suchen(u"potenzgesetz"_s)[0].auszug;
  EXPECT_TRUE(auszug.contains(u"Potenzgesetz"_s)) << auszug.toStdString();
  EXPECT_LT(auszug.size(), 160);
}

TEST_F(HilfebuchTest, NurWasImVerzeichnisLiegt) {
  EXPECT_FALSE(buch.Html(u"../TIPOFDAY.TXT"_s));
  EXPECT_FALSE(buch.Html(QString()));
  const QTemporaryDir leer;
  Hilfebuch ohne(leer.path());
  EXPECT_TRUE(ohne.Inhalt().empty());
  EXPECT_FALSE(ohne.Html(ohne.Kontextseite(1001)));
  EXPECT_TRUE(ohne.Suchen(u"Nahfeld"_s).empty());
}

}  // namespace
}  // namespace vesk
