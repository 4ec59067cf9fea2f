#include "Rechengang.h"

#include <QScopedValueRollback>
#include <utility>

#include "Dezimaltrenner.h"
#include "Meldung.h"
#include "Zustand.h"
#include "frmVesk.h"

namespace vesk {

Rechengang::Rechengang(Zustand& zustand, Plattform& plattform, frmVesk& hauptfenster, Nebenfelder nebenfelder)
    : zustand_(zustand),
      plattform_(plattform),
      hauptfenster_(hauptfenster),
      nebenfelder_(std::move(nebenfelder)) {}

void Rechengang::Berechnen(bool meldungen) {
  if (laeuft_) return;
  const QScopedValueRollback laeuft(laeuft_, true);

  Rechenwerte& werte = zustand_.werte;
  const Rechenart art{hauptfenster_.modus(), hauptfenster_.AFu(), hauptfenster_.Ausgeben()};
  const Rechenergebnis ergebnis = vesk::Berechnen(werte, art);
  if (ergebnis.begonnen) {
    const Feldtexte texte = Ausgabetexte(ergebnis, Dezimaltrenner());
    FrequenzZeigen(texte, ergebnis.grenzwerte.ausserhalb && meldungen);
    if (ergebnis.grenzwerte.hsmVDE.ausserhalb && meldungen && hauptfenster_.MeldungenAn()) {
      Zeigen(plattform_.boxen, werte, HSMBereichsHinweis());
    }
    hauptfenster_.ErgebnisZeigen(ergebnis, texte, Faktor(werte));
    if (art.ausgeben) nebenfelder_(ergebnis, texte);
  }
  if (ergebnis.fehler) throw Laufzeitfehler(*ergebnis.fehler);
  if (ergebnis.vollstaendig && meldungen) Hinweise(ergebnis);
}

void Rechengang::FrequenzZeigen(const Feldtexte& texte, bool hinweis) {
  if (hinweis) {
    Zeigen(plattform_.boxen, zustand_.werte, BereichsHinweis());
    hauptfenster_.QrgFokussieren();
  }
  hauptfenster_.KoepfeZeigen(texte);
}

void Rechengang::Hinweise(const Rechenergebnis& ergebnis) {
  if (!hauptfenster_.MeldungenAn()) return;
  Einstellungen& einstellungen = zustand_.einstellungen;
  Rechenwerte& werte = zustand_.werte;
  if (ergebnis.Nahfeldflags != 0 && !einstellungen.NahfeldHinweisAus) {
    const Hinweis hinweis = NahfeldHinweis(ergebnis.Nahfeldflags, ergebnis.modus);
    einstellungen.NahfeldHinweisAus = Zeigen(plattform_.boxen, werte, hinweis) != Antwort::Ja;
  }
  if (ergebnis.grenzwerte.hsmVDE.Uss == 0 && !einstellungen.HSMHinweisAus) {
    einstellungen.HSMHinweisAus = Zeigen(plattform_.boxen, werte, HSMHinweis()) != Antwort::Ja;
  }
}

void Rechengang::Bandlogik(float mhz, bool hinweis) {
  Rechenwerte& werte = zustand_.werte;
  const Auswertefrequenzen frequenz = vesk::Bandlogik(mhz, hauptfenster_.AFu());
  werte.QRGGrenzwert = frequenz.grenzwert;
  werte.QRGHSM = frequenz.hsm;
  werte.QRGLambda = frequenz.lambda;
  Feldtexte texte;
  Kopftexte(frequenz, Dezimaltrenner(), texte);
  FrequenzZeigen(texte, hinweis && !ImRechenbereich(mhz));
}

}  // namespace vesk
