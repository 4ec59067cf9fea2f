#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "persistence/UserDatei.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Muster.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

using namespace std::string_literals;

/// `anzahl` items "1", "2", ... in quotes, one a line.
std::string Zeilen(int anzahl) {
  std::string text;
  for (int i = 1; i <= anzahl; ++i) text += "\"" + std::to_string(i) + "\"\r\n";
  return text;
}

/// A column line of `felder` fields: "f1", "f2", ...; position 25 is a bare 2.
std::string Spaltenzeile(const std::string& kopf, int felder) {
  std::string text = "\"" + kopf + "\"";
  for (int i = 1; i <= felder; ++i) text += i == 25 ? ",2"s : ",\"f" + std::to_string(i) + "\"";
  return text + "\r\n";
}

TEST(UserDatei, JedesByte) {
  const std::string bytes = Inhalt(VESK_TESTDATEN "/persistence/Muster.dat");
  EXPECT_EQ(UserDateiSchreiben(Musterstation()), bytes);
  Station gelesen;
  gelesen.spaltenfarben[1].rueckwaerts = true;
  const Lesebericht bericht = UserDateiLesen(bytes, gelesen);
  EXPECT_EQ(UserDateiSchreiben(gelesen), bytes);
  EXPECT_EQ(bericht.version, Dateiversion::Aktuell);
  EXPECT_TRUE(bericht.verlustfrei && bericht.User && bericht.bekannt && !bericht.abgebrochen);
  EXPECT_EQ(gelesen.werte.Modulationsfaktor, 1.0F) << "factors in force are not those of column G";
  EXPECT_EQ(gelesen.spaltenfarben[1], (Spaltenfarben{Toenung::Kraeftig, true, false}));
  gelesen.benutzer = {"Jörg \"JR\" Ω", "Weg\r\n1", "", "", "", "", "", ""};
  EXPECT_NE(UserDateiSchreiben(gelesen).find("\"J\xF6rg 'JR' ?\"\r\n\"Weg 1\"\r\n\"\"\r\n"),
            std::string::npos);
}

/// What a file changes in a full station, and what the report says: not (b)ekannt, not (a)bgebrochen,
/// (v)erlustfrei.
struct Fall {
  std::string bytes;
  std::function<void(Station&)> wirkung;
  std::string_view bericht = "";
  Dateiversion version = Dateiversion::Ohne;
};

void Nichts(Station&) {}

void AFuAn(Station& s) {
  s.einstellungen.AFu = true;
}

void Pruefen(const Fall& fall) {
  SCOPED_TRACE(fall.bytes.substr(0, 200));
  Station soll = Musterstation();
  fall.wirkung(soll);
  Station ist = Musterstation();
  const Lesebericht bericht = UserDateiLesen(fall.bytes, ist);
  EXPECT_EQ(UserDateiSchreiben(ist), UserDateiSchreiben(soll));
  EXPECT_EQ(bericht.version, fall.version);
  EXPECT_EQ(std::string(bericht.bekannt ? "" : "b") + (bericht.abgebrochen ? "" : "a") +
                (bericht.verlustfrei ? "v" : ""),
            fall.bericht);
}

TEST(UserDatei, WasNichtLesbarIstBleibt) {
  const Fall faelle[] = {
      {"", Nichts, "bv"},
      {"\0\x01\xFF,\"\"\"[[]]\n[\n]"s, Nichts, "b"},
      {"Hallo,[Welt],\"[user]\",x", Nichts, "b"},
      {"[G1],x\n[a],x\n[],x\n[Gx],x", Nichts, "b"},
      {"[Datenblatt]", Nichts},
      {"\"[User]\"\r\n\"Jörg Ω\"\r\n\"Gasse",
       [](Station& s) { s.benutzer.Name = "Jörg ?", s.benutzer.Strasse = "Gasse"; }},
      {"[ToolTips],0\n[AFu],#true#\n[Fenster],vielleicht\n[Meldungen],-1",
       [](Station& s) { AFuAn(s), s.einstellungen.ToolTips = false, s.einstellungen.Meldungen = true; }},
      {"[Footer],\"OV Erstellt mit X v 1 - Y\"", [](Station& s) { s.Fusszeile = ""; }},
      {"[Datenblatt]\r\n\"\xE4"
       "123456789012345678901234\"",
       [](Station& s) { s.Zellen[0] = "ä1234567890123456789"; }},
  };
  for (const Fall& fall : faelle) Pruefen(fall);
}

/// The version decides whether reading goes on and how long a record is.
TEST(UserDatei, WasDieVersionBewirkt) {
  // The 24 fields of the line that `Spaltenzeile` makes.
  const auto alt = [](std::size_t nummer) {
    return [nummer](Station& s) {
      Datenblattspalte& t = s.Datenblattspalten[nummer];
      t = {"f1",  "f2",  "f3",  "f4",  "f5",  "f6",  "f7", "f8",           "f9",
           "f10", "f11", "f12", "f13", "f14", "f15", {},   t.Grenzwerttyp, t.Reserve};
      for (std::size_t i = 0; i < t.Winkel.size(); ++i) t.Winkel[i] = "f" + std::to_string(16 + i);
      AFuAn(s);
    };
  };
  const std::string voll = UserDateiSchreiben(Musterstation());
  std::string spaeter = voll;
  spaeter.replace(spaeter.find("251"), 3, "300");
  using enum Dateiversion;
  const Fall faelle[] = {
      {"[AFu],1\r\n[Version],251\r\n" + Spaltenzeile("[A]", 24) + "40000,r1",  // no 16-bit signal type
       [&](Station& s) { alt(1)(s), s.Datenblattspalten[1].Reserve[0] = "r1"; }, "", Aktuell},
      {"[User]\r\n" + Zeilen(8) + "[AFu],1\r\n[Version],\"210\"\r\n[Fenster],0",
       [](Station& s) { s.benutzer = {"1", "2", "3", "4", "5", "6", "7", "8"}, AFuAn(s); }, "a", ZuAlt},
      {"[Version],99\r\n[AFu],1", AFuAn, "", Aktuell},  // compared as text
      {"[AFu],1\r\n[Version]", AFuAn},
      {Spaltenzeile("[A]", 24) + "\"[AFu]\",#TRUE#", alt(1)},
      {"[Version],240\r\n" + Spaltenzeile("[Foo]", 24) + "[AFu],1", alt(6), "", Umwandelbar},
      {"[Version],250\r\n" + Spaltenzeile("[C]", 24) + "[AFu],1", alt(3), "", Umwandelbar},
      {voll, Nichts, "av", Aktuell},
      {spaeter, Nichts, "a", Aktuell},
  };
  for (const Fall& fall : faelle) Pruefen(fall);
}

TEST(UserDatei, JederAnfangEinerDateiIstLesbarUndUnvollstaendig) {
  const std::string voll = UserDateiSchreiben(Musterstation());
  const std::size_t letztes = voll.rfind(',');
  for (std::size_t laenge = 0; laenge <= letztes; laenge += 3) {
    Station ist;
    ASSERT_TRUE(UserDateiLesen(voll.substr(0, laenge), ist).abgebrochen) << laenge;
    const std::string bytes = UserDateiSchreiben(ist);
    Station nochmals;
    UserDateiLesen(bytes, nochmals);
    ASSERT_EQ(UserDateiSchreiben(nochmals), bytes) << laenge;
  }
}

TEST(UserDatei, FaktorenBeimSchreibenUndBeimToenen) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Faktoren.csv")) {
    Station s;
    s.Datenblattspalten[7].Modulationsfaktor = s.Datenblattspalten[1].Zyklusfaktor = zeile["faktor"];
    FaktorenNormalisieren(s);
    EXPECT_EQ(s.Datenblattspalten[7].Modulationsfaktor, zeile["geschrieben"]);
    EXPECT_EQ(s.Datenblattspalten[1].Zyklusfaktor, zeile["geschrieben"]);
    for (const bool zyklus : {false, true}) {
      UserDateiLesen("[D],"s + (zyklus ? "1.00," : "") + zeile["faktor"] + (zyklus ? "" : ",1.00"), s);
      EXPECT_EQ(s.spaltenfarben[3].ohneHSM == Toenung::Kraeftig, zeile["kraeftig"] == "1") << zeile.text;
    }
  }
}

TEST(UserDatei, Migrationsmeldung) {
  const auto meldung = [](Dateiversion version, const char* datei) {
    return Migrationsmeldung({.version = version, .versionstext = "240"}, datei);
  };
  EXPECT_EQ(
      meldung(Dateiversion::Umwandelbar, "user.dat"),
      "Daten aus Programmversion 240.\ruser.dat wird umbenannt in user.bak\ruser.dat wird neu erstellt.");
  EXPECT_TRUE(meldung(Dateiversion::ZuAlt, "dl1.abc.dat")
                  .ends_with("in dl1.bak\rEine leere Datei: dl1.abc.dat wird neu erstellt."));
  EXPECT_TRUE(meldung(Dateiversion::Umwandelbar, "user")
                  .ends_with("user wird umbenannt in .bak\ruser wird neu erstellt."));
}

}  // namespace
}  // namespace vesk
