#pragma once
#include "print/Mappe.h"

/// One function for each document.
namespace vesk {

/// A document of the binder as the cover page and the list of enclosures name it.
struct Inhaltszeile {
  QString titel;
  std::size_t seiten = 0;
};
using Inhalt = std::vector<Inhaltszeile>;

/// Cover page. `inhalt` are the documents behind it, whose pages are counted on from its own.
Dokument Deckblatt(const Station& s, const Kataloge& k, const Inhalt& inhalt, const QDate& datum);
/// Application; `beilagen` are the enclosures.
Dokument Antrag(const Station& s, const Inhalt& beilagen);
/// Data sheet with all seven columns and their options.
Dokument Formblatt(const Station& s, const Kataloge& k);
/// The regulator's variant of it: black and white, only what the authority asks for.
Dokument FormblattRegTP(const Station& s);
/// The operator's data.
Dokument Benutzerblatt(const Station& s);
/// Angle diagram with its table; no page where the table has no distances of this kind.
Dokument Winkeldiagramm(const Winkelblatt& blatt, Winkelkurve kurve, Massstabswunsch massstab);
/// One page for each used column.
Dokument Rechenwege(const Station& s, const Kataloge& k);
/// The plot with its zones at true scale, seen from the side where a zone leaves the controlled area, and the
/// zones' figures; without a plan no page.
Dokument Lageplandokument(const Station& s, const QDate& datum);
/// The way of the power from transmitter to antenna, column by column.
Dokument Stationsblockbild(const Station& s, const Kataloge& k);
/// The charts of the main window's inputs; without these, of the columns'.
Dokument Diagramme(const Station& s, const Kataloge& k);

}  // namespace vesk
