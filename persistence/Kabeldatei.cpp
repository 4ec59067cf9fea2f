#include "persistence/Kabeldatei.h"

#include <utility>

#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Itemleser.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::string_view RG213 = "RG213";
constexpr std::array<float, KabelFrequenzen> RG213Werte = {0.56F, 0.8F,  1.28F,  1.86F, 2.66F, 4.23F,
                                                           6.12F, 9.18F, 16.17F, 25.9F, 42.3F, 79.7F};

constexpr std::string_view MeldungFehlt = "Kabeldatendatei: Kabel.txt nicht gefunden. - RG213 geladen.";
constexpr std::string_view MeldungDefekt = "Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen.";

std::string Stelle(const Kabelkatalog& katalog, const std::string& name) {
  return "Kabel.txt, Eintrag " + std::to_string(katalog.Kabelanzahl + 1) + ": " +
         Anfang(name, grenzen::Meldungswort);
}

/// False when the file ends within the record.
bool WerteLesen(Itemleser& leser, Kabel& kabel) {
  for (std::size_t j = 0; j < kabel.Kabelwert.size(); ++j) {
    const auto item = leser.Naechstes();
    if (!item) return false;
    kabel.Kabelwert[j] = Zahl(*item);
    // Marks a defective record. The last value may be 0 here; its logarithm fails later.
    if (kabel.Kabelwert[j] == 0 && j + 1 < kabel.Kabelwert.size()) throw Laufzeitfehler(Fehlerart::Typ);
  }
  return true;
}

/// Lists a whole cable. A value that has no logarithm leaves the other cables usable.
void Aufnehmen(Kabelkatalog& katalog, const Kabel& kabel) {
  const std::string stelle = Stelle(katalog, kabel.Kabelname);
  Kabel& neu = katalog.kabel.at(static_cast<std::size_t>(katalog.Kabelanzahl++)) = kabel;
  katalog.liste.push_back(neu.Kabelname);
  try {
    KoeffizientenBestimmen(neu);
  } catch (const Laufzeitfehler& fehler) {
    if (katalog.fehler) return;
    katalog.fehler = fehler.art;
    katalog.fehlerstelle = stelle;
  }
}

void RG213Aufnehmen(Kabelkatalog& katalog, std::string meldung) {
  katalog.Meldung = std::move(meldung);
  Aufnehmen(katalog, {.Kabelname = std::string(RG213), .Kabelwert = RG213Werte});
  katalog.auswahl = 0;
}

void KabelLesen(Itemleser leser, Kabelkatalog& katalog) {
  while (const auto name = leser.Naechstes()) {
    if (name->empty()) continue;  // blank line between two cables
    Kabel kabel{.Kabelname = NachUtf8(*name)};
    const std::string stelle = Stelle(katalog, kabel.Kabelname);
    try {
      if (katalog.Kabelanzahl == KabelMax) throw Laufzeitfehler(Fehlerart::Index);
      if (!WerteLesen(leser, kabel)) {
        RG213Aufnehmen(katalog, std::string(MeldungDefekt) + "\n" + stelle);
        return;
      }
    } catch (const Laufzeitfehler& fehler) {
      katalog.fehler = fehler.art;
      katalog.fehlerstelle = stelle;
      return;
    }
    if (kabel.Kabelname == RG213) katalog.auswahl = katalog.Kabelanzahl;
    Aufnehmen(katalog, kabel);
  }
}

Kabelkatalog NurRG213(std::string meldung) {
  Kabelkatalog katalog;
  RG213Aufnehmen(katalog, std::move(meldung));
  katalog.liste.emplace_back(AnderesKabel);
  return katalog;
}

}  // namespace

Kabelkatalog KabelLaden(std::string_view bytes) {
  const std::string text = AlsWindows1252(bytes);
  Kabelkatalog katalog;
  KabelLesen(Itemleser(text), katalog);
  katalog.liste.emplace_back(AnderesKabel);
  return katalog;
}

Kabelkatalog KabelOhneDatei() {
  return NurRG213(std::string(MeldungFehlt));
}

Kabelkatalog KabelUnlesbar(const std::string& grund) {
  return NurRG213(std::string(MeldungDefekt) + "\n" + grund);
}

}  // namespace vesk
