#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "Muster.h"
#include "UserDatei.h"

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

TEST(UserDatei, SchreibtJedesByte) {
  Zustand stand;
  stand.benutzer = {"Jörg \"JR\" Ω", "Weg\r\n1", "Köln", "", "", "DL1ABC", "1", "€uro, Straße"};
  stand.einstellungen = {true, false, true, false, false, false, false};
  stand.Fusszeile = "OV";
  for (std::size_t i = 0; i < stand.Zellen.size(); ++i) stand.Zellen[i] = "z" + std::to_string(i);
  stand.Datenblattspalten[2].Zyklusfaktor = "0.50";
  stand.Datenblattspalten[2].Winkel[8] = "9";
  stand.Datenblattspalten[2].Grenzwerttyp = 2;
  stand.Datenblattspalten[2].Reserve = {"1", "2", "3"};
  stand.Datenblattspalten[0].Antenne = "record 0 is never written";
  FaktorenNormalisieren(stand);

  std::string soll =
      "\"Die Datei wird vom Programm erstellt\"\r\n\"bitte nichts \xE4ndern\"\r\n\r\n\"[User]\"\r\n"
      "\"J\xF6rg 'JR' ?\"\r\n\"Weg 1\"\r\n\"K\xF6ln\"\r\n\"\"\r\n\"\"\r\n\"DL1ABC\"\r\n\"1\"\r\n"
      "\"\x80uro, Stra\xDF"
      "e\"\r\n"
      "\"[ToolTips]\",#TRUE#\r\n\"[AFu]\",#FALSE#\r\n\"[Fenster]\",#TRUE#\r\n\"[Meldungen]\",#FALSE#\r\n"
      "\"[Version]\",\"251\"\r\n\"[Footer]\",\"OV\"\r\n\"[Datenblatt]\"\r\n";
  for (int i = 0; i < 84; ++i) soll += "\"z" + std::to_string(i) + "\"\r\n";
  const std::string leer =
      ",\"1.00\",\"1.00\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\""
      ",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",0,\"\",\"\",\"\"\r\n";
  soll += "\"[A]\"" + leer;
  soll +=
      "\"[B]\",\"1.00\",\"0.50\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\""
      ",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"9\",2,\"1\",\"2\",\"3\"\r\n";
  for (const char* kopf : {"\"[C]\"", "\"[D]\"", "\"[E]\"", "\"[F]\"", "\"[G]\""}) soll += kopf + leer;
  EXPECT_EQ(UserDateiSchreiben(stand), soll);
}

TEST(UserDatei, LiestWiederWasSieSchrieb) {
  const Zustand muster = Musterstand();
  Zustand gelesen;
  const Lesebericht bericht = UserDateiLesen(UserDateiSchreiben(muster), gelesen);
  EXPECT_TRUE(GleicherInhalt(gelesen, muster));
  EXPECT_EQ(bericht.version, Dateiversion::Aktuell);
  EXPECT_TRUE(bericht.verlustfrei);
  EXPECT_TRUE(bericht.User && bericht.ToolTips && bericht.AFu && bericht.etwasGelesen);
  EXPECT_FALSE(gelesen.UserGeaendert);
  EXPECT_EQ(gelesen.werte.Modulationsfaktor, 1.0F) << "factors in force are not those of column G";
}

/// Expected effect of one file on the full state: what differs afterwards.
struct Fall {
  std::string name;
  std::string bytes;
  std::function<void(Zustand&)> wirkung;
  Dateiversion version = Dateiversion::Ohne;
  bool etwasGelesen = true;
  bool verlustfrei = true;
};

void Nichts(Zustand&) {}

/// Files that were damaged, edited by hand or never ours.
std::vector<Fall> Textfaelle() {
  return {
      {"empty", "", Nichts, Dateiversion::Ohne, false, true},
      {"only blank lines", "\r\n \r\n\r\n", Nichts, Dateiversion::Ohne, false, true},
      {"binary", "\0\x01\xFF,\"\"\"[[]]\n[\n]"s, Nichts, Dateiversion::Ohne, false, false},
      {"text of another program", "Hallo,[Welt],\"[user]\",x", Nichts, Dateiversion::Ohne, false, false},
      {"ends inside the operator", "\"[User]\"\r\n\"Eva\"\r\n\"Gasse",
       [](Zustand& z) { z.benutzer.Name = "Eva", z.benutzer.Strasse = "Gasse"; }, Dateiversion::Ohne, true,
       false},
      {"ends behind a section name", "[Datenblatt]", Nichts, Dateiversion::Ohne, false, false},
      {"LF, no quotes, blanks, commas", "[User]\nEva, Gasse 1 ,,\"a,b\"\n",
       [](Zustand& z) {
         z.benutzer.Name = "Eva", z.benutzer.Strasse = "Gasse 1", z.benutzer.Ort = "";
         z.benutzer.Telefon = "a,b";
       },
       Dateiversion::Ohne, true, false},
      {"empty line is an empty item", "[User]\r\nEva\r\n\r\nOrt\r\n",
       [](Zustand& z) { z.benutzer.Name = "Eva", z.benutzer.Strasse = "", z.benutzer.Ort = "Ort"; },
       Dateiversion::Ohne, true, false},
      {"quote never closed", "[User]\r\n\"Eva\r\n\"Gasse\"\r\n",
       [](Zustand& z) { z.benutzer.Name = "Eva", z.benutzer.Strasse = "Gasse"; }, Dateiversion::Ohne, true,
       false},
      {"booleans", "[ToolTips],0\n[AFu],#true#\n[Fenster],vielleicht\n[Meldungen],-1",
       [](Zustand& z) {
         z.einstellungen.ToolTips = false, z.einstellungen.AFu = true, z.einstellungen.Meldungen = true;
       },
       Dateiversion::Ohne, true, false},
      {"footer of the first versions", "[Footer],\"OV Erstellt mit X v 1 - Y\"",
       [](Zustand& z) { z.Fusszeile = ""; }, Dateiversion::Ohne, true, false},
      {"cells longer than the window takes", "[Datenblatt]\r\n\"0123456789012345678901234\"",
       [](Zustand& z) { z.Zellen[0] = "01234567890123456789"; }, Dateiversion::Ohne, true, false},
      {"names that look like columns", "[G1],x\n[a],x\n[],x\n[Gx],x", Nichts, Dateiversion::Ohne, false,
       false},
      {"UTF-8 with mark", "\xEF\xBB\xBF\"[User]\"\r\n\"Jörg €\"",
       [](Zustand& z) { z.benutzer.Name = "Jörg €"; }, Dateiversion::Ohne, true, false},
      {"UTF-8 beyond Windows-1252", "\"[User]\"\r\n\"Jörg Ω\"",
       [](Zustand& z) { z.benutzer.Name = "Jörg ?"; }, Dateiversion::Ohne, true, false},
  };
}

/// The 24 fields of the line that `Spaltenzeile` makes.
void Alt(Datenblattspalte& s) {
  s = {"f1",           "f2",     "f3",  "f4",
       "f5",           "f6",     "f7",  "f8",
       "f9",           "f10",    "f11", "f12",
       "f13",          "f14",    "f15", {"f16", "f17", "f18", "f19", "f20", "f21", "f22", "f23", "f24"},
       s.Grenzwerttyp, s.Reserve};
}

void AFuAn(Zustand& z) {
  z.einstellungen.AFu = true;
}

/// The version decides whether reading goes on and how long a record is.
std::vector<Fall> Versionsfaelle() {
  const std::string voll = UserDateiSchreiben(Musterstand());
  std::string spaeter = voll;
  spaeter.replace(spaeter.find("251"), 3, "300");
  return {
      {"signal type that is no 16-bit integer", "[Version],251\r\n" + Spaltenzeile("[A]", 24) + "40000,r1",
       [](Zustand& z) { Alt(z.Datenblattspalten[1]), z.Datenblattspalten[1].Reserve[0] = "r1"; },
       Dateiversion::Aktuell, true, false},
      {"too old", "[User]\r\n" + Zeilen(8) + "[AFu],1\r\n[Version],\"210\"\r\n[Fenster],0",
       [](Zustand& z) { z.benutzer = {"1", "2", "3", "4", "5", "6", "7", "8"}, AFuAn(z); },
       Dateiversion::ZuAlt, true, false},
      {"empty version", "[Version],\"\"\r\n[AFu],1", Nichts, Dateiversion::ZuAlt, false, false},
      {"text comparison of versions", "[Version],99\r\n[AFu],1", AFuAn, Dateiversion::Aktuell, true, false},
      {"version missing at the end", "[AFu],1\r\n[Version]", AFuAn, Dateiversion::Ohne, true, false},
      {"24 fields without a version", Spaltenzeile("[A]", 24) + "\"[AFu]\",#TRUE#",
       [](Zustand& z) { Alt(z.Datenblattspalten[1]), AFuAn(z); }, Dateiversion::Ohne, true, false},
      {"24 fields of version 240", "[Version],240\r\n" + Spaltenzeile("[Foo]", 24) + "[AFu],1",
       [](Zustand& z) { Alt(z.Datenblattspalten[6]), AFuAn(z); }, Dateiversion::Umwandelbar, true, false},
      {"24 fields of version 250", "[Version],250\r\n" + Spaltenzeile("[C]", 24) + "[AFu],1",
       [](Zustand& z) { Alt(z.Datenblattspalten[3]), AFuAn(z); }, Dateiversion::Umwandelbar, true, false},
      {"as it was", voll, Nichts, Dateiversion::Aktuell, true, true},
      {"later version", spaeter, Nichts, Dateiversion::Aktuell, true, false},
  };
}

void Pruefen(const Fall& fall) {
  SCOPED_TRACE(fall.name);
  Zustand soll = Musterstand();
  fall.wirkung(soll);
  Zustand ist = Musterstand();
  const Lesebericht bericht = UserDateiLesen(fall.bytes, ist);
  EXPECT_TRUE(GleicherInhalt(ist, soll)) << UserDateiSchreiben(ist);
  EXPECT_EQ(bericht.version, fall.version);
  EXPECT_EQ(bericht.etwasGelesen, fall.etwasGelesen);
  EXPECT_EQ(bericht.verlustfrei, fall.verlustfrei);
}

TEST(UserDatei, WasNichtLesbarIstBleibt) {
  for (const Fall& fall : Textfaelle()) Pruefen(fall);
}

TEST(UserDatei, WasDieVersionBewirkt) {
  for (const Fall& fall : Versionsfaelle()) Pruefen(fall);
}

TEST(UserDatei, JederAnfangEinerDateiIstLesbar) {
  const Zustand muster = Musterstand();
  const std::string voll = UserDateiSchreiben(muster);
  for (std::size_t laenge = 0; laenge <= voll.size(); ++laenge) {
    Zustand ist;
    UserDateiLesen(voll.substr(0, laenge), ist);
    Zustand nochmals;
    UserDateiLesen(UserDateiSchreiben(ist), nochmals);
    ASSERT_TRUE(GleicherInhalt(ist, nochmals)) << laenge;
  }
}

TEST(UserDatei, JedesZeichenDerDateiUeberlebt) {
  Zustand stand;
  std::string alle;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n' && byte != '"') alle += static_cast<char>(byte);
  }
  Zustand gelesen;
  UserDateiLesen("[User],\"" + alle + "\"", gelesen);
  EXPECT_NE(UserDateiSchreiben(gelesen).find("\"" + alle + "\""), std::string::npos);
}

TEST(UserDatei, FaktorenBeimSchreiben) {
  const std::pair<const char*, const char*> faelle[] = {
      {"", "1.00"},     {"0", "1.00"},      {"abc", "1.00"}, {"1.5", "1.00"},  {"1.01", "1.00"},
      {"1", "1"},       {"1.00", "1.00"},   {"0.4", "0.4"},  {"0.25", "0.25"}, {"-0.5", "-0.5"},
      {"1e99", "1.00"}, {"-1e99", "-1e99"}, {"0,5", "1.00"},
  };
  for (const auto& [vorher, nachher] : faelle) {
    Zustand stand;
    stand.Datenblattspalten[7].Modulationsfaktor = vorher;
    stand.Datenblattspalten[1].Zyklusfaktor = vorher;
    FaktorenNormalisieren(stand);
    EXPECT_EQ(stand.Datenblattspalten[7].Modulationsfaktor, nachher);
    EXPECT_EQ(stand.Datenblattspalten[1].Zyklusfaktor, nachher);
  }
}

TEST(UserDatei, Faktorprodukt) {
  const std::tuple<const char*, const char*, bool> faelle[] = {
      {"1", "1", true},    {"1.00", "1.00", true},  {"0.40", "1.00", false}, {"0.50", "0.17", false},
      {"", "1.00", false}, {"1.00", "1.00x", true}, {"1e99", "1", true},
  };
  for (const auto& [modulation, zyklus, voll] : faelle) {
    Datenblattspalte spalte;
    spalte.Modulationsfaktor = modulation;
    spalte.Zyklusfaktor = zyklus;
    EXPECT_EQ(Faktorprodukt(spalte) >= 1.0F, voll) << modulation << " * " << zyklus;
  }
}

TEST(UserDatei, Migrationsmeldung) {
  const std::tuple<Dateiversion, const char*, const char*> faelle[] = {
      {Dateiversion::Umwandelbar, "user.dat",
       "Daten aus Programmversion 240.\ruser.dat wird umbenannt in user.bak\ruser.dat wird neu erstellt."},
      {Dateiversion::ZuAlt, "dl1.abc.dat",
       "Daten aus Programmversion 240.\rdl1.abc.dat wird umbenannt in dl1.bak\rEine leere Datei: dl1.abc.dat "
       "wird neu erstellt."},
      {Dateiversion::Umwandelbar, ".dat",
       "Daten aus Programmversion 240.\r.dat wird umbenannt in .bak\r.dat wird neu erstellt."},
      {Dateiversion::Umwandelbar, "user",
       "Daten aus Programmversion 240.\ruser wird umbenannt in .bak\ruser wird neu erstellt."},
  };
  for (const auto& [version, datei, text] : faelle) {
    Lesebericht bericht;
    bericht.version = version;
    bericht.versionstext = "240";
    EXPECT_EQ(Migrationsmeldung(bericht, datei), text);
  }
}

TEST(UserDatei, TitelUndFusszeile) {
  Zustand stand;
  stand.benutzer.Rufzeichen = "DL1ABC";
  stand.UserDatei = "dl1abc.dat";
  stand.UserVerzeichnis = "/home/jörg/" + std::string(28, 'x');
  EXPECT_EQ(TitelBenutzerfenster(stand), "Persönliche Daten DL1ABC");
  EXPECT_EQ(TitelHauptfenster(stand), "EMVU Sicherheitsabstand:  dl1abc.dat");
  EXPECT_EQ(TitelDatenblatt(stand),
            "Datenblatt  Vfg 306/97 Anlage Blatt 5.2  -  " + stand.UserVerzeichnis + "\\dl1abc.dat");
  stand.UserVerzeichnis += 'x';
  EXPECT_EQ(TitelDatenblatt(stand), "Datenblatt  Vfg 306/97 Anlage Blatt 5.2  -  dl1abc.dat");
  EXPECT_EQ(DruckFusszeile(stand), "Erstellt mit Vesk v 2.5.1 - Alle Angaben ohne Gewähr");
  stand.Fusszeile = "OV ";
  EXPECT_EQ(DruckFusszeile(stand), "OV Erstellt mit Vesk v 2.5.1 - Alle Angaben ohne Gewähr");
}

}  // namespace
}  // namespace vesk
