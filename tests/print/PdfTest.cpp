#define POINTERHOLDER_TRANSITION 4

#include <gtest/gtest.h>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include "print/Pdf.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

/// Two documents of two and one pages, the last one large and across.
Mappe Beispiel() {
  const auto seite = [](Blattformat format, const QString& text) {
    return Seite{format, [text](Blatt& blatt) { blatt.Text({30, 40}, text); }};
  };
  return {u"Unterlagen DL1ÄB"_s,
          u"DL1ÄB"_s,
          u"Fuß"_s,
          {},
          {{u"Größe"_s, {seite(Blattformat::Hoch, u"eins"_s), seite(Blattformat::Hoch, u"zwei"_s)}},
           {u"Maß"_s, {seite(Blattformat::QuerA3, u"drei"_s)}}}};
}

const QDateTime Zeit({2026, 3, 4}, {5, 6, 7}, Qt::UTC);

TEST(Pdf, TraegtTitelRufzeichenDatumUndLesezeichen) {
  const QByteArray bytes = Pdf(Beispiel(), Zeit);
  QPDF pdf;
  pdf.processMemoryFile("test", bytes.constData(), static_cast<std::size_t>(bytes.size()));
  QPDFObjectHandle angaben = pdf.getTrailer().getKey("/Info");
  EXPECT_EQ(angaben.getKey("/Title").getUTF8Value(), "Unterlagen DL1ÄB");
  EXPECT_EQ(angaben.getKey("/Author").getUTF8Value(), "DL1ÄB");
  EXPECT_EQ(angaben.getKey("/CreationDate").getUTF8Value(), "D:20260304050607Z");
  auto seiten = QPDFPageDocumentHelper(pdf).getAllPages();
  ASSERT_EQ(seiten.size(), 3U);
  const auto breite = [&](std::size_t i) {
    return seiten[i].getMediaBox().getArrayItem(2).getNumericValue();
  };
  EXPECT_TRUE(breite(1) < 600 && breite(2) > 1190);
  auto lesezeichen = QPDFOutlineDocumentHelper(pdf).getTopLevelOutlines();
  ASSERT_EQ(lesezeichen.size(), 2U);
  EXPECT_EQ(lesezeichen[1].getTitle(), "Maß");
  EXPECT_EQ(lesezeichen[1].getDestPage().getObjGen(), seiten[2].getObjectHandle().getObjGen());
  EXPECT_EQ(lesezeichen[0].getDestPage().getObjGen(), seiten[0].getObjectHandle().getObjGen());
}

TEST(Pdf, DieselbenBytesUndNichtsHalbes) {
  const QByteArray bytes = Pdf(Beispiel(), Zeit);
  EXPECT_EQ(Pdf(Beispiel(), Zeit), bytes);
  EXPECT_NE(Pdf(Beispiel(), Zeit.addSecs(1)), bytes);
  std::vector<std::size_t> fertig;
  const auto beenden = [&](std::size_t n, std::size_t von) {
    EXPECT_EQ(von, 3U);
    fertig.push_back(n);
    return n < 2;
  };
  EXPECT_TRUE(Pdf(Beispiel(), Zeit, beenden).isEmpty());
  EXPECT_EQ(fertig, (std::vector<std::size_t>{0, 1, 2}));
}

}  // namespace
}  // namespace vesk
