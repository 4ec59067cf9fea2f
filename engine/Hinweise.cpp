#include "engine/Hinweise.h"

#include <array>

namespace vesk {

namespace {

constexpr const char* WiederAnzeigen = "Diese Meldung in Zukunft wieder anzeigen?";

constexpr std::array<const char*, 8> Nahfeldtexte = {
    "",
    "ohne HSM!",
    "HSM 306!",
    "ohne HSM und HSM 306!",
    "HSM VDE!",
    "ohne HSM und HSM VDE!",
    "HSM 306 und HSM VDE!",
    "",
};

}  // namespace

Hinweis MitHilfe(Hinweis hinweis, int nummer) {
  hinweis.hilfe = nummer;
  return hinweis;
}

Hinweis Bestaetigung(const std::string& titel, const std::string& text) {
  return {titel, text, Knoepfe::JaNein, Symbol::Frage, Antwort::Nein, HilfeRueckfrage};
}

Hinweis Fehlermeldung(const std::string& text, const std::string& titel) {
  return MitHilfe({titel.empty() ? "Vesk - Fehlermeldung" : titel, text}, HilfeFehler);
}

Hinweis Fehlermeldung(Fehlerart art) {
  return Fehlermeldung(Laufzeitfehler(art).what());
}

Hinweis BereichsHinweis() {
  return MitHilfe({"Hinweis", "Die Berechnung erfolgt für Frequenzen von 0,003 MHz bis 300 GHz"},
                  HilfeFrequenzbereich);
}

Hinweis HSMBereichsHinweis() {
  return MitHilfe({"Hinweis", "HSM-Berechnung von 30 KHz - 2,5 GHz"}, HilfeHSMBereich);
}

Hinweis EingabeHinweis() {
  return MitHilfe(
      {"Felder bitte korrekt ausfüllen", "Zum Berechnen müssen die roten Eingabefelder ausgefüllt werden!"},
      HilfeEingabe);
}

Hinweis NahfeldHinweis(int flags, Modus modus) {
  constexpr int Alle = NahfeldOhneHSM | NahfeldHSM306 | NahfeldHSMvde;
  std::string text;
  if (flags == Alle) {
    text = modus == Modus::Abstand ? "Das Nahfeld ist größer als alle erforderlichen Sicherheitsabstände!"
                                   : "Das Nahfeld ist größer als der eingegebene Sicherheitsabstand!";
  } else {
    text = "Das Nahfeld ist größer als der berechnete Sicherheitsabstand \n";
    text += Nahfeldtexte.at(static_cast<std::size_t>(flags));
  }
  text +=
      "\nEine Nahfeldberechnung oder Messung "
      "\nist eventuell dann erforderlich, "
      "\nwenn der vorhandene Sicherheitsabstand "
      "\nkleiner ist als die Nahfeldgrenze. "
      "\nSiehe auch: Hilfehandbuch Nahfeldsituation Aufklärung."
      "\n\n";
  return MitHilfe({"Nahfeld Problematik", text + WiederAnzeigen, Knoepfe::JaNein}, HilfeNahfeld);
}

Hinweis HSMHinweis() {
  const std::string text =
      "Eine Uss Störschwelle für die eingegebene Frequenz\n"
      "ist laut DIN VDE 0848 Teil 3-1 vom 11.11.98 noch in\n"
      "Bearbeitung. \n"
      "\n"
      "Bisher definierte Uss Störschwellen (Stand 11.11.98):\n"
      "AM: 30 KHz - 100 MHz\n"
      "TV: 30 KHz - 1,1 GHz\n"
      "GSM: 850 MHz  - 2,5 GHz\n"
      "\n"
      "Zusätzlich ist die Berechnung von HSM-Werten\n"
      "für Frequenzen oberhalb 2,5 GHz laut DIN VDE 0848  \n"
      "Teil 3-1 vom 11.11.98, Absatz 5.1.3.4 noch in Bearbeitung.\n"
      "\n"
      "In Frequenzbereichen für die Störschwellen oder \n"
      "Umrechnungsformeln in der Norm noch nicht festgelegt\n"
      "sind, wird daher nur der Personenschutzwert berechnet.\n"
      "\n"
      "Interessehalber kann jedoch manuell auch für einen \n"
      "anderen Grenzwerttyp (AM, TV, GSM) gerechnet werden\n"
      "\n";
  return MitHilfe({"DIN VDE 0848 Teil 3-1", text + WiederAnzeigen, Knoepfe::JaNein}, HilfeHSM);
}

std::vector<Hinweisart> FaelligeHinweise(const Rechenergebnis& e) {
  std::vector<Hinweisart> arten;
  if (!e.begonnen) return arten;
  if (e.grenzwerte.ausserhalb) arten.push_back(Hinweisart::Bereich);
  if (e.grenzwerte.hsmVDE.ausserhalb) arten.push_back(Hinweisart::HSMBereich);
  if (e.vollstaendig && e.Nahfeldflags != 0) arten.push_back(Hinweisart::Nahfeld);
  if (e.vollstaendig && e.grenzwerte.hsmVDE.Uss == 0) arten.push_back(Hinweisart::HSM);
  return arten;
}

Hinweis HinweisZu(Hinweisart art, const Rechenergebnis& e) {
  switch (art) {
    case Hinweisart::Bereich:
      return BereichsHinweis();
    case Hinweisart::HSMBereich:
      return HSMBereichsHinweis();
    case Hinweisart::Nahfeld:
      return NahfeldHinweis(e.Nahfeldflags, e.modus);
    case Hinweisart::HSM:
      break;
  }
  return HSMHinweis();
}

}  // namespace vesk
