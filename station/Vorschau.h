#pragma once
#include "station/Handlung.h"

/// What the user does with the papers on the screen.
namespace vesk {

/// Opens the preview, or brings it to the front, with the papers that are chosen.
void VorschauRufen(Station& s);
/// mnuPapiere: the binder.
Meldungen PapiereZeigen(Station& s, const Kataloge& k);
/// mnuAntragDrucken. The operator's data are missing and the user does not want to print all the same: shows
/// their window.
Meldungen AntragZeigen(Station& s, const Kataloge& k);
/// mnuUserPrint
Meldungen BenutzerdatenZeigen(Station& s, const Kataloge& k);
/// mnuFormblattDrucken, mnuFormblattRegTPdrucken
Meldungen FormblattZeigen(Station& s, const Kataloge& k);
Meldungen FormblattRegTPZeigen(Station& s, const Kataloge& k);
/// mnuWDruck, mnuWHSM306, mnuWHSMvde. Says so when the angle page holds nothing to draw.
Meldungen WinkeldiagrammZeigen(Station& s, const Kataloge& k, Winkelkurve kurve);

/// In the preview: another document, other angle diagrams, another scale of theirs.
Meldungen PapierWaehlen(Station& s, const Kataloge& k, Papierart art);
Meldungen KurveWaehlen(Station& s, const Kataloge& k, std::optional<Winkelkurve> kurve);
/// "200" or "1:200"; anything that is no scale: the one that fits the page.
Meldungen MassstabWaehlen(Station& s, const Kataloge& k, const std::string& text);
Meldungen VorschauSchliessen(Station& s, const Kataloge& k);

/// n of the scale 1 : n on the angle page; 100 where none stands there.
double Massstabszahl(const Station& s);
/// The same, or none for the one that fits the page.
std::optional<double> Papiermassstab(const Station& s);

}  // namespace vesk
