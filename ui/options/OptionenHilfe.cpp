#include "ui/options/OptionenHilfe.h"

#include <QRadioButton>
#include <QTabWidget>
#include <array>

#include "ui/basis/Feldhilfe.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"rhmBetriebsart",
     u"Manuelle Auswahl der Modulationsart für Berechnung nach DIN VDE 0848 Teil 3-1 vom 11.11.98"},
    {u"optSSB_0", u"AM: Berechnung von 30 KHz - 100 MHz (AFu Standard)"},
    {u"optSSB_1", u"Fernsehmodulation: Berechnung von 79 MHz - 1,1 GHz"},
    {u"optSSB_2", u"GSM Modulation: Berechnung von 850 MHz - 2,5 GHz"},
    {u"chkBetriebsart", u"Gewünschte Betriebsarten ankreuzen (max. 4)"},
    {u"lstKabel", u"Kabeltyp auswählen. Ohne Kabellänge erfolgt keine Berechnung!"},
    {u"lblQRG", u"Ermittlung der Kabeldämpfung für Frequenzen von 1 MHz - 5 GHz"},
    {u"lblKabelLaenge", u"Kabellänge muß eingegeben werden, sonst kann keine Berechnung erfolgen!"},
    {u"lblD100", u"Ausgabe: Kabeldämpfung je 100m (Eingabe: bei \"Anderes Kabel\")"},
    {u"lblKabeldaempfung", u"Ausgabe: Errechnete Kabeldämpfung in dB"},
    {u"lblStecker", u"Eingabe: Dämpfung durch Stecker, Umschalter, SWR-Messer etc."},
    {u"lblGesamtdaempfung", u"Ausgabe: Verluste zwischen Senderausgang und Antenneneingang in dB"},
    {u"LstAntennen", u"Gewünschte oder ähnliche Antenne auswählen"},
    {u"List1", u"Nur Anzeige: Frequenz, Gewinn und Elementanzahl der gewählten Antenne"},
    {u"cmdAntenne", u"Zur Übernahme ins Datenblatt diesen Button drücken"},
    {u"txtWAntenne", u"Bezeichnung der Antenne (eingeben oder aus Antennendialog"},
    {u"txtWGewinn0", u"Antennengewinn in dBi (eingeben oder aus Hauptprogramm)"},
    {u"txtWMHZ", u"Frequenz in MHz (eingeben oder aus Hauptprogramm)"},
    {u"txtWAntEinPWR", u"Antenneneingangsleistung (P - Kabeldämpfung) (eingeben oder aus Hauptprogramm)"},
    {u"Command1", u"Berechnet die Sicherheitsabstände. Die Daten werden nicht ins Datenblatt übernommen!"},
    {u"txtWDaempfung",
     u"Dämpfungswerte aus Strahlungsdiagramm in 10° Schritten. Doppelklick zu Übernahme in die Berechnung"},
    {u"txtWAbstand", u"Datenblatt Punkt 6.1 Ermittelter Sicherheitsabstand ohne HSM"},
    {u"txtWHSM306", u"Datenblatt Punkt 6.2 Ermittelter Sicherheitsabstand mit HSM (Vfg 306/97)"},
    {u"txtWHSMvde", u"Datenblatt Punkt 6.2 Ermittelter Sicherheitsabstand mit HSM (VDE 0848)"},
};

constexpr int ErsteNummer = 2100;

/// Of each page as a whole, in the order of the tabs.
constexpr std::array Kartennummern = {ErsteNummer, 2105, 2112, 2119};

/// In the order of the tabs. A control that is not listed has the number of what it lies in: that of the
/// frame, or of the page.
constexpr Hilfenummer Hilfenummern[] = {
    {u"chkBetriebsart", ErsteNummer},
    {u"txtSelectedModes", 2101},
    {u"txtFaktorB", 2102},
    {u"optDuty", 2103},
    {u"optSSB", 2104},
    {u"lstKabel", 2105},
    {u"txtQRG", 2106},
    {u"txtD100", 2107},
    {u"txtKabelLaenge", 2108},
    {u"txtStecker", 2109},
    {u"txtKabeldaempfung", 2110},
    {u"txtGesamtdaempfung", 2110},
    {u"cmdGleich", 2111},
    {u"LstAntennen", 2112},
    {u"List1", 2113},
    {u"cmdAntenne", 2114},
    {u"txtWAntenne", 2115},
    {u"txtWGewinn0", 2116},
    {u"txtWMHZ", 2117},
    {u"txtWAntEinPWR", 2118},
    {u"rhmWinkel", 2119},
};

}  // namespace

void OptionenTooltips(QWidget& fenster, bool an) {
  TooltipsSetzen(fenster, Tooltips, an);
  for (QRadioButton* knopf : fenster.findChildren<QRadioButton*>()) {
    if (!knopf->objectName().startsWith(u"optDuty_"_s)) continue;
    knopf->setAccessibleDescription(u"Sende/Empfangszyklus = "_s + knopf->text());
    knopf->setToolTip(an ? knopf->accessibleDescription() : QString());
  }
}

void OptionenHilfenummern(QWidget& fenster, const QTabWidget& karten) {
  fenster.setProperty(HilfekontextEigenschaft, ErsteNummer);
  for (int i = 0; i < karten.count(); ++i) {
    karten.widget(i)->setProperty(HilfekontextEigenschaft, Kartennummern.at(static_cast<std::size_t>(i)));
  }
  HilfenummernSetzen(fenster, Hilfenummern);
}

}  // namespace vesk
