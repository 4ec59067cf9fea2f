#include <gtest/gtest.h>

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <iostream>
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
  const Aufruf aufruf =
      KommandozeileAusfuehren(zeile.split(u' ', Qt::SkipEmptyParts), ',', {std::cin, aus, fehler});
  const std::string text(std::istreambuf_iterator<char>(aus.rdbuf()), {});
  return {aufruf, QString::fromStdString(text), fehler.str()};
}

TEST(Kommandozeile, FalscheEingaben) {
  for (const Tabellenzeile& fall : Tabelle("app/Kommandozeile.csv")) {
    const Lauf lauf = Ausfuehren(QString::fromStdString(fall["zeile"]));
    EXPECT_TRUE(lauf.rueckgabe == 2 && lauf.aus.isEmpty()) << fall.text;
    EXPECT_NE(lauf.fehler.find(fall["meldung"]), std::string::npos) << fall.text << "\n" << lauf.fehler;
  }
}

TEST(Kommandozeile, OptionenDesToolkitsGehenDurch) {
  const Lauf lauf = Ausfuehren(u"--platform=minimal -display :9 -style x -geometry 9x9 --verzeichnis d e"_s);
  EXPECT_TRUE(!lauf.rueckgabe && lauf.verzeichnis == u"d") << lauf.fehler;
  EXPECT_EQ(lauf.datei, QDir::current().filePath(u"e"_s));
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
  Merkspeicher speicher;

  MitgelieferteKopieren(v, speicher);
  EXPECT_EQ(Inhalt(kabel), Inhalt(v.daten + "/Kabel.txt"_L1));
  EXPECT_EQ(Inhalt(ordner.filePath(u"TIPOFDAY.TXT"_s)), Inhalt(v.daten + "/TIPOFDAY.TXT"_L1));
  EXPECT_EQ(Inhalt(eigene.fileName()), "") << "die des Benutzers bleibt";
  EXPECT_FALSE(eigene.permissions() & QFile::WriteOwner);

  ASSERT_TRUE(QFile::remove(kabel) && eigene.remove());
  MitgelieferteKopieren(v, speicher);
  EXPECT_EQ(QDir(v.programm).entryList(QDir::Files), QStringList(u"TIPOFDAY.TXT"_s))
      << "gelöscht bleibt gelöscht";
  ASSERT_TRUE(QFile::remove(ordner.filePath(u"TIPOFDAY.TXT"_s)));
  MitgelieferteKopieren(v, speicher);
  EXPECT_EQ(QDir(v.programm).entryList(QDir::Files | QDir::Hidden).size(), 3) << "and nothing beside them";
}

TEST(Verzeichnisse, WoNichtsZuSchreibenIst) {
  const QTemporaryDir ordner;
  QFile(ordner.filePath(u"datei"_s)).open(QIODevice::WriteOnly);
  Merkspeicher speicher;
  const QString daten = QStringLiteral(VESK_DATEN);
  EXPECT_EQ(MitgelieferteKopieren({ordner.filePath(u"datei/dort"_s), daten}, speicher),
            "Ein Teil des Pfades ist kein Verzeichnis.");
  EXPECT_TRUE(speicher.werte.isEmpty()) << "another time";
  const Verzeichnisse neu{ordner.filePath(u"neu/dort"_s), daten};
  EXPECT_EQ(MitgelieferteKopieren(neu, speicher), "");
  // All is there already, but nothing can be added. Whoever may do anything is stopped by a name.
  QDir(neu.programm).mkpath(u".probe-alt.vesk.neu"_s);
  EXPECT_NE(MitgelieferteKopieren(neu, speicher), "");
}

TEST(Verzeichnisse, NamenDieKeinTextSind) {
  const char* const argumente[] = {"vesk", "--verzeichnis", "/tmp/\xFF", "x"};
  std::ostringstream fehler;
  EXPECT_EQ(ArgumenteLesen(4, argumente, fehler), std::nullopt);
  EXPECT_NE(fehler.str().find("kein UTF-8"), std::string::npos);
  EXPECT_EQ(ArgumenteLesen(2, argumente, fehler), QStringList(u"--verzeichnis"_s));
  const QString hier = QDir::currentPath();
  const QTemporaryDir ordner;
  const std::string unlesbar = ordner.path().toStdString() + "/\xFF";
  std::filesystem::create_directory(unlesbar);
  std::filesystem::current_path(unlesbar);
  EXPECT_EQ(VerzeichnisseBestimmen(u"x"_s, hier).programm, u""_s) << "not another one";
  QDir::setCurrent(hier);
  std::filesystem::remove(unlesbar);  // the toolkit cannot name it
  EXPECT_EQ(VerzeichnisseBestimmen(u"/tmp/\uFFFD"_s, hier).programm, u"/tmp/\uFFFD"_s)
      << "a name like others";
  const QString eigener = QDir::homePath() + u"/.config"_s;
  for (const QString& merkspeicher : {u"/tmp/\uFFFD"_s, eigener}) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, merkspeicher);
    MerkspeicherBestimmen({u"/programm"_s, {}});
    EXPECT_TRUE(QSettings().fileName().startsWith(merkspeicher == eigener ? eigener : u"/programm/"_s));
  }
}

}  // namespace
}  // namespace vesk
