#include "persistence/Katalogdateien.h"

#include <algorithm>
#include <array>

#include "persistence/Antennendatei.h"
#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Kabeldatei.h"
#include "persistence/Pfade.h"
#include "station/Text.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

struct Katalogart {
  const char* name;
  std::size_t grenze;
};
constexpr std::array<Katalogart, 2> Katalogarten = {
    Katalogart{"Kabel.txt", grenzen::Kabel},
    Katalogart{"Antennen.txt", grenzen::Antennen},
};

const Katalogart* Art(const fs::path& pfad) {
  const auto* art = std::find_if(Katalogarten.begin(), Katalogarten.end(), [&](const Katalogart& eine) {
    return Heisst(pfad, Kleinbuchstaben(eine.name));
  });
  return art == Katalogarten.end() ? nullptr : art;
}

Kabelkatalog KabelLesen(const Gelesen& datei) {
  if (datei.status == Lesestatus::Gelesen) return KabelLaden(datei.bytes);
  return datei.status == Lesestatus::Fehlt ? KabelOhneDatei() : KabelUnlesbar(datei.grund);
}

/// Without a file there are no antennas, and nothing is wrong with that.
Antennenkatalog AntennenLesen(const Gelesen& datei) {
  if (datei.status == Lesestatus::Gelesen) return AntennenLaden(datei.bytes);
  return datei.status == Lesestatus::Fehlt ? Antennenkatalog() : AntennenUnlesbar(datei.grund);
}

Gelesen Lesen(const Katalogart& art, const fs::path& verzeichnis, const fs::path& ersatz) {
  Gelesen datei = DateiLesen(verzeichnis / art.name, art.grenze);
  const bool woanders = datei.status == Lesestatus::Fehlt && !ersatz.empty();
  return woanders ? DateiLesen(ersatz / art.name, art.grenze) : datei;
}

}  // namespace

bool IstKatalog(const fs::path& pfad) {
  return Art(pfad) != nullptr;
}

bool KatalogErsetzen(const fs::path& pfad, const fs::path& verzeichnis, Rueckfragen& rueckfragen) {
  const Katalogart& art = *Art(pfad);
  const std::string name = art.name;
  const fs::path ziel = verzeichnis / art.name;
  const Gelesen neu = DateiLesen(pfad, art.grenze);
  const auto fehler = [&](const std::string& grund) {
    rueckfragen.Fragen(Fehlermeldung(name + " wurde nicht übernommen.\n" + grund));
    return false;
  };
  if (const Fehlergrund grund = WarumOhneInhalt(name, neu)) return fehler(*grund);
  const bool brauchbar = &art == Katalogarten.data()
                             ? !KabelLesen(neu).fehler && KabelLesen(neu).Meldung.empty()
                             : !AntennenLesen(neu).fehler && !AntennenLesen(neu).Antennen.empty();
  if (!brauchbar) return fehler("Die Datei hat nicht den Aufbau eines solchen Katalogs.");
  const Gelesen bisher = DateiLesen(ziel, art.grenze);
  if (bisher.status == Lesestatus::Gelesen && bisher.bytes == neu.bytes) return false;
  const fs::path alt = Altname(ziel);
  const std::string bleibt = bisher.status == Lesestatus::Fehlt
                                 ? ""
                                 : "\nDer bisherige bleibt als " + PfadAlsUtf8(alt.filename()) + " erhalten.";
  const Hinweis frage{"Katalog übernehmen", "Soll " + name + " der Katalog des Programms werden?" + bleibt,
                      Knoepfe::JaNein, Symbol::Frage, Antwort::Ja};
  if (rueckfragen.Fragen(frage) != Antwort::Ja) return false;
  Fehlergrund grund;
  if (bisher.status != Lesestatus::Fehlt) grund = DateiKopieren(ziel, alt);
  if (!grund) grund = DateiKopieren(pfad, ziel);
  return !grund || fehler(*grund);
}

Kataloge KatalogeLesen(const fs::path& verzeichnis, Meldungen& meldungen, const fs::path& ersatz) {
  const auto& [kabelart, antennenart] = Katalogarten;
  Kataloge kataloge{KabelLesen(Lesen(kabelart, verzeichnis, ersatz)),
                    AntennenLesen(Lesen(antennenart, verzeichnis, ersatz))};
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
