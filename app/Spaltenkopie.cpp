#include "Spaltenkopie.h"

#include "Datenblatt.h"
#include "Laufzeitfehler.h"
#include "Spaltenumgebung.h"
#include "UserDatei.h"
#include "Zustand.h"

namespace vesk {

bool InFreieSpalteKopieren(Zustand& zustand, Spaltenumgebung& umgebung) {
  const std::string frei = NaechsteFreieSpalte(zustand.Zellen);
  if (frei.empty()) return false;
  const auto spalte = static_cast<std::int16_t>(frei.front() - 'A' + 1);
  const auto setzen = [&](Zeile zeile, const std::string& text) {
    umgebung.ZelleSetzen(spalte, zeile, text);
  };
  const Rechenwerte& werte = zustand.werte;
  const Ergebnistexte ergebnisse = umgebung.Ergebnisse();
  // A cell would cut a longer number, which then would be another number.
  for (const std::string* zahl :
       {&werte.QRGText, &werte.PWRText, &werte.GewinnText, &werte.DaempfungText, &werte.WinkelDaempfungText,
        &ergebnisse.ohneHSM, &ergebnisse.HSM306, &ergebnisse.HSMvde}) {
    if (zahl->size() > MaxZellenlaenge) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  }

  setzen(ZeileFrequenz, werte.QRGText);
  setzen(ZeileGewinn, werte.GewinnText);
  setzen(ZeileVerluste, werte.DaempfungText);
  setzen(ZeileWinkel, werte.WinkelDaempfungText);
  if (umgebung.OptionenBeruecksichtigen()) setzen(ZeileBetriebsarten, umgebung.GewaehlteBetriebsarten());

  Datenblattspalte& quelle = zustand.Datenblattspalten[0];
  quelle.AbstandOhneHSM = ergebnisse.ohneHSM;
  quelle.AbstandHSM306 = ergebnisse.HSM306;
  quelle.AbstandHSMvde = ergebnisse.HSMvde;
  Datenblattspalte& ziel = zustand.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  if (ziel != quelle) zustand.UserGeaendert = true;
  ziel = quelle;

  const bool abstand = umgebung.modus() == Modus::Abstand;
  umgebung.SpaltenschriftSetzen(spalte, !abstand);
  if (abstand) {
    setzen(ZeileLeistung, werte.PWRText);
    setzen(ZeileOhneHSM, ergebnisse.ohneHSM);
    // Some results are words that tell why there is none.
    if (ergebnisse.HSM306 != "50 KHz") setzen(ZeileHSM306, ergebnisse.HSM306);
    if (ergebnisse.HSMvde != "noch") setzen(ZeileHSMvde, ergebnisse.HSMvde);
  } else {
    setzen(ZeileLeistung, ergebnisse.ohneHSM);
    setzen(ZeileOhneHSM, werte.PWRText);
  }
  return true;
}

}  // namespace vesk
