#pragma once
#include <QStringView>
#include <array>
#include <optional>

#include "station/Lageplan.h"

/// What the mouse does on the plan.
namespace vesk {

enum class Planwerkzeug {
  Waehlen,
  Grundstueck,
  Bereich,
  Gebaeude,
  Nachbar,
  Baum,
  Beschriftung,
  Antenne,
  Bezugspunkt,
  Eichen
};
inline constexpr std::size_t AnzahlPlanwerkzeuge = 10;

struct Werkzeug {
  QStringView name;            ///< with its access key
  QStringView hilfe;           ///< tooltip
  std::optional<Planart> art;  ///< that it draws
};
inline constexpr std::array<Werkzeug, AnzahlPlanwerkzeuge> Werkzeuge = {{
    {u"&Wählen", u"Objekte und Ecken wählen und ziehen; Doppelklick auf eine Kante fügt eine Ecke ein", {}},
    {u"&Grundstück", u"Umriß des eigenen Grundstücks, Ecke für Ecke", Planart::Grundstueck},
    {u"Bere&ich", u"Umriß des kontrollierten Bereichs, Ecke für Ecke", Planart::Bereich},
    {u"Gebä&ude", u"Umriß eines Gebäudes, Ecke für Ecke", Planart::Gebaeude},
    {u"&Nachbargrundstück", u"Umriß eines Nachbargrundstücks, Ecke für Ecke", Planart::Nachbar},
    {u"Bau&m", u"Ein Klick setzt einen Baum", Planart::Baum},
    {u"Beschrif&tung", u"Ein Klick setzt einen Text", Planart::Beschriftung},
    {u"Ant&enne", u"Ein Klick setzt eine Antenne", Planart::Antenne},
    {u"Be&zugspunkt", u"Ein Klick setzt den Punkt, von dem aus gemessen wird", {}},
    {u"&Karte eichen", u"Zwei Punkte des Hintergrundbilds, deren Abstand bekannt ist", {}},
}};
constexpr const Werkzeug& Werkzeugzeile(Planwerkzeug werkzeug) {
  return Werkzeuge.at(static_cast<std::size_t>(werkzeug));
}

}  // namespace vesk
