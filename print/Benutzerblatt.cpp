#include "print/Dokumente.h"
#include "print/Satz.h"

using namespace Qt::StringLiterals;

namespace vesk {

Dokument Benutzerblatt(const Station& s) {
  Bloecke bloecke;
  for (std::size_t i = 0; i < Benutzerfelder.size(); ++i) {
    bloecke += Feldbloecke(Benutzerbeschriftungen.at(i), Papiertext(s.benutzer.*Benutzerfelder.at(i)));
  }
  const QString titel = u"Persönliche Daten"_s;
  return {titel, Seitenumbruch(bloecke, titel, Papiertext(s.benutzer.Rufzeichen), true)};
}

}  // namespace vesk
