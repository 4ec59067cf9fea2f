#pragma once
#include "print/Kurvenbild.h"
#include "station/Baender.h"

/// The charts of a station.
namespace vesk {

/// What a calculation is made from, beside power and distance: "14.2 MHz, Gewinn 0 dBi, …".
QString Eingabezeile(const Station& s);

Kurvenbild Diagramm(const Station& s, const Kataloge& k, Diagrammart art);
/// Name of a chart in a list.
QString Diagrammname(Diagrammart art);

/// "Alle Bänder": distances, in power mode powers, and below them the limits that they come from. In a low
/// area the letters are smaller.
struct Baenderbild {
  Kurvenbild abstaende;
  Kurvenbild grenzwerte;

  bool operator==(const Baenderbild&) const = default;
};
Baenderbild BaenderbildVon(const Station& s, const std::vector<Bandzeile>& zeilen);
void BaenderbildMalen(Blatt& blatt, const QRectF& flaeche, const Baenderbild& bild,
                      const Bildfarben& farben = {});

}  // namespace vesk
