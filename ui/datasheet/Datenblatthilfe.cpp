#include "Datenblatthilfe.h"

#include "Datenblattspalte.h"

namespace vesk {

namespace {

constexpr Feldhilfe Zeilenhilfe(Zeile zeile, QStringView text) {
  return {u"txtA", text, AnzahlZeilen, zeile - 1};
}

}  // namespace

constexpr std::array<Feldhilfe, 8> DatenblattTooltips = {{
    {u"lblSpalte", u"Linke Taste berechnet die Spalte, rechte Taste löscht die Spalte"},
    Zeilenhilfe(ZeileHoehe, u"Montagehöhe der Sendeantennenunterkante über Grund [m]"),
    Zeilenhilfe(
        ZeileRichtung,
        u"Rundstrahler = ND; rundum betriebener Richtstrahler = ND; sonst Strahlungsrichtung in Grad"),
    Zeilenhilfe(ZeileFrequenz, u"Amateurfunkband in MHz eingeben"),
    Zeilenhilfe(ZeileBetriebsarten, u"Betriebsarten: cw ssb am fm pr atv gsm alle"),
    Zeilenhilfe(ZeileVerluste, u"Kabelverluste einfach im Optionsmenü Kabel berechnen"),
    Zeilenhilfe(ZeileGewinn, u"Antennengewin in dBi eingeben! (dBi = dBd + 2,15) (Optionsmenü Antennen)"),
    Zeilenhilfe(ZeileWinkel, u"Winkeldämpfung in dB eingeben! (Doppelklick im Optionsmenü Winkel)"),
}};

constexpr std::array<Hilfenummer, 5> DatenblattHilfenummern = {{
    {u"lblSpalte", 2001},
    {u"txtA", 2002},
    {u"chkOptionen", 2003},
    {u"lblModIdx", 2004},
    {u"cmdRechnen", 2005},
}};

}  // namespace vesk
