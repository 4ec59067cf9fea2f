#include "app/Druckbefehl.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <algorithm>
#include <filesystem>

#include "app/Rechenauftrag.h"
#include "app/Verzeichnisse.h"
#include "engine/Zahlen.h"
#include "persistence/Katalogdateien.h"
#include "persistence/UserDatei.h"
#include "persistence/Winkeldatei.h"
#include "print/Pdf.h"
#include "station/Optionen.h"
#include "station/Papiere.h"
#include "station/Text.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace fs = std::filesystem;

namespace {

/// By the order of Papierart resp. Winkelkurve.
constexpr std::array Arten = {u"mappe",    u"antrag", u"datenblatt", u"regtp",
                              u"benutzer", u"winkel", u"rechenweg"};
constexpr std::array Kurven = {u"ohne", u"306", u"vde"};

template <typename Wahl, std::size_t anzahl>
Wahl Gewaehlt(QStringView option, const QString& text, const std::array<const char16_t*, anzahl>& namen) {
  QStringList moeglich;
  for (const char16_t* name : namen) moeglich.append(QString::fromUtf16(name));
  const auto stelle = moeglich.indexOf(text.toLower());
  if (stelle >= 0) return static_cast<Wahl>(stelle);
  throw Eingabefehler(u"--%1: möglich sind %2."_s.arg(option, moeglich.join(u", ")));
}

double Massstabszahl(const QString& text) {
  static const QRegularExpression muster(QRegularExpression::anchoredPattern(u"(?:1:)?(\\d{1,6})"_s));
  const int n = muster.match(text).captured(1).toInt();
  if (n >= 1 && n <= 100000) return n;
  throw Eingabefehler(u"--massstab: „%1“ ist kein Maßstab von 1:1 bis 1:100000."_s.arg(text.left(40)));
}

fs::path AlsPfad(const QString& name) {
  return QFile::encodeName(name).toStdString();
}

/// The user's file as it is, whatever version wrote it: nothing is converted on the disk.
Station StationLesen(const fs::path& pfad, const Kataloge& kataloge) {
  const std::string name = pfad.filename().string();
  const Gelesen datei = DateiLesen(pfad);
  if (const Fehlergrund grund = WarumUnbrauchbar(name, datei, true)) throw std::runtime_error(*grund);
  Station s;
  OptionenVorbelegen(s, kataloge);
  const Lesebericht bericht = UserDateiLesen(datei.bytes, s);
  if (bericht.version == Dateiversion::ZuAlt) {
    throw std::runtime_error("Die Datei " + name + " stammt aus Programmversion " + bericht.versionstext +
                             "; ihr Datenblatt ist nicht mehr lesbar.");
  }
  s.benutzer.Klasse = Grossbuchstaben(s.benutzer.Klasse);
  s.UserDatei = name;
  s.UserVerzeichnis = fs::absolute(pfad).parent_path().string();
  return s;
}

/// The angle page shows the file's table, with the power of a column.
void WinkelseiteLesen(const fs::path& pfad, Station& s) {
  const std::string name = "Die Datei " + pfad.filename().string();
  const Gelesen datei = DateiLesen(pfad);
  if (const Fehlergrund grund = WarumOhneInhalt(pfad.filename().string(), datei))
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
  s.winkel.datei = pfad.string();
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
    throw Eingabefehler(u"--nach: Das PDF würde „%1“ überschreiben."_s.arg(
        QString::fromStdString(datei.filename().string())));
  }
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

const char* WarumKeineSeite(const Station& s) {
  return HatWinkeltabelle(s)
             ? "Für diese Sicherheitsabstände ist bei der Frequenz kein Grenzwert festgelegt; es gibt "
               "kein Winkeldiagramm davon."
             : "Keine Spalte des Datenblatts hat eine Winkeldämpfung mit vollständiger Winkeltabelle; "
               "eine Winkeldatei nennt --winkeldatei.";
}

}  // namespace

Druckbefehl DruckbefehlLesen(const QStringList& argumente) {
  QCommandLineParser leser;
  OptionenLesen(
      leser, {u"art"_s, u"datei"_s, u"nach"_s, u"winkeldatei"_s, u"hsm"_s, u"massstab"_s, u"verzeichnis"_s},
      {}, argumente);
  Druckbefehl befehl;
  befehl.hilfe = leser.isSet(u"help"_s);
  if (befehl.hilfe) return befehl;
  for (const QString& noetig : {u"art"_s, u"datei"_s, u"nach"_s}) {
    if (!leser.isSet(noetig)) throw Eingabefehler(u"Die Angabe --%1 fehlt."_s.arg(noetig));
  }
  befehl.papiere.art = Gewaehlt<Papierart>(u"art", leser.value(u"art"_s), Arten);
  const bool winkel = befehl.papiere.art == Papierart::Winkel || befehl.papiere.art == Papierart::Mappe;
  for (const QString& option : {u"hsm"_s, u"massstab"_s, u"winkeldatei"_s}) {
    if (winkel || !leser.isSet(option)) continue;
    throw Eingabefehler(u"--%1 gilt nur für --art winkel und --art mappe."_s.arg(option));
  }
  if (leser.isSet(u"hsm"_s))
    befehl.papiere.kurve = Gewaehlt<Winkelkurve>(u"hsm", leser.value(u"hsm"_s), Kurven);
  if (leser.isSet(u"massstab"_s)) befehl.papiere.massstab = Massstabszahl(leser.value(u"massstab"_s));
  befehl.datei = leser.value(u"datei"_s);
  befehl.nach = leser.value(u"nach"_s);
  befehl.winkeldatei = leser.value(u"winkeldatei"_s);
  befehl.verzeichnis = leser.value(u"verzeichnis"_s);
  return befehl;
}

std::string PapiereSchreiben(const Druckbefehl& befehl) {
  const OhneBildschirm bildschirm;
  const fs::path nach = AlsPfad(befehl.nach);
  const fs::path verzeichnis = Katalogverzeichnis(befehl.verzeichnis);
  ZielPruefen(nach, {AlsPfad(befehl.datei), AlsPfad(befehl.winkeldatei), verzeichnis / "Kabel.txt",
                     verzeichnis / "Antennen.txt"});
  Meldungen meldungen;
  const Kataloge kataloge = KatalogeLesen(verzeichnis, meldungen);
  Station s = StationLesen(AlsPfad(befehl.datei), kataloge);
  if (!befehl.winkeldatei.isEmpty()) WinkelseiteLesen(AlsPfad(befehl.winkeldatei), s);

  const QDateTime zeit = Papierzeit();
  Papierauftrag auftrag = befehl.papiere;
  auftrag.datum = zeit.date();
  const Mappe mappe = MappeBilden(s, kataloge, auftrag);
  if (Seitenzahl(mappe) == 0) throw std::runtime_error(WarumKeineSeite(s));
  if (const Fehlergrund grund = DateiSchreiben(nach, Pdf(mappe, zeit).toStdString())) {
    throw std::runtime_error("Die Datei " + nach.string() + " konnte nicht geschrieben werden.\n" + *grund);
  }
  std::string maengel;
  for (const Meldung& meldung : meldungen) maengel += meldung.hinweis.text + '\n';
  return maengel;
}

}  // namespace vesk
