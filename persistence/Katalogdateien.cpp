#include "persistence/Katalogdateien.h"

#include <algorithm>
#include <array>

#include "persistence/Antennendatei.h"
#include "persistence/Dateien.h"
#include "persistence/Kabeldatei.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

const std::array<fs::path, 2> Katalognamen = {"Kabel.txt", "Antennen.txt"};

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

bool IstKatalog(const fs::path& pfad) {
  return std::count(Katalognamen.begin(), Katalognamen.end(), pfad.filename()) != 0;
}

bool KatalogErsetzen(const fs::path& pfad, const fs::path& verzeichnis, Rueckfragen& rueckfragen) {
  const std::string name = pfad.filename().string();
  const fs::path ziel = verzeichnis / name;
  const Gelesen neu = DateiLesen(pfad);
  const auto fehler = [&](const std::string& grund) {
    rueckfragen.Fragen(Fehlermeldung(name + " wurde nicht übernommen.\n" + grund));
    return false;
  };
  if (const Fehlergrund grund = WarumOhneInhalt(name, neu)) return fehler(*grund);
  const bool brauchbar = name == Katalognamen[0]
                             ? !KabelLesen(neu).fehler && KabelLesen(neu).Meldung.empty()
                             : !AntennenLesen(neu).fehler && !AntennenLesen(neu).Antennen.empty();
  if (!brauchbar) return fehler("Die Datei hat nicht den Aufbau eines solchen Katalogs.");
  const Gelesen bisher = DateiLesen(ziel);
  if (bisher.status == Lesestatus::Gelesen && bisher.bytes == neu.bytes) return false;
  const fs::path alt = FreierAltname(ziel);
  const std::string bleibt = bisher.status == Lesestatus::Fehlt
                                 ? ""
                                 : "\nDer bisherige bleibt als " + alt.filename().string() + " erhalten.";
  const Hinweis frage{"Katalog übernehmen", "Soll " + name + " der Katalog des Programms werden?" + bleibt,
                      Knoepfe::JaNein, Symbol::Frage, Antwort::Ja};
  if (rueckfragen.Fragen(frage) != Antwort::Ja) return false;
  Fehlergrund grund;
  if (bisher.status != Lesestatus::Fehlt) grund = DateiKopieren(ziel, alt);
  if (!grund) grund = DateiKopieren(pfad, ziel);
  return !grund || fehler(*grund);
}

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
