#include <gtest/gtest.h>

#include <map>
#include <random>
#include <regex>

#include "rechnen/Csv.h"
#include "tests/Tabelle.h"
#include "tests/rechnen/Aufruf.h"

namespace vesk {
namespace {

std::vector<std::string> Zeilen(const std::string& text) {
  std::vector<std::string> zeilen;
  std::istringstream strom(text);
  for (std::string zeile; std::getline(strom, zeile);) zeilen.push_back(zeile);
  return zeilen;
}

/// A row of the output by the names of its columns.
using Zellen = std::map<std::string, std::string>;

Zellen Benannt(std::string kopf, std::string zeile, char trenner) {
  std::vector<std::string_view> namen;
  std::vector<std::string_view> werte;
  CsvZerlegen(kopf, trenner, namen);
  CsvZerlegen(zeile, trenner, werte);
  Zellen zellen;
  EXPECT_EQ(namen.size(), werte.size()) << zeile;
  for (std::size_t i = 0; i < std::min(namen.size(), werte.size()); ++i) zellen.emplace(namen[i], werte[i]);
  return zellen;
}

/// What a single call says, in one line.
std::string Einzeilig(const std::string& json) {
  return Ersetzt(std::regex_replace(json, std::regex("\n *"), ""), "\": ", "\":");
}

/// Seeded rows that differ in what they tell, and the same as options.
struct Zufallszeilen {
  std::string tabelle = "winkel;--TYP;qrg;Gewinn;abstand;faktor;pwr;exakt;daempfung\n";
  std::vector<std::string> optionen;

  Zufallszeilen() {
    std::mt19937 zufall(7);
    const auto zahl = [&](double von, double bis, int stellen) {
      std::ostringstream text;
      text << std::fixed << std::setprecision(static_cast<int>(zufall() % static_cast<unsigned>(stellen + 1)))
           << von + (bis - von) * static_cast<int>(zufall() % 10000) / 10000;
      return Ersetzt(text.str(), ".", ",");
    };
    for (int i = 0; i < 300; ++i) {
      const bool leistung = zufall() % 3 == 0;
      const std::string qrg = zufall() % 2 == 0 ? zahl(1, 60, 3) : zahl(1000, 400000, 1);
      const std::pair<const char*, std::string> angaben[] = {
          {"winkel", zufall() % 2 == 0 ? "" : zahl(0, 20, 2)},
          {"typ", std::vector<std::string>{"", "AM", "tv", "GSM"}[zufall() % 4]},
          {"qrg", zufall() % 20 == 0 ? "0,002" : qrg},
          {"gewinn", zufall() % 2 == 0 ? "" : zahl(-9, 60, 3)},
          {"abstand", leistung ? zahl(1, 90, 2) : ""},
          {"faktor", zufall() % 2 == 0 ? "" : zahl(0.5, 0.9, 4)},
          {"pwr", leistung ? "" : zahl(1, 999, 2)},
          {"exakt", zufall() % 3 == 0 ? "ja" : ""},
          {"daempfung", zufall() % 2 == 0 ? "" : zahl(0, 9, 2)}};
      std::string zeile;
      std::string option;
      for (const auto& [name, wert] : angaben) {
        zeile += wert + ";";
        if (!wert.empty()) option += std::string(" --") + name + (wert == "ja" ? "" : " " + wert);
      }
      zeile.pop_back();
      tabelle += zeile + "\n";
      optionen.push_back(option);
    }
  }
};

TEST(Stapel, JedeZeileGleichtIhremEinzelnenAufruf) {
  const Zufallszeilen zufall;
  const Rechenlauf json("--stapel --json", zufall.tabelle);
  const Rechenlauf csv("--stapel", zufall.tabelle);
  const std::vector<std::string> objekte = Zeilen(json.aus);
  const std::vector<std::string> reihen = Zeilen(csv.aus);
  ASSERT_EQ(objekte.size(), zufall.optionen.size());
  ASSERT_EQ(reihen.size(), zufall.optionen.size() + 1);
  EXPECT_EQ(json.rueckgabe, 1);
  EXPECT_EQ(json.fehler, csv.fehler);
  const std::regex feld(R"_("(\w+)":(?:null|"([^"]*)"|([-+.e\d]+)))_");
  for (std::size_t i = 0; i < objekte.size(); ++i) {
    const std::string nummer = std::to_string(i + 2);
    const std::string einzeln = Einzeilig(Rechenlauf("--json" + zufall.optionen[i]).aus);
    ASSERT_EQ(Ersetzt(objekte[i], ",\"Zeile\":" + nummer, ""), einzeln) << zufall.optionen[i];
    Zellen zellen = Benannt(reihen[0], reihen[i + 1], ';');
    for (std::sregex_iterator f(objekte[i].begin(), objekte[i].end(), feld); f != std::sregex_iterator();
         ++f) {
      const std::string name = (*f)[1];
      const std::string wert = (*f)[2].str() + (*f)[3].str();
      // Notes and faults are sentences; figures bear the decimal separator of the table.
      const bool satz = name == "Laufzeitfehler";
      ASSERT_TRUE(zellen.contains(name)) << name;
      EXPECT_EQ(zellen[name], satz ? wert : Ersetzt(Ersetzt(wert, "\\n", " "), ".", ","))
          << name << reihen[i + 1];
      zellen.erase(name);
    }
    zellen.erase("Meldungen");
    for (const auto& [name, wert] : zellen) EXPECT_EQ(wert, "") << name << " " << reihen[i + 1];
  }
}

struct Fall {
  const char* argumente;
  std::string eingabe;
  std::string
      ausgabe;  ///< of each row the number, a colon, frequency and power (a distance with m), or the fault
  int rueckgabe = 0;
};

TEST(Stapel, ZeilenUndTrennzeichen) {
  const std::string lang(std::size_t{70} * 1024, '1');
  const Fall faelle[] = {
      {"", "qrg;pwr\n14,2;100\n7;50", "2:14,2 100 3:7 50"},
      {"", "qrg;pwr\n14.2;100.5\n7.1;50\n", "2:14.2 100.5 3:7.1 50"},
      {"", "qrg;pwr\n14;100\n7.1;50\n", "2:14 100 3:7,1 50"},
      {"", "qrg;pwr\n1.4;1,5\n14;9\n14,2;1.000\n14,2;100\n14;1.000\n",
       "2:pwr: „1,5“ ist nicht eindeutig, davor steht als Dezimalzeichen ein Punkt. 3:14 9 "
       "4:pwr: „1.000“ ist nicht eindeutig, davor steht als Dezimalzeichen ein Komma. 5:14,2 100 "
       "6:pwr: „1.000“ ist nicht eindeutig, davor steht als Dezimalzeichen ein Komma.",
       1},
      {"", "\xEF\xBB\xBFPWR,--Qrg\r\n\r\n100,14\r\n \t\r\n\"50,5\", 7 \r\n", "3:14 100 5:7 50.5"},
      {"", "qrg\tpwr\n14,2\t100\n", "2:14,2 100"},
      {"-", "\nqrg;pwr\n\"14\" ;  \" 1\"\n", "3:pwr: „ 1“ ist keine Zahl.", 1},
      {"--qrg 7 --pwr 10", "abstand;qrg\n;\n;14\n5\n", "2:7 10 3:14 10 4:7 5 m"},
      {"--abstand 5", "qrg;pwr\n14;1\n14\n", "2:14 1 3:14 5 m"},
      {"", "qrg;pwr\n14;1;2\n;1\n14\n",
       "2:Die Zeile hat 3 Zellen, die Kopfzeile 2. 3:Die Frequenz fehlt (--qrg). "
       "4:Die Sendeleistung (--pwr) oder der Sicherheitsabstand (--abstand) fehlt.",
       1},
      {"", "qrg;pwr;abstand\n14;1;1\n14;;1\n", "2:pwr und abstand schließen einander aus. 3:14 1 m", 1},
      {"", "qrg;pwr;exakt\n14;1;nein\n14;1;vielleicht\n",
       "2:14 1 3:exakt: „vielleicht“ ist weder ja noch nein.", 1},
      {"", "qrg;pwr\n\"14;1\n\"7\"\"\";1\n\"7\"x;1\n14;\"\"\"\n",
       "2:Ein Anführungszeichen ist nicht geschlossen. 3:qrg: „7\"“ ist keine Zahl. "
       "4:Hinter einem Anführungszeichen steht mehr als die Zelle. 5:Ein Anführungszeichen ist nicht "
       "geschlossen.",
       1},
      {"", "qrg;pwr\n" + lang + "\n7;1\n" + lang + lang + ";1\n8;2\n" + lang,
       "2:Die Zeile ist länger als 64 KiB. 3:7 1 4:Die Zeile ist länger als 64 KiB. 5:8 2 "
       "6:Die Zeile ist länger als 64 KiB.",
       1},
      {"", "qrg;pwr\n\xE4\xF6\xC3;1\n\xC3\xA4\xED\xA0\x80;1\n",
       "2:qrg: „\uFFFD\uFFFD\uFFFD“ ist keine Zahl. "
       "3:qrg: „ä\uFFFD\uFFFD\uFFFD“ ist keine Zahl.",
       1},
      {"", std::string("qrg;pwr\n14\0002;1\n7\033[31m;1\n", 24),
       "2:qrg: „14\uFFFD2“ ist keine Zahl. 3:qrg: „7\uFFFD[31m“ ist keine Zahl.", 1},
      {"", "qrg;pwr\n" + std::string(50, 'x') + ";1\n",
       "2:qrg: „" + std::string(37, 'x') + "...“ ist keine Zahl.", 1},
  };
  for (const Fall& fall : faelle) {
    const Rechenlauf lauf(std::string("--stapel ") + fall.argumente, fall.eingabe);
    const std::vector<std::string> reihen = Zeilen(lauf.aus);
    std::string ausgabe;
    std::string fehler;
    for (std::size_t i = 1; i < reihen.size(); ++i) {
      Zellen z = Benannt(reihen[0], reihen[i], reihen[0][5]);
      const bool gut = z["Fehler"].empty();
      ausgabe +=
          (i > 1 ? " " : "") + z["Zeile"] + ":" + (gut ? z["txtQRG"] + " " + z["txtPWR"] : z["Fehler"]);
      if (!z["LeistungOhneHSM"].empty()) ausgabe += " m";
      if (!gut) fehler += "Zeile " + z["Zeile"] + ": " + z["Fehler"] + "\n";
    }
    EXPECT_EQ(ausgabe, fall.ausgabe);
    EXPECT_EQ(lauf.fehler, fehler);
    EXPECT_EQ(lauf.rueckgabe, fall.rueckgabe) << fall.ausgabe;
  }
}

TEST(Stapel, AbgelehnteZeilenSindGueltigesJson) {
  EXPECT_EQ(Rechenlauf("--stapel --json", "qrg;pwr\n\"a\"\"\\\t\";1\n").aus,
            R"({"Fehler":"qrg: „a\"\\\u0009“ ist keine Zahl.","Zeile":2})"
            "\n");
}

TEST(Stapel, EinFalscherKopfWirdAbgelehnt) {
  const std::pair<const char*, const char*> faelle[] = {
      {"", "Die Kopfzeile mit den Namen der Spalten fehlt."},
      {"qrg;pwr;rufzeichen\n14;1;x\n", "Unbekannte Spalte: „rufzeichen“"},
      {"qrg;pwr,gewinn\n", "Unbekannte Spalte: „pwr,gewinn“"},
      {"qrg;pwr;QRG\n", "Die Spalte QRG darf nur einmal stehen."},
      {"pwr\n1\n", "Die Spalte qrg fehlt."},
      {"qrg\n1\n", "Die Spalte pwr oder abstand fehlt."},
  };
  for (const auto& [eingabe, meldung] : faelle) {
    const Rechenlauf lauf("--stapel", eingabe);
    EXPECT_TRUE(lauf.rueckgabe == 2 && lauf.aus.empty()) << eingabe;
    EXPECT_NE(lauf.fehler.find(meldung), std::string::npos) << lauf.fehler;
  }
  const Rechenlauf datei("--stapel gibt/es/nicht");
  EXPECT_EQ(datei.rueckgabe, 1);
  EXPECT_NE(datei.fehler.find("Die Datei gibt/es/nicht läßt sich nicht lesen."), std::string::npos)
      << datei.fehler;
}

/// Somebody who writes a line only when the one before it has been answered.
class Gespraech : public std::streambuf {
 public:
  explicit Gespraech(const std::ostringstream& antworten) : antworten_(antworten) {}

 protected:
  int underflow() override {
    EXPECT_EQ(Zeilen(antworten_.str()).size(), static_cast<std::size_t>(geschrieben_));
    if (geschrieben_ == 4) return traits_type::eof();
    zeile_ = geschrieben_++ == 0 ? "qrg;pwr\n" : "14;1\n";
    setg(zeile_.data(), zeile_.data(), zeile_.data() + zeile_.size());
    return traits_type::to_int_type(zeile_.front());
  }

 private:
  const std::ostringstream& antworten_;
  std::string zeile_;
  int geschrieben_ = 0;
};

TEST(Stapel, AntwortetBevorErWartet) {
  std::ostringstream aus;
  Gespraech gespraech(aus);
  std::istream ein(&gespraech);
  EXPECT_EQ(Rechenlauf("--stapel", ein, aus).rueckgabe, 0);
}

}  // namespace
}  // namespace vesk
