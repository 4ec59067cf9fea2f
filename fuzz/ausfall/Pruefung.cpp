#include "fuzz/ausfall/Pruefung.h"

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <iostream>

#include "fuzz/ausfall/Auftraege.h"
#include "fuzz/ausfall/Ausfall.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

struct Ruf {
  const char* name;
  int fehler;
};
constexpr Ruf Rufe[] = {
    {"oeffnen", EACCES}, {"oeffnen", EMFILE}, {"schreiben", ENOSPC}, {"schreiben", EIO},
    {"kurz", 0},         {"voll", ENOSPC},    {"fsync", EIO},        {"umbenennen", EACCES},
    {"schliessen", EIO}, {"verzeichnis", EIO}};

using Inhalte = std::map<QString, QByteArray>;

/// All files of a directory, by their path in it. Some name it; it is another one each time.
Inhalte Bestand(const QString& verzeichnis) {
  Inhalte inhalte;
  QDirIterator weg(verzeichnis, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (weg.hasNext()) {
    QFile datei(weg.next());
    if (datei.open(QFile::ReadOnly)) {
      inhalte[datei.fileName().mid(verzeichnis.size() + 1)] =
          datei.readAll().replace(verzeichnis.toUtf8(), "ORDNER");
    }
  }
  return inhalte;
}

/// A directory in which an earlier run has saved.
void Vorbereiten(const QString& verzeichnis, const Auftrag& auftrag) {
  for (const QString& katalog : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
    QFile::copy(QStringLiteral(VESK_DATEN) + u'/' + katalog, verzeichnis + u'/' + katalog);
  }
  {
    Lauf lauf(verzeichnis);
    lauf.programm.Starten();
    lauf.Tippen("Berta");
    lauf.programm.Befehlen(Befehl::DateiSpeichern);
  }
  auftrag.vorher(verzeichnis);
}

struct Ausgang {
  bool erreicht = false;
  Inhalte vorher;
  Inhalte nachher;
  std::vector<std::string> boxen;
  std::string gezeigt;   ///< what it has brought into the windows
  bool bewahrt = false;  ///< the program started anew has what was typed
};

Ausgang Ausfuehren(const Auftrag& auftrag, const Ruf& ruf, int nummer) {
  const QTemporaryDir ordner;
  const QString verzeichnis = ordner.path();
  Vorbereiten(verzeichnis, auftrag);
  Ausgang ausgang;
  ausgang.vorher = Bestand(verzeichnis);
  {
    Lauf lauf(verzeichnis);
    if (!auftrag.start) {
      lauf.programm.Starten();
      lauf.Tippen(Getippt);
    }
    lauf.boxen.texte.clear();
    AusfallStellen(ruf.name, nummer, ruf.fehler, verzeichnis.toUtf8().constData());
    auftrag.tun(lauf, verzeichnis);
    ausgang.erreicht = AusfallGezaehlt() >= nummer;
    AusfallStellen("", 0, 0, "");
    ausgang.boxen = lauf.boxen.texte;
    if (auftrag.zeigt != nullptr) ausgang.gezeigt = auftrag.zeigt(lauf.station);
    ausgang.nachher = Bestand(verzeichnis);
    lauf.programm.RettungSichern();  // as it does by itself every few seconds
  }
  {
    Lauf danach(verzeichnis);
    danach.programm.Starten();
    ausgang.bewahrt = auftrag.bewahrt(danach.station);
  }
  return ausgang;
}

QByteArray Datei(const Inhalte& inhalte, const QString& name) {
  const auto stelle = inhalte.find(name);
  return stelle == inhalte.end() ? QByteArray() : stelle->second;
}

/// The papers bear the time; two are never the same.
QByteArray OhneZeit(const QByteArray& bytes) {
  const bool ganz = bytes.startsWith("%PDF-1.") && bytes.trimmed().endsWith("%%EOF");
  return ganz ? QByteArray("PDF") : bytes;
}

bool Enthaelt(const Inhalte& inhalte, const QByteArray& bytes) {
  return std::any_of(inhalte.begin(), inhalte.end(),
                     [&](const auto& datei) { return datei.second == bytes; });
}

/// What is wrong; empty: nothing.
std::string Mangel(const Auftrag& auftrag, const Ausgang& gut, const Ausgang& jetzt) {
  bool alleNeu = true;
  int getippt = 0;  // files that hold what was typed when nothing fails
  int davonNeu = 0;
  for (const QString& name : auftrag.ziele) {
    const QByteArray alt = Datei(jetzt.vorher, name);
    const QByteArray neu = OhneZeit(Datei(gut.nachher, name));
    const QByteArray da = Datei(jetzt.nachher, name);
    const bool istNeu = OhneZeit(da) == neu;
    // A file that is brought here first stands as it was before it is rewritten.
    if (!istNeu && da != alt && !Enthaelt(jetzt.vorher, da))
      return name.toStdString() + " ist weder die alte noch die neue Datei";
    if (jetzt.vorher.contains(name) && !jetzt.nachher.contains(name)) return name.toStdString() + " ist weg";
    alleNeu = alleNeu && istNeu;
    getippt += neu.contains(Getippt) ? 1 : 0;
    davonNeu += istNeu && da.contains(Getippt) ? 1 : 0;
  }
  const bool bewahrt = jetzt.bewahrt || (getippt > 0 && davonNeu == getippt);
  const QByteArray alt = Datei(jetzt.vorher, auftrag.ziele.back());
  if (auftrag.altBleibt && !Enthaelt(jetzt.nachher, alt)) return "die alte Fassung ist verloren";
  if (!alleNeu && !bewahrt) return "was getippt war, ist verloren";
  const bool meldenswert = (!alleNeu && auftrag.meldet) || jetzt.gezeigt != gut.gezeigt;
  if (meldenswert && jetzt.boxen == gut.boxen) return "kein Wort davon";
  for (const auto& [name, bytes] : jetzt.nachher) {
    if (name.endsWith(u".neu"_s)) return name.toStdString() + " ist liegengeblieben";
  }
  return {};
}

}  // namespace

bool AlleAusfaelle() {
  int ausgefallen = 0;
  int maengel = 0;
  for (const Auftrag& auftrag : Auftraege()) {
    const Ausgang gut = Ausfuehren(auftrag, {"", 0}, 1);
    int davon = 0;
    for (const Ruf& ruf : Rufe) {
      for (int nummer = 1;; ++nummer) {
        const Ausgang jetzt = Ausfuehren(auftrag, ruf, nummer);
        if (!jetzt.erreicht) break;
        ++davon;
        const std::string mangel = Mangel(auftrag, gut, jetzt);
        if (mangel.empty()) continue;
        ++maengel;
        std::cout << auftrag.name << ", " << ruf.name << ' ' << nummer << " (errno " << ruf.fehler
                  << "): " << mangel << '\n';
        for (const std::string& box : jetzt.boxen) std::cout << "    | " << box << '\n';
      }
    }
    std::cout << auftrag.name << ": " << davon << " Ausfälle\n" << std::flush;
    if (davon == 0) ++maengel;
    ausgefallen += davon;
  }
  std::cout << ausgefallen << " Ausfälle, " << maengel << " Mängel\n";
  return maengel == 0;
}

}  // namespace vesk::ausfall
