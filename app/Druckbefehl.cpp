#include "app/Druckbefehl.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <algorithm>
#include <filesystem>

#include "app/Pfadtext.h"
#include "app/Verzeichnisse.h"
#include "engine/Zahlen.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Katalogdateien.h"
#include "persistence/Lageplandatei.h"
#include "persistence/UserDatei.h"
#include "persistence/Winkeldatei.h"
#include "print/Pdf.h"
#include "print/Svg.h"
#include "station/Optionen.h"
#include "station/Papiere.h"
#include "station/Text.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace fs = std::filesystem;

namespace {

/// By the order of Papierart resp. Winkelkurve.
constexpr std::array Arten = {"mappe",  "antrag",    "datenblatt", "regtp",    "benutzer",
                              "winkel", "rechenweg", "diagramme",  "lageplan", "blockbild"};
constexpr std::array Kurven = {"ohne", "306", "vde"};

template <typename Wahl, std::size_t anzahl>
Wahl Gewaehlt(const std::string& option, const std::string& text,
              const std::array<const char*, anzahl>& namen) {
  const std::string klein = Kleinbuchstaben(text);
  const auto stelle = std::find(namen.begin(), namen.end(), klein);
  if (stelle != namen.end()) return static_cast<Wahl>(stelle - namen.begin());
  std::string moeglich;
  for (const char* name : namen) moeglich += (moeglich.empty() ? "" : ", ") + std::string(name);
  throw Eingabefehler("--" + option + ": möglich sind " + moeglich + ".");
}

double Massstabszahl(const std::string& text) {
  static const QRegularExpression muster(QRegularExpression::anchoredPattern(u"(?:1:)?(\\d{1,6})"_s));
  const int n = muster.match(QString::fromStdString(text)).captured(1).toInt();
  if (n >= 1 && n <= 100000) return n;
  throw Eingabefehler("--massstab: „" + Gekuerzt(text) + "“ ist kein Maßstab von 1:1 bis 1:100000.");
}

/// The user's file as it is, whatever version wrote it: nothing is converted on the disk.
Station StationLesen(const fs::path& pfad, const Kataloge& kataloge) {
  const std::string name = PfadAlsUtf8(pfad.filename());
  const Gelesen datei = DateiLesen(pfad, grenzen::UserDatei);
  if (const Fehlergrund grund = WarumUnbrauchbar(name, datei, true)) throw std::runtime_error(*grund);
  Station s;
  OptionenVorbelegen(s, kataloge);
  const Lesebericht bericht = UserDateiLesen(datei.bytes, s);
  if (bericht.version == Dateiversion::ZuAlt) {
    throw std::runtime_error("Die Datei " + name + " stammt aus Programmversion " +
                             Anfang(bericht.versionstext, grenzen::Meldungswort) +
                             "; ihr Datenblatt ist nicht mehr lesbar.");
  }
  s.benutzer.Klasse = Grossbuchstaben(s.benutzer.Klasse);
  s.UserDatei = name;
  s.UserVerzeichnis = PfadZumZeigen(fs::absolute(pfad).parent_path());
  s.Arbeitsverzeichnis = PfadAlsUtf8(fs::absolute(pfad).parent_path());
  return s;
}

bool MitLageplan(Papierart art) {
  return art == Papierart::Mappe || art == Papierart::Antrag || art == Papierart::Lageplan;
}

/// What lies beside the user's file. Returns what was put right in it.
std::string LageplanDazulesen(const fs::path& userdatei, Station& s) {
  const fs::path pfad = Lageplanpfad(userdatei);
  const std::string name = PfadAlsUtf8(pfad.filename());
  const Gelesen datei = DateiLesen(pfad, grenzen::Lageplan);
  if (datei.status == Lesestatus::Fehlt) return {};
  if (const Fehlergrund grund = WarumOhneInhalt(name, datei)) throw std::runtime_error(*grund);
  Lageplanlesung lesung = LageplanLesen(datei.bytes);
  if (!lesung.fehler.empty()) {
    throw std::runtime_error("Die Datei " + name + " konnte nicht gelesen werden.\n" + lesung.fehler);
  }
  s.lageplan = std::move(lesung.plan);
  return lesung.hinweis.empty() ? lesung.hinweis : lesung.hinweis + '\n';
}

/// The angle page shows the file's table, with the power of a column.
void WinkelseiteLesen(const fs::path& pfad, Station& s) {
  const std::string name = "Die Datei " + PfadAlsUtf8(pfad.filename());
  const Gelesen datei = DateiLesen(pfad, grenzen::Winkel);
  if (const Fehlergrund grund = WarumOhneInhalt(PfadAlsUtf8(pfad.filename()), datei))
    throw std::runtime_error(*grund);
  const GeleseneWinkeldaten daten = WinkelLesen(datei.bytes);
  const std::string frequenz = daten.frequenz.value_or("");
  if (!IstZahl(frequenz) || !IstZahl(daten.gewinn.value_or("")) ||
      !std::all_of(daten.daempfung.begin(), daten.daempfung.end(), IstZahl)) {
    throw std::runtime_error(name + " enthält keine vollständige Winkeltabelle.");
  }
  s.Datenblattspalten[0].Winkel = daten.daempfung;
  s.winkel.antenne = daten.antenne.value_or("");
  s.winkel.gewinn = *daten.gewinn;
  s.winkel.frequenz = frequenz;
  s.winkel.datei = PfadAlsUtf8(pfad);
  if (!WinkelseiteAusSpalte(s)) {
    throw std::runtime_error("Das Datenblatt hat keine Spalte für die Frequenz der Winkeldatei (" + frequenz +
                             " MHz), aus der die Leistung des Winkeldiagramms hervorgeht.");
  }
  if (WinkelblattDerSeite(s).tabelle.fehler) {
    throw std::runtime_error(name + " enthält eine Winkeltabelle, die sich nicht berechnen läßt.");
  }
}

/// Where the program would read its catalogues, without making or copying anything.
fs::path Katalogverzeichnis(const QString& gewuenscht) {
  if (!gewuenscht.isEmpty() && !QFileInfo(gewuenscht).isDir()) {
    throw std::runtime_error("Das Verzeichnis " + gewuenscht.toStdString() + " gibt es nicht.");
  }
  const Verzeichnisse v = VerzeichnisseBestimmen(gewuenscht, QCoreApplication::applicationDirPath());
  const bool eigene = v.daten.isEmpty() || QFileInfo::exists(v.programm + "/Kabel.txt"_L1);
  return AlsPfad(eigene ? v.programm : v.daten);
}

void ZielPruefen(const fs::path& nach, std::initializer_list<fs::path> gelesene) {
  for (const fs::path& datei : gelesene) {
    std::error_code keineAntwort;
    if (!fs::equivalent(nach, datei, keineAntwort)) continue;
    throw Eingabefehler("--nach: Die Ausgabe würde „" + PfadAlsUtf8(datei.filename()) + "“ überschreiben.");
  }
}

bool AlsSvg(const Druckbefehl& befehl) {
  return befehl.nach.endsWith(u".svg"_s, Qt::CaseInsensitive);
}

/// SOURCE_DATE_EPOCH makes papers that are the same bit for bit.
QDateTime Papierzeit() {
  constexpr qint64 Letzte = 253402300799;  // 31.12.9999, 23:59:59: a PDF writes years of four digits
  bool gesetzt = false;
  const qint64 sekunden = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&gesetzt);
  const bool gilt = gesetzt && sekunden >= 0 && sekunden <= Letzte;
  return gilt ? QDateTime::fromSecsSinceEpoch(sekunden, Qt::UTC) : QDateTime::currentDateTime();
}

/// The letters of the pages come from the toolkit, which wants an application object. What it misses of a
/// desktop is nobody's concern here.
class OhneBildschirm {
 public:
  OhneBildschirm() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    // The order of the fonts in the file must not change from one run to the next.
    QHashSeed::setDeterministicGlobalSeed();
    anwendung_.emplace(anzahl_, argumente_.data());
  }

 private:
  int anzahl_ = 1;
  std::string name_ = "vesk";
  std::array<char*, 2> argumente_ = {name_.data(), nullptr};
  std::optional<QGuiApplication> anwendung_;
};

const char* WarumKeineSeite(const Station& s, Papierart art) {
  if (art == Papierart::Lageplan) return "Neben der Benutzerdatei liegt kein Lageplan.";
  return HatWinkeltabelle(s)
             ? "Für diese Sicherheitsabstände ist bei der Frequenz kein Grenzwert festgelegt; es gibt "
               "kein Winkeldiagramm davon."
             : "Keine Spalte des Datenblatts hat eine Winkeldämpfung mit vollständiger Winkeltabelle; "
               "eine Winkeldatei nennt --winkeldatei.";
}

}  // namespace

Druckbefehl DruckbefehlLesen(std::span<const std::string> argumente) {
  constexpr Option Erlaubt[] = {{"art"}, {"datei"},    {"nach"},       {"winkeldatei"},
                                {"hsm"}, {"massstab"}, {"verzeichnis"}};
  const Optionen optionen = OptionenLesen(Erlaubt, argumente);
  Druckbefehl befehl;
  befehl.hilfe = optionen.contains("help");
  if (befehl.hilfe) return befehl;
  for (const char* noetig : {"art", "datei", "nach"}) {
    if (!optionen.contains(noetig)) throw Eingabefehler("Die Angabe --" + std::string(noetig) + " fehlt.");
  }
  befehl.papiere.art = Gewaehlt<Papierart>("art", Wert(optionen, "art"), Arten);
  const bool winkel = befehl.papiere.art == Papierart::Winkel || befehl.papiere.art == Papierart::Mappe;
  for (const char* option : {"hsm", "massstab", "winkeldatei"}) {
    if (winkel || !optionen.contains(option)) continue;
    throw Eingabefehler("--" + std::string(option) + " gilt nur für --art winkel und --art mappe.");
  }
  if (optionen.contains("hsm"))
    befehl.papiere.kurve = Gewaehlt<Winkelkurve>("hsm", Wert(optionen, "hsm"), Kurven);
  if (optionen.contains("massstab")) befehl.papiere.massstab = Massstabszahl(Wert(optionen, "massstab"));
  const auto text = [&](const char* option) { return QString::fromStdString(Wert(optionen, option)); };
  befehl.datei = text("datei");
  befehl.nach = text("nach");
  if (AlsSvg(befehl) && befehl.papiere.art != Papierart::Lageplan) {
    throw Eingabefehler("--nach: Als SVG entsteht nur der Lageplan (--art lageplan), alles andere als PDF.");
  }
  befehl.winkeldatei = text("winkeldatei");
  befehl.verzeichnis = text("verzeichnis");
  return befehl;
}

std::string PapiereSchreiben(const Druckbefehl& befehl) {
  const OhneBildschirm bildschirm;
  const fs::path nach = AlsPfad(befehl.nach);
  const fs::path verzeichnis = Katalogverzeichnis(befehl.verzeichnis);
  const fs::path userdatei = AlsPfad(befehl.datei);
  ZielPruefen(nach, {userdatei, Lageplanpfad(userdatei), AlsPfad(befehl.winkeldatei),
                     verzeichnis / "Kabel.txt", verzeichnis / "Antennen.txt"});
  Meldungen meldungen;
  const Kataloge kataloge = KatalogeLesen(verzeichnis, meldungen);
  Station s = StationLesen(userdatei, kataloge);
  std::string maengel;
  if (MitLageplan(befehl.papiere.art)) maengel = LageplanDazulesen(userdatei, s);
  if (const auto& bild = s.lageplan.hintergrund) {
    ZielPruefen(nach, {userdatei.parent_path() / PfadAusUtf8(bild->datei)});
  }
  if (!befehl.winkeldatei.isEmpty()) WinkelseiteLesen(AlsPfad(befehl.winkeldatei), s);

  const QDateTime zeit = Papierzeit();
  Papierauftrag auftrag = befehl.papiere;
  auftrag.datum = zeit.date();
  const Mappe mappe = MappeBilden(s, kataloge, auftrag);
  if (Seitenzahl(mappe) == 0) throw std::runtime_error(WarumKeineSeite(s, auftrag.art));
  const QByteArray bytes = AlsSvg(befehl) ? Svg(mappe, 0) : Pdf(mappe, zeit);
  if (const Fehlergrund grund = DateiSchreiben(nach, bytes.toStdString())) {
    throw std::runtime_error("Die Datei " + PfadZumZeigen(nach) + " konnte nicht geschrieben werden.\n" +
                             *grund);
  }
  for (const Meldung& meldung : meldungen) maengel += meldung.hinweis.text + '\n';
  return maengel;
}

}  // namespace vesk
