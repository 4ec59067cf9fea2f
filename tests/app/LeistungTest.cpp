#include "tests/Tabelle.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QString Lstg = u"frmLstg"_s;

struct Leistungsumrechnung : testing::Test, Verzeichnis, Lauf {
  Leistungsumrechnung() : Lauf(path()) { buehne.boxen.alleErlaubt = true; }
  void Oeffnen(const QString& feld) {
    if (Sichtbar(Lstg)) Fenster(Lstg).close();
    buehne.boxen.gezeigt.clear();
    buehne.ton.anzahl = 0;
    programm.Befehlen(Befehl::LeistungsumrechnungZeigen);
    Aktivieren(Lstg);
    Ding<>(feld, Lstg).setFocus();
  }
  static std::string Texte() {
    QStringList texte;
    for (const QLineEdit* feld : Fenster(Lstg).findChildren<QLineEdit*>()) texte << feld->text();
    return texte.join(u'|').toStdString();
  }
  static void TastenTippen(const QString& tasten) {
    constexpr QStringView Zeichen = u"ETDUB";
    constexpr Qt::Key Tasten[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Up, Qt::Key_Backspace};
    for (const QChar taste : tasten) {
      const auto besondere = Zeichen.indexOf(taste);
      besondere < 0 ? Tippen(taste) : Taste(Tasten[besondere]);
    }
  }
};

TEST_F(Leistungsumrechnung, Tasten) {
  for (const Tabellenzeile& zeile : Tabelle("app/Leistungstasten.csv")) {
    SCOPED_TRACE(zeile.text);
    Oeffnen(QString::fromStdString(zeile["feld"]));
    TastenTippen(QString::fromStdString(zeile["tasten"]));
    EXPECT_EQ(Texte(), zeile["texte"]);
    EXPECT_EQ(Fokus().toStdString(), zeile["danach"]);
    // What leaving a field says comes a moment later.
    const auto& gesagt = buehne.boxen.gezeigt;
    const bool stumm = zeile["gesagt"].empty();
    EXPECT_EQ(QTest::qWaitFor([&] { return !gesagt.empty(); }, stumm ? 0 : 1000), !stumm);
    EXPECT_TRUE(gesagt.empty() || gesagt[0].text.find(zeile["gesagt"]) != std::string::npos);
    EXPECT_EQ(buehne.ton.anzahl, zeile.Zahl("toene"));
  }
}

TEST_F(Leistungsumrechnung, AnderesFensterIstVerlassenUndSchliessenNicht) {
  Oeffnen(u"txtDBm"_s);
  TastenTippen(u"30"_s);
  Aktivieren(u"frmVesk"_s);
  EXPECT_EQ(Texte(), "30|0,00|1,000");
  Aktivieren(Lstg);
  EXPECT_EQ(Texte(), "||");
  TastenTippen(u"200"_s);
  Fenster(Lstg).close();
  Aktivieren(u"frmVesk"_s);
  QTest::qWait(150);
  EXPECT_TRUE(buehne.boxen.gezeigt.empty());
  programm.Befehlen(Befehl::LeistungsumrechnungZeigen);
  EXPECT_EQ(Texte(), "||");
}

}  // namespace
}  // namespace vesk
