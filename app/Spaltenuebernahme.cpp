#include "Spaltenuebernahme.h"

#include <QScopedValueRollback>
#include <utility>

#include "Laufzeitfehler.h"
#include "Spaltenumgebung.h"
#include "Zahlen.h"
#include "Zustand.h"

namespace vesk {

namespace {

const std::string& Zelle(const Zustand& zustand, std::int16_t spalte, Zeile zeile) {
  return zustand.Zellen.at(static_cast<std::size_t>(Gitterindex(spalte, zeile)));
}

}  // namespace

Spaltenuebernahme::Spaltenuebernahme(Zustand& zustand, Spaltenumgebung& umgebung)
    : zustand_(zustand), umgebung_(umgebung) {}

void Spaltenuebernahme::ZelleGeklickt() {
  Uebernehmen(Satz::Laden, Ton::Still);
}

void Spaltenuebernahme::KopfGeklickt() {
  Rechenwerte& werte = zustand_.werte;
  if (Beschaeftigt() || werte.Spalte == 0) return;
  umgebung_.OptionenLaden(werte.Spalte);
  Uebernehmen(Satz::Behalten, Ton::Still);
  const Zeile quelle = umgebung_.modus() == Modus::Abstand ? ZeileLeistung : ZeileHSMvde;
  werte.PWRText = Zelle(zustand_, werte.Spalte, quelle);
  umgebung_.EingabenZeigen();
  Anwenden();
}

void Spaltenuebernahme::Rechnen() {
  Uebernehmen(Satz::Laden, Ton::Laut);
}

void Spaltenuebernahme::OptionGeaendert() {
  Uebernehmen(Satz::Behalten, Ton::Laut);
}

void Spaltenuebernahme::Anwenden() {
  if (zustand_.werte.Spalte != 0) {
    OptionGeaendert();
  } else {
    umgebung_.Berechnen(true);
  }
}

void Spaltenuebernahme::MarkenZuruecknehmen() {
  const std::int16_t spalte = zustand_.werte.LetzteSpalte;
  if (spalte < 1 || spalte > AnzahlSpalten) return;
  umgebung_.ZelleMarkieren(spalte, ZeileFrequenz, false);
  umgebung_.ZelleMarkieren(spalte, ZeileLeistung, false);
}

bool Spaltenuebernahme::Beschaeftigt() const {
  return laeuft_ || umgebung_.RechnungLaeuft();
}

void Spaltenuebernahme::Uebernehmen(Satz satz, Ton ton) {
  Rechenwerte& werte = zustand_.werte;
  const std::int16_t spalte = werte.Spalte;
  if (spalte == 0 || Beschaeftigt()) return;
  const QScopedValueRollback laeuft(laeuft_, true);

  umgebung_.AbstandEinschalten();
  EingabenAusZellen(spalte);
  if (satz == Satz::Laden) umgebung_.OptionenLaden(spalte);

  werte.Pruefergebnis = Pruefen(spalte);
  if (!werte.Pruefergebnis) {
    if (ton == Ton::Still) return;
    for (const Zeile zeile : {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde}) {
      umgebung_.ZelleSetzen(spalte, zeile, {});
    }
    umgebung_.EingabeHinweis();
    return;
  }
  umgebung_.FaktorZeigen(spalte, Faktor(werte));
  if (BerechnenMit(ton)) ErgebnisseEintragen(spalte);
}

void Spaltenuebernahme::EingabenAusZellen(std::int16_t spalte) {
  constexpr std::pair<Zeile, std::string Rechenwerte::*> quellen[] = {
      {ZeileFrequenz, &Rechenwerte::QRGText},           {ZeileLeistung, &Rechenwerte::PWRText},
      {ZeileVerluste, &Rechenwerte::DaempfungText},     {ZeileGewinn, &Rechenwerte::GewinnText},
      {ZeileWinkel, &Rechenwerte::WinkelDaempfungText},
  };
  for (const auto& [zeile, text] : quellen) zustand_.werte.*text = Zelle(zustand_, spalte, zeile);
  umgebung_.EingabenZeigen();
}

/// Frequency and power of the column must be numbers above 0; marks its cells.
bool Spaltenuebernahme::Pruefen(std::int16_t spalte) {
  MarkenZuruecknehmen();
  bool vollstaendig = true;
  for (const Zeile zeile : {ZeileFrequenz, ZeileLeistung}) {
    const bool gut = Positiv(Zelle(zustand_, spalte, zeile));
    umgebung_.ZelleMarkieren(spalte, zeile, !gut);
    vollstaendig = vollstaendig && gut;
  }
  return vollstaendig;
}

/// False when a silent calculation has ended with a run-time error.
bool Spaltenuebernahme::BerechnenMit(Ton ton) {
  if (ton == Ton::Laut) {
    umgebung_.Berechnen(true);
    return true;
  }
  try {
    umgebung_.Berechnen(false);
    return true;
  } catch (const Laufzeitfehler&) {
    return false;
  }
}

void Spaltenuebernahme::ErgebnisseEintragen(std::int16_t spalte) {
  const Ergebnistexte texte = umgebung_.Ergebnisse();
  umgebung_.ZelleSetzen(spalte, ZeileOhneHSM, texte.ohneHSM);
  umgebung_.ZelleSetzen(spalte, ZeileHSM306, texte.HSM306);
  umgebung_.ZelleSetzen(spalte, ZeileHSMvde, texte.HSMvde);
  // They repeat the cells; on their own they are no change of the user's data.
  Datenblattspalte& satz = zustand_.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  satz.AbstandOhneHSM = texte.ohneHSM;
  satz.AbstandHSM306 = texte.HSM306;
  satz.AbstandHSMvde = texte.HSMvde;
}

}  // namespace vesk
