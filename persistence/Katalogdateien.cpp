#include "persistence/Katalogdateien.h"

#include "persistence/Antennendatei.h"
#include "persistence/Dateien.h"
#include "persistence/Kabeldatei.h"

namespace vesk {

namespace {

Kabelkatalog KabelLesen(const Gelesen& datei) {
  if (datei.status == Lesestatus::Gelesen) return KabelLaden(datei.bytes);
  return datei.status == Lesestatus::Fehlt ? KabelOhneDatei() : KabelUnlesbar(datei.grund);
}

/// Without a file there are no antennas, and nothing is wrong with that.
Antennenkatalog AntennenLesen(const Gelesen& datei) {
  if (datei.status == Lesestatus::Gelesen) return AntennenLaden(datei.bytes);
  return datei.status == Lesestatus::Fehlt ? Antennenkatalog() : AntennenUnlesbar(datei.grund);
}

}  // namespace

Kataloge KatalogeLesen(const std::filesystem::path& verzeichnis, Meldungen& meldungen) {
  Kataloge kataloge{KabelLesen(DateiLesen(verzeichnis / "Kabel.txt")),
                    AntennenLesen(DateiLesen(verzeichnis / "Antennen.txt"))};
  const Kabelkatalog& kabel = kataloge.kabel;
  const Antennenkatalog& antennen = kataloge.antennen;
  if (!kabel.Meldung.empty()) meldungen.push_back({Fehlermeldung(kabel.Meldung)});
  if (kabel.fehler) {
    meldungen.push_back({Fehlermeldung(Laufzeitfehler(*kabel.fehler).what() + ("\n" + kabel.fehlerstelle))});
  }
  if (!antennen.Meldung.empty()) meldungen.push_back({Fehlermeldung(antennen.Meldung, "Hinweis")});
  if (antennen.fehler) meldungen.push_back({Fehlermeldung(*antennen.fehler)});
  return kataloge;
}

}  // namespace vesk
