#include "station/Baender.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr const char* Titel = "Alle Bänder";

/// The lowest of the band's own frequencies, where cables lose least.
std::string Bandfrequenz(const Station& s, const Amateurband& band) {
  if (Hauptband(s) == &band) return s.werte.QRGText;
  std::array<char, 32> puffer{};
  const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), band.auswertung.lambda,
                                  std::chars_format::fixed);
  return {puffer.data(), ende.ptr};
}

/// Entry of the catalogue whose gain stands in the main window; -1: it was typed there.
int GenommeneAntenne(const Station& s, const Kataloge& k) {
  const Datenblattspalte& satz = s.Datenblattspalten[0];
  if (satz.Antenne.empty() || satz.Gewinn != s.werte.GewinnText) return -1;
  const auto& antennen = k.antennen.Antennen;
  const auto genommen = [&](const Antenne& antenne) {
    const auto& baender = antenne.baender;
    return OhneBlanks(antenne.typ) == OhneBlanks(satz.Antenne) &&
           std::any_of(baender.begin(), baender.end(),
                       [&](const Antennenband& band) { return band.gewinn == satz.Gewinn; });
  };
  const auto gewaehlt = static_cast<std::size_t>(s.AntennenIndex);
  if (s.AntennenIndex >= 0 && gewaehlt < antennen.size() && genommen(antennen[gewaehlt])) {
    return s.AntennenIndex;
  }
  const auto fund = std::find_if(antennen.begin(), antennen.end(), genommen);
  return fund == antennen.end() ? -1 : static_cast<int>(fund - antennen.begin());
}

bool MitLaenge(const Station& s) {
  return Zahl(s.Datenblattspalten[0].KabelLaenge) != 0;
}

/// Types the frequency, takes the antenna again and calculates. False: the antenna has no gain there.
bool BandEinstellen(Station& s, const Kataloge& k, const std::string& frequenz, int antenne,
                    Meldungen& meldungen) {
  EingabeGetippt(s, k, Eingabefeld::QRG, frequenz);
  meldungen = FeldVerlassen(s, k, Eingabefeld::QRG);
  if (antenne >= 0) {
    const Antenne& genommen = k.antennen.Antennen.at(static_cast<std::size_t>(antenne));
    if (!AntenneWaehlen(genommen, frequenz).Passt()) return false;
    s.AntennenIndex = antenne;
    Anhaengen(meldungen, AntenneNehmen(s, k));
  }
  Anhaengen(meldungen, BerechnenVerlangt(s, k));
  return true;
}

std::string Nahfeldhinweis(const Rechenergebnis& e) {
  std::string text = "Nahfeld bis " + Formatieren(e.grenzwerte.Nahfeld) + " m, weiter als ";
  if (e.modus == Modus::Leistung) return text + "der Sicherheitsabstand";
  constexpr int Alle = NahfeldOhneHSM | NahfeldHSM306 | NahfeldHSMvde;
  if (e.Nahfeldflags == Alle) return text + "alle Abstände";
  std::string welche;
  for (const auto& [bit, name] :
       {std::pair{NahfeldOhneHSM, "ohne HSM"}, {NahfeldHSMvde, "HSM VDE"}, {NahfeldHSM306, "HSM 306"}}) {
    if ((e.Nahfeldflags & bit) != 0) welche += (welche.empty() ? "" : ", ") + std::string(name);
  }
  return text + welche;
}

std::string Kurzform(Hinweisart art, const Rechenergebnis& e) {
  switch (art) {
    case Hinweisart::Bereich:
      return "außerhalb des Rechenbereichs";
    case Hinweisart::Nahfeld:
      return Nahfeldhinweis(e);
    case Hinweisart::HSMBereich:
      return "über dem Bereich von HSM VDE";
    case Hinweisart::HSM:
      break;
  }
  return "HSM VDE noch nicht festgelegt";
}

void Anreihen(std::string& text, const std::string& teil) {
  text += (text.empty() ? "" : "; ") + teil;
}

/// What is to be known of a band's figures; with `meldungen` only what these say.
std::string Hinweise(const Rechenergebnis& e, const Meldungen* meldungen) {
  std::string text;
  const std::vector<Hinweisart> arten = FaelligeHinweise(e);
  for (const Hinweisart art : arten) {
    // Beyond its range nothing can be defined.
    if (art == Hinweisart::HSM && e.grenzwerte.hsmVDE.ausserhalb) continue;
    const auto gesagt = [&](const Meldung& m) { return m.hinweis.text == HinweisZu(art, e).text; };
    if (meldungen != nullptr && std::none_of(meldungen->begin(), meldungen->end(), gesagt)) continue;
    Anreihen(text, Kurzform(art, e));
  }
  // No calculation has a note for it.
  if (meldungen == nullptr && e.vollstaendig && e.grenzwerte.hsm306.Uss == 0) {
    Anreihen(text, "über dem Bereich von HSM 306");
  }
  return text;
}

const char* WasFehlt(const Station& s) {
  return s.modus == Modus::Leistung ? "Sicherheitsabstand fehlt" : "Sendeleistung fehlt";
}

/// The row as far as it gets. Throws Laufzeitfehler.
void ZeileRechnen(Bandzeile& zeile, Station& s, const Kataloge& k, int antenne) {
  Meldungen meldungen;
  const bool passt = BandEinstellen(s, k, zeile.frequenz, antenne, meldungen);
  if (!passt) {
    zeile.hinweis = "Band der Antenne nicht im Katalog";
    return;
  }
  zeile.gewinn = s.werte.GewinnText;
  zeile.verluste = s.werte.DaempfungText;
  if (!EingabenVollstaendig(s)) {
    zeile.hinweis = WasFehlt(s);
    return;
  }
  Rechenwerte werte = s.werte;
  zeile.zahlen = Berechnen(werte, {.modus = s.modus, .afu = s.einstellungen.AFu});
  if (zeile.zahlen.fehler) throw Laufzeitfehler(*zeile.zahlen.fehler);
  zeile.rechenbar = true;
  zeile.texte = Ausgabetexte(zeile.zahlen, '.');
  if (MitLaenge(s) && s.Datenblattspalten[0].Gesamtdaempfung.empty()) {
    zeile.hinweis = "Kabelverlust unbekannt, mit 0 dB gerechnet";
  }
  const std::string weitere = Hinweise(zeile.zahlen, nullptr);
  if (!weitere.empty()) Anreihen(zeile.hinweis, weitere);
}

Meldungen EineMeldung(const std::string& text) {
  return text.empty() ? Meldungen{} : Meldungen{{MitHilfe({Titel, text}, HilfeBaender)}};
}

/// Cells, records and colours of the columns.
void BlattUebernehmen(Station& s, const Station& von) {
  s.Zellen = von.Zellen;
  std::copy(von.Datenblattspalten.begin() + 1, von.Datenblattspalten.end(), s.Datenblattspalten.begin() + 1);
  s.spaltenfarben = von.spaltenfarben;
  s.UserGeaendert = von.UserGeaendert;
}

}  // namespace

const Amateurband* Hauptband(const Station& s) try {
  return AmateurbandVon(Zahl(s.werte.QRGText));
} catch (const Laufzeitfehler&) {
  return nullptr;
}

std::vector<Bandzeile> AlleBaender(const Station& s, const Kataloge& k) {
  const int antenne = GenommeneAntenne(s, k);
  std::vector<Bandzeile> zeilen;
  for (const Amateurband& band : Amateurbaender()) {
    Bandzeile& zeile = zeilen.emplace_back();
    zeile.band = &band;
    zeile.frequenz = Bandfrequenz(s, band);
    Station versuch = s;
    try {
      ZeileRechnen(zeile, versuch, k, antenne);
    } catch (const Laufzeitfehler& fehler) {
      zeile.hinweis = fehler.what();
    }
  }
  return zeilen;
}

std::string Bandgrundlage(const Station& s, const Kataloge& k) {
  const Datenblattspalte& satz = s.Datenblattspalten[0];
  const auto oderNull = [](const std::string& text) { return text.empty() ? std::string("0") : text; };
  std::string text;
  if (GenommeneAntenne(s, k) >= 0) {
    text = "Antenne " + std::string(OhneBlanks(satz.Antenne)) + ": Gewinn je Band aus dem Katalog. ";
  } else {
    text = "Gewinn " + oderNull(s.werte.GewinnText) + " dBi auf allen Bändern, wie eingetippt. ";
  }
  try {
    const int index = Kabelindex(s, k);
    if (!MitLaenge(s))
      return text + "Verluste " + oderNull(s.werte.DaempfungText) + " dB auf allen Bändern, wie eingetippt.";
    if (index < 0) return text + "Kein Kabel gewählt, " + satz.KabelLaenge + " m: Verluste unbekannt.";
    text += "Kabel " + k.kabel.liste.at(static_cast<std::size_t>(index)) + ", " + satz.KabelLaenge + " m: ";
    if (AnderesKabelGewaehlt(s, k)) return text + oderNull(satz.D100) + " dB je 100 m auf allen Bändern.";
    return text + "Verluste je Band aus dem Katalog.";
  } catch (const Laufzeitfehler& fehler) {
    return text + fehler.what();
  }
}

int FreieSpalten(const Station& s) {
  int frei = 0;
  for (std::int16_t spalte = 1; spalte <= AnzahlSpalten; ++spalte)
    frei += SpalteFrei(s.Zellen, spalte) ? 1 : 0;
  return frei;
}

Baenderwahl KopierbareBaender(const std::vector<Bandzeile>& zeilen, const Baenderwahl& wahl) {
  Baenderwahl kopierbar;
  for (std::size_t i = 0; i < zeilen.size(); ++i) kopierbar[i] = wahl.test(i) && zeilen[i].rechenbar;
  return kopierbar;
}

Meldungen BaenderKopieren(Station& s, const Kataloge& k, const Baenderwahl& wahl) {
  const std::vector<Bandzeile> zeilen = AlleBaender(s, k);
  const Baenderwahl kopierbar = KopierbareBaender(zeilen, wahl);
  const int frei = FreieSpalten(s);
  if (kopierbar.none()) return EineMeldung("Es ist kein Band angekreuzt, das sich berechnen läßt.");
  if (static_cast<int>(kopierbar.count()) > frei) {
    return EineMeldung("Angekreuzte Bänder: " + std::to_string(kopierbar.count()) +
                       "\nFreie Spalten im Datenblatt: " + std::to_string(frei) +
                       "\nEs wurde nichts kopiert.");
  }
  const int antenne = GenommeneAntenne(s, k);
  Station arbeit = s;
  std::string hinweise;
  bool eigenes = false;  // the main window's result is among them
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    if (!kopierbar.test(i)) continue;
    Meldungen meldungen;
    BandEinstellen(arbeit, k, zeilen[i].frequenz, antenne, meldungen);
    const std::string hinweis = Hinweise(arbeit.ergebnis->zahlen, &meldungen);
    if (!hinweis.empty()) hinweise += '\n' + std::string(zeilen[i].band->name) + ": " + hinweis;
    eigenes = eigenes || (s.ergebnis && s.ergebnis->eingabe == arbeit.ergebnis->eingabe);
    InFreieSpalteKopieren(arbeit, k);
  }
  BlattUebernehmen(s, arbeit);
  if (eigenes) s.ergebnis->kopiert = true;
  s.schaubilder.baender &= ~kopierbar;
  return EineMeldung(hinweise.empty() ? "" : "Zu den kopierten Bändern:" + hinweise);
}

Meldungen BandAnkreuzen(Station& s, const Kataloge&, std::size_t band, bool an) {
  s.schaubilder.baender.set(band, an);
  return {};
}

Meldungen BaenderAnkreuzen(Station& s, const Kataloge&, const Baenderwahl& wahl) {
  s.schaubilder.baender = wahl;
  return {};
}

Meldungen BaenderOeffnen(Station& s, const Kataloge&) {
  s.fenster.baender = true;
  return {};
}

Meldungen BaenderSchliessen(Station& s, const Kataloge&) {
  s.fenster.baender = false;
  return {};
}

}  // namespace vesk
