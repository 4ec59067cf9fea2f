// Names that look like markup are shown as they are.
#include <QTextDocumentFragment>

#include "station/Optionen.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QString Name = u"<b>x"_s;

/// A directory whose catalogues name cables and antennas so, each in the first line.
struct Ordner : Verzeichnis {
  Ordner() {
    for (const QString& katalog : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
      QFile datei(filePath(katalog));
      EXPECT_TRUE(datei.open(QFile::ReadWrite));
      const QByteArray alt = datei.readAll();
      datei.seek(0);
      datei.write(QByteArray(alt).replace("RG213", "<b>x").replace("Dipol KW", "<b>x"));
      datei.resize(datei.pos());
    }
  }
};

struct Namen : testing::Test, Ordner, Lauf {
  Namen() : Lauf(path()) { buehne.boxen.alleErlaubt = true; }
};

QString Gelesen(const QString& text, bool markup) {
  return markup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

TEST_F(Namen, AufJederBeschriftungUndInJedemTooltip) {
  programm.Tun([](Station& s, const Kataloge& k) {
    s.UserDatei = "<b>x.dat";
    s.fenster.optionen = s.fenster.datenblatt = s.fenster.baender = s.fenster.diagramme = s.fenster.lageplan =
        true;
    s.winkel.herkunft = s.winkel.antenne = "<b>x";
    s.winkel.datei.clear();
    s.Datenblattspalten[0].KabelLaenge = "10";
    KabelGewaehlt(s, k, 0);
    AntenneGewaehlt(s, k, 0);
    return AntenneNehmen(s, k);
  });
  programm.Befehlen(Befehl::InfoZeigen);
  int gesehen = 0;
  for (const QWidget* widget : QApplication::allWidgets()) {
    const auto pruefen = [&, widget](const QString& text, Qt::TextFormat format) {
      if (!text.contains(Name) && !text.contains(u"&lt;b&gt;x"_s)) return;
      ++gesehen;
      const bool markup = format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
      EXPECT_TRUE(Gelesen(text, markup).contains(Name)) << widget->objectName().toStdString();
    };
    if (const auto* label = qobject_cast<const QLabel*>(widget)) pruefen(label->text(), label->textFormat());
    pruefen(widget->toolTip(), Qt::AutoText);
  }
  EXPECT_GE(gesehen, 8);
}

}  // namespace
}  // namespace vesk
