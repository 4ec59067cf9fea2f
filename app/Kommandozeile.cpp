#include "app/Kommandozeile.h"

#include <QFileInfo>
#include <ostream>
#include <vector>

#include "app/Druckbefehl.h"
#include "engine/Version.h"
#include "rechnen/Rechenbefehl.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr const char* Hilfe =
    " - Sicherheitsabstände ortsfester Amateurfunkstellen\n"
    "\n"
    "Aufruf: vesk [--verzeichnis DIR] [DATEI]  öffnet das Programm, mit DATEI darin\n"
    "        vesk rechnen ...                  rechnet im Terminal, auch ganze Tabellen (siehe unten)\n"
    "        vesk drucken ...                  schreibt die Unterlagen als PDF (siehe unten)\n"
    "        vesk --version                    zeigt die Version\n"
    "        vesk --help                       zeigt diese Hilfe\n"
    "\n"
    "  --verzeichnis DIR   Verzeichnis mit den Dateien des Benutzers (user.dat, Kabel.txt, Antennen.txt)\n"
    "\n";

constexpr const char* Hilfedrucken =
    "Aufruf: vesk drucken --art ART --datei DATEI --nach PDF [Optionen]\n"
    "\n"
    "Schreibt Unterlagen einer Benutzerdatei als PDF. Die Benutzerdatei bleibt, wie sie ist.\n"
    "\n"
    "  --art ART           mappe (alle Unterlagen), antrag, datenblatt, regtp (Datenblatt der RegTP),\n"
    "                      benutzer (persönliche Daten), winkel (Winkeldiagramme), rechenweg,\n"
    "                      blockbild (vom Sender zur Antenne), lageplan,\n"
    "                      diagramme (Abstand, Leistung, Kabel, Grenzwerte; nicht in der Mappe)\n"
    "  --datei DATEI       Benutzerdatei, zum Beispiel user.dat; der Lageplan liegt daneben (user.lageplan)\n"
    "  --nach PDF          Datei, die geschrieben wird; eine vorhandene wird ersetzt. Endet ihr Name auf "
    ".svg,\n"
    "                      so entsteht das Blatt des Lageplans als SVG (nur --art lageplan)\n"
    "  --help              diese Hilfe\n"
    "\n"
    "Nur zu winkel und mappe:\n"
    "  --winkeldatei DATEI Winkeltabelle; die Leistung ist die größte der Spalten dieser Frequenz.\n"
    "                      Ohne sie gelten die Winkeltabellen der Spalten.\n"
    "  --hsm ohne|306|vde  nur die Diagramme dieser Sicherheitsabstände (Vorgabe: alle)\n"
    "  --massstab 1:N      Maßstab der Diagramme, 1:1 bis 1:100000 (Vorgabe: passend zur Seite)\n"
    "\n"
    "  --verzeichnis DIR   Verzeichnis mit Kabel.txt (Vorgabe: das des Programms)\n"
    "\n"
    "Mit SOURCE_DATE_EPOCH als Zeit (Sekunden seit 1970) entsteht jedes Mal dieselbe Datei.\n"
    "Rückgabewert: 0; 1, wenn eine Datei nicht zu lesen oder zu schreiben ist oder nichts zu drucken da ist; "
    "2 bei falschen oder fehlenden Angaben.\n";

std::vector<std::string> Texte(const QStringList& argumente) {
  std::vector<std::string> texte;
  for (const QString& argument : argumente) texte.push_back(argument.toStdString());
  return texte;
}

int Drucken(const QStringList& argumente, const Stroeme& stroeme) {
  const Druckbefehl befehl = DruckbefehlLesen(Texte(argumente));
  if (befehl.hilfe) {
    stroeme.aus << Hilfedrucken;
  } else {
    stroeme.fehler << PapiereSchreiben(befehl);
  }
  return 0;
}

/// What the command line says of the window; `aufruf` takes up the exit code when there shall be none.
void FensteraufrufLesen(const QStringList& argumente, std::ostream& aus, Aufruf& aufruf) {
  // All options but the first two are read by the toolkit itself.
  constexpr Option Erlaubt[] = {{"verzeichnis"}, {"version", Wertart::Keiner},
                                {"platform"},    {"display"},
                                {"style"},       {"geometry"},
                                {"name"},        {""}};
  const Optionen optionen = OptionenLesen(Erlaubt, Texte(argumente));
  if (optionen.contains("help") || optionen.contains("version")) {
    aus << Produktname << ' ' << VersionLang();
    if (optionen.contains("help")) {
      aus << Hilfe << Rechenhilfe("vesk rechnen") << '\n' << Hilfedrucken;
    } else {
      aus << '\n';
    }
    aufruf.rueckgabe = 0;
    return;
  }
  // The toolkit knows fewer spellings of these than are accepted here, but also reads them from here.
  for (const auto& [option, umgebung] :
       {std::pair("platform", "QT_QPA_PLATFORM"), std::pair("display", "DISPLAY")}) {
    const std::string wert = Wert(optionen, option);
    if (!wert.empty()) qputenv(umgebung, QByteArray::fromStdString(wert));
  }
  aufruf.verzeichnis = QString::fromStdString(Wert(optionen, "verzeichnis"));
  const QString datei = QString::fromStdString(Wert(optionen, ""));
  if (!datei.isEmpty()) aufruf.datei = QFileInfo(datei).absoluteFilePath();
}

}  // namespace

std::optional<QStringList> ArgumenteLesen(int anzahl, const char* const* argumente, std::ostream& fehler) {
  QStringList texte;
  for (int i = 1; i < anzahl; ++i) {
    texte.append(QString::fromLocal8Bit(argumente[i]));
    if (texte.back().toLocal8Bit() == argumente[i]) continue;
    fehler << "vesk: Das Argument „" << texte.back().toStdString()
           << "“ enthält Zeichen, die nicht lesbar sind (kein UTF-8).\n";
    return std::nullopt;
  }
  return texte;
}

Aufruf KommandozeileAusfuehren(const QStringList& argumente, char dezimaltrenner, const Stroeme& stroeme) {
  const bool rechnen = argumente.value(0) == u"rechnen"_s;
  const bool drucken = argumente.value(0) == u"drucken"_s;
  const char* const name = rechnen ? "vesk rechnen" : drucken ? "vesk drucken" : "vesk";
  Aufruf aufruf;
  const int rueckgabe = BefehlAusfuehren(name, stroeme, [&] {
    if (rechnen) return Rechnen(name, Texte(argumente.mid(1)), dezimaltrenner, stroeme);
    if (drucken) return Drucken(argumente.mid(1), stroeme);
    FensteraufrufLesen(argumente, stroeme.aus, aufruf);
    return 0;
  });
  if (rechnen || drucken || rueckgabe != 0) aufruf.rueckgabe = rueckgabe;
  return aufruf;
}

}  // namespace vesk
