#include <gtest/gtest.h>

#include <QTextBoundaryFinder>

#include "print/Blatt.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const QString Faelle[] = {
    u" a "_s,
    u"Antenne über dem Dach, drehbar, mit Winkeltabelle\nund eine zweite Zeile"_s,
    u"ein Donaudampfschiffahrtsgesellschaftskapitänsmützenabzeichen am Hut"_s,
    u"e\u0302\u0302"_s.repeated(40),
    u"\U0001F4E1"_s.repeated(40),
    u"אנטנה על הגג "_s.repeated(6),
    QString(999, QChar(u'\u200B')) + u"\U0001F4E1"_s,
    QString(1500, QChar(u'\u200B')),
    QString(3000, u'i'),
};

TEST(Blatt, UmbrechenVerliertNichtsUndBleibtInDerBreite) {
  constexpr double Breite = 30;
  for (const QString& text : Faelle) {
    const QStringList zeilen = Umbrechen(text, {9}, Breite);
    QString ohneBlanks = text;
    EXPECT_EQ(zeilen.join(QString()).remove(u' '), ohneBlanks.remove(u'\n').remove(u' '));
    for (const QString& zeile : zeilen) EXPECT_LE(Textbreite(zeile, {9}), Breite) << zeile.toStdString();
    QTextBoundaryFinder zeichen(QTextBoundaryFinder::Grapheme, text);
    qsizetype ort = 0;
    for (const QString& zeile : zeilen) {
      ort = text.indexOf(zeile, ort) + zeile.size();
      zeichen.setPosition(ort);
      EXPECT_TRUE(zeichen.isAtBoundary()) << zeile.toStdString();
    }
  }
  EXPECT_EQ(Umbrechen({}, {9}, Breite), QStringList{QString()});
  EXPECT_EQ(Umbrechen(u"ab"_s, {9}, 0.1), (QStringList{u"a"_s, u"b"_s}));
  EXPECT_EQ(Umbrechen(Faelle[1], {9}, Breite, 2).size(), 2);
}

TEST(Blatt, GekuerztesStehtInEinerZeileUndSagtEs) {
  for (const QString& text : Faelle) {
    for (const double breite : {12., 500.}) {
      const QString zeile = Gekuerzt(text, {9}, breite);
      EXPECT_LE(Textbreite(zeile, {9}), breite) << zeile.toStdString();
      EXPECT_TRUE(zeile.isValidUtf16());
      EXPECT_EQ(zeile != text, zeile.endsWith(u" …")) << zeile.toStdString();
    }
  }
}

}  // namespace
}  // namespace vesk
