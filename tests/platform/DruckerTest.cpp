// Printing with the real printer of the toolkit, into a file.
#include <gtest/gtest.h>

#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTextDocument>

#include "platform/QtDrucker.h"

namespace vesk {
namespace {

using namespace Qt::StringLiterals;

TEST(Drucker, EinFehlschlagNenntDieDatei) {
  const QTemporaryDir ordner;
  const std::pair<QString, bool> ziele[] = {
      {ordner.filePath(u"aus.pdf"_s), true},
      {ordner.filePath(u"fehlt/aus.pdf"_s), false},
      {ordner.path(), false},
      {u"/dev/full"_s, false},
  };
  const Druckauftrag auftrag{u"Probe"_s,
                             {{QPageSize(QPageSize::A4), QPageLayout::Portrait, {}},
                              {QPageSize(QPageSize::A3), QPageLayout::Landscape, {}}},
                             [](std::size_t, QPainter& maler, double) { maler.drawLine(0, 0, 99, 99); }};
  for (const auto& [ziel, gut] : ziele) {
    SCOPED_TRACE(ziel.toStdString());
    QtDrucker drucker([&pfad = ziel](QPrinter& papier, const QString&, const QString&, int) {
      papier.setOutputFormat(QPrinter::PdfFormat);
      papier.setOutputFileName(pfad);
      return Druckausgang::Gedruckt;
    });
    for (const Druckausgang& ausgang :
         {drucker.Drucken(auftrag, [](std::size_t, std::size_t) { return true; }),
          drucker.TextDrucken(QTextDocument(u"Ein Text"_s), u"Text"_s)}) {
      const auto meldung = Druckmeldung(ausgang);
      EXPECT_EQ(meldung.has_value(), !gut);
      EXPECT_TRUE(gut || meldung->text.find(ziel.toStdString()) != std::string::npos) << meldung->text;
    }
  }
}

}  // namespace
}  // namespace vesk
