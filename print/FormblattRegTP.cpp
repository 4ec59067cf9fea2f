#include "print/Dokumente.h"
#include "print/Formular.h"
#include "print/Satz.h"

using namespace Qt::StringLiterals;

namespace vesk {

Dokument FormblattRegTP(const Station& s) {
  const Spaltenlagen lagen = LagenDerSpalten(s);
  Streifenfolge folge = Angabestreifen(u"Rufzeichen"_s, {s.benutzer.Rufzeichen});
  Anhaengen(folge, Angabestreifen(u"Betreiber"_s, {s.benutzer.Name, s.benutzer.Strasse, s.benutzer.Ort}));
  Anhaengen(folge, Angabestreifen(u"Standort"_s, {s.benutzer.Standort}));
  folge.push_back(Abstandstreifen(3));
  Anhaengen(folge, Datenblattstreifen(s, lagen, Formart::Behoerde));
  Anhaengen(folge, Hinweisstreifen(lagen, Formart::Behoerde));
  folge.push_back({Unterschrifthoehe, [](Blatt& blatt, double oben) {
                     Unterschriftzeile(blatt, Satzspiegel(Blattformat::Quer).left(), oben, 150);
                   }});
  Dokument dokument =
      Formular(u"Datenblatt – Vfg 306/97 Anlage Blatt 5.2"_s, s, lagen, Formart::Behoerde, folge);
  dokument.titel = u"Formblatt RegTP"_s;
  return dokument;
}

}  // namespace vesk
