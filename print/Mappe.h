#pragma once
#include <QDate>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "print/Blatt.h"
#include "station/Papiere.h"

class QPainter;

/// The papers: documents made of pages, and what every page bears.
namespace vesk {

/// One page; `malen` draws its own content into the Satzspiegel.
struct Seite {
  Blattformat format = Blattformat::Hoch;
  std::function<void(Blatt&)> malen;
};

struct Dokument {
  QString titel;  ///< of the contents, the bookmarks and the list of enclosures
  std::vector<Seite> seiten;
};

/// What is printed or saved as one: a binder or a single document. A value that no longer needs the station.
struct Mappe {
  QString titel;
  QString rufzeichen;
  QString fusszeile;
  QDate datum;
  std::vector<Dokument> dokumente;
};

std::size_t Seitenzahl(const Mappe& mappe);
Blattformat Seitenformat(const Mappe& mappe, std::size_t seite);
/// Page `seite`, counted from 0, with footer and "Seite n von m". The painter counts `jeMillimeter` units to
/// the millimetre from the upper left corner of the sheet.
void SeiteMalen(const Mappe& mappe, std::size_t seite, QPainter& maler, double jeMillimeter);

/// n of a scale 1 : n; none: the largest of the usual ones with which the diagram fits the page.
using Massstabswunsch = std::optional<double>;

/// What is wanted.
struct Papierauftrag {
  Papierart art = Papierart::Mappe;
  std::optional<Winkelkurve> kurve;  ///< of the angle diagrams; none: all that have a limit
  Massstabswunsch massstab;          ///< of the angle diagrams
  QDate datum;                       ///< of cover page and plan
};

/// What the preview of the station shows.
Papierauftrag AuftragAus(const Station& s, const QDate& datum);

/// The pages of a station as it is now. An angle diagram without a table to show has no page, nor has a plot
/// that was not drawn; no other document is ever empty.
Mappe MappeBilden(const Station& s, const Kataloge& k, const Papierauftrag& auftrag);

}  // namespace vesk
