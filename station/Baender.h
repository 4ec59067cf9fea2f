#pragma once
#include <string>
#include <vector>

#include "engine/Ausgabe.h"
#include "station/Handlung.h"

/// The present station on all amateur bands at once: what the main window would show if each of their
/// frequencies were typed there.
namespace vesk {

/// One band. Texts carry a decimal point.
struct Bandzeile {
  const Amateurband* band = nullptr;
  std::string frequenz;  ///< MHz: that of the main window in its own band, else the lower end of the band
  std::string gewinn;    ///< dBi
  std::string verluste;  ///< dB
  Rechenergebnis zahlen;
  Feldtexte texte;
  std::string hinweis;     ///< why there are no figures, or what is to be known of them; may be empty
  bool rechenbar = false;  ///< the figures hold and may be copied
};

/// Of the main window's frequency; none: it is in no band, or no number.
const Amateurband* Hauptband(const Station& s);

/// A row for each band of the band table. The gain follows the band when it is that of an antenna taken from
/// the catalogue, the loss when a cable has a length; what was typed by hand holds on all bands.
std::vector<Bandzeile> AlleBaender(const Station& s, const Kataloge& k);
/// Where gain and losses of the rows come from, in German sentences.
std::string Bandgrundlage(const Station& s, const Kataloge& k);

int FreieSpalten(const Station& s);
/// The ticked bands that can be calculated.
Baenderwahl KopierbareBaender(const std::vector<Bandzeile>& zeilen, const Baenderwahl& wahl);

/// Each of these bands into the next free column, as if its frequency were typed, calculated and copied; the
/// main window stays as it is. What the calculations have to say comes in one note. With fewer free columns
/// than bands it says so and copies nothing. Throws Laufzeitfehler, and then nothing is copied.
Meldungen BaenderKopieren(Station& s, const Kataloge& k, const Baenderwahl& wahl);

Meldungen BandAnkreuzen(Station& s, const Kataloge& k, std::size_t band, bool an);
Meldungen BaenderAnkreuzen(Station& s, const Kataloge& k, const Baenderwahl& wahl);

/// mnuBaender
Meldungen BaenderOeffnen(Station& s, const Kataloge& k);
Meldungen BaenderSchliessen(Station& s, const Kataloge& k);

}  // namespace vesk
