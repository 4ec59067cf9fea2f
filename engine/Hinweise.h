#pragma once
#include <string>
#include <vector>

#include "engine/Berechnung.h"

namespace vesk {

/// Keine: a question that was taken away before it was answered; whatever it would have done is left undone.
enum class Antwort : std::int16_t { OK = 1, Keine = 2, Ja = 6, Nein = 7 };
enum class Knoepfe { OK, JaNein };
enum class Symbol { Ausrufezeichen, Frage };

/// Numbers of the help entries that explain boxes. Those from 8001 are entries about boxes.
enum Hilfethema : int {
  HilfeKopieren = 1029,
  HilfeFaktor = 2102,
  HilfeAntenne = 2112,
  HilfeUmrechnung = 3001,
  HilfeBenutzer = 4001,
  HilfePapiere = 5001,
  HilfeBaender = 6001,
  HilfeMeldung = 8001,
  HilfeFrequenzbereich,
  HilfeHSMBereich,
  HilfeEingabe,
  HilfeNahfeld,
  HilfeHSM,
  HilfeRueckfrage,
  HilfeFehler,
};

/// A message box (UTF-8). One with Ja and Nein can only be left by a button.
struct Hinweis {
  std::string titel;
  std::string text;
  Knoepfe knoepfe = Knoepfe::OK;
  Symbol symbol = Symbol::Ausrufezeichen;
  Antwort vorgabe = Antwort::Ja;  ///< default button of Ja and Nein
  int hilfe = HilfeMeldung;       ///< number of the help entry that explains it
};

Hinweis MitHilfe(Hinweis hinweis, int nummer);

/// "… wirklich löschen?" and its like: Nein is the default.
Hinweis Bestaetigung(const std::string& titel, const std::string& text);

/// The common error box. An empty title becomes "Vesk - Fehlermeldung".
Hinweis Fehlermeldung(const std::string& text, const std::string& titel = {});
Hinweis Fehlermeldung(Fehlerart art);

/// Frequency outside the range of the calculation.
Hinweis BereichsHinweis();
/// Frequency outside the range of DIN VDE 0848 Teil 3-1.
Hinweis HSMBereichsHinweis();
/// Frequency, power or distance missing.
Hinweis EingabeHinweis();
/// Near field beyond the distances of Nahfeldflags (1 to 7).
Hinweis NahfeldHinweis(int flags, Modus modus);
/// No interference threshold defined at the frequency.
Hinweis HSMHinweis();

enum class Hinweisart { Bereich, HSMBereich, Nahfeld, HSM };
/// What a calculation has to say beside its fault, in this order.
std::vector<Hinweisart> FaelligeHinweise(const Rechenergebnis& ergebnis);
Hinweis HinweisZu(Hinweisart art, const Rechenergebnis& ergebnis);

}  // namespace vesk
