#pragma once
#include <array>
#include <functional>
#include <string>

#include "print/Mappe.h"

/// What the pages have in common, and texts that go on over as many pages as they need.
namespace vesk {

/// What stands under the head may begin this far below the top of the Satzspiegel, in mm.
inline constexpr double Seitenkopfhoehe = 14;
/// Title, and `rechts` at the other end of the line, shortened where it does not fit; a rule below both.
void Seitenkopf(Blatt& blatt, Blattformat format, const QString& titel, const QString& rechts);

/// Lines to sign and date on, from the left margin over `breite`; `oben` is where the hand begins to write.
void Unterschriftzeile(Blatt& blatt, double links, double oben, double breite);
inline constexpr double Unterschrifthoehe = 16;

/// A text of the station as paper can show it: one line without blanks at its ends.
QString Papiertext(const std::string& utf8);

/// By the order of Benutzerfelder.
inline constexpr std::array<QStringView, 8> Benutzerbeschriftungen = {
    u"Name", u"Straße", u"Ort", u"Telefon", u"Telefax", u"Rufzeichen", u"Klasse", u"Standort"};

/// A piece of an upright page that is never broken.
struct Block {
  double hoehe = 0;  ///< mm
  std::function<void(Blatt&, double oben)> malen;
  double davor = 0;           ///< mm left free above it, except at the top of a page
  bool mitNaechstem = false;  ///< stands on the same page as the block behind it
};
using Bloecke = std::vector<Block>;

Bloecke& operator+=(Bloecke& bloecke, Bloecke weitere);

/// Broken lines, a block each, `einzug` mm from the left margin; `vorsatz` stands at the margin before them.
Bloecke Textbloecke(const QString& text, const Schrift& schrift = {10}, double einzug = 0,
                    const QString& vorsatz = {});
/// The head of what follows, and that of the right ends of its lines.
Block Ueberschrift(const QString& text, const QString& rechts = {});
/// A caption with its text beside it, or with a line to write on.
Bloecke Feldbloecke(QStringView beschriftung, const QString& text);
/// One line of a list, dots between its ends.
Block Listenzeile(const QString& links, const QString& rechts);

/// Upright pages; each bears the head, the first one only if `ersteMitKopf`. At least one.
std::vector<Seite> Seitenumbruch(const Bloecke& bloecke, const QString& titel, const QString& rechts,
                                 bool ersteMitKopf);

}  // namespace vesk
