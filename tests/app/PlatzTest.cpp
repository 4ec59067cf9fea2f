#include "tests/app/Lauf.h"

/// Run on a screen of 1024 x 700 dots in several magnifications.
namespace vesk {
namespace {

/// Pages and tables that scroll; a list may, as long as it shows enough lines.
QStringList Rollende(const QWidget& fenster) {
  QStringList namen;
  for (const QAbstractScrollArea* flaeche : fenster.findChildren<QAbstractScrollArea*>()) {
    if (qobject_cast<const QListView*>(flaeche) != nullptr) continue;
    const bool rollt =
        flaeche->verticalScrollBar()->isVisible() || flaeche->horizontalScrollBar()->isVisible();
    if (rollt) namen << fenster.objectName() + u'/' + flaeche->objectName();
  }
  return namen;
}

TEST(Platz, AllesAufEinemKleinenBildschirmOhneRollbalken) {
  const Verzeichnis verzeichnis;
  Lauf lauf(verzeichnis.path());
  for (const QString& name : {u"mnuDatenblatt"_s, u"mnuUmrechnung"_s, u"mnuBaender"_s, u"mnuDiagramme"_s,
                              u"mnuLageplan"_s, u"mnuUser"_s}) {
    lauf.Menue(name);
  }
  auto& tabs = Lauf::Ding<QTabWidget>(u"SSTab1"_s, u"frmOptions"_s);
  QStringList rollende;
  for (int i = 0; i < tabs.count(); ++i) {
    tabs.setCurrentIndex(i);
    QCoreApplication::processEvents();
    rollende << Rollende(*tabs.window());
  }
  EXPECT_EQ(Lauf::Offene().size(), 8);
  for (const QString& name : Lauf::Offene()) {
    const QWidget& fenster = Lauf::Fenster(name);
    rollende << Rollende(fenster);
    const QSize platz = fenster.screen()->availableSize();
    EXPECT_EQ(fenster.frameSize().boundedTo(platz), fenster.frameSize()) << name.toStdString();
    // No letter is smaller than without magnification.
    EXPECT_GE(fenster.font().pointSizeF() * fenster.devicePixelRatioF(),
              QApplication::font().pointSizeF() - 0.01)
        << name.toStdString();
  }
  EXPECT_EQ(rollende.join(u' ').toStdString(), "");
}

}  // namespace
}  // namespace vesk
