#include "ui/main/Haupthilfe.h"

#include <array>

namespace vesk {

namespace {

constexpr std::array<Feldhilfe, 22> Fest = {{
    {u"cmdBerechnen", u"Zum Berechnen bitte diesen Button drücken"},
    {u"cmdCopy", u"Kopiert die Daten in das Formblatt"},
    {u"txtQRG", u"Frequenz in MHz (0,003-300'000 MHz), für AFu reicht z.B. 1,3,7,14 etc."},
    {u"txtGewinn", u"Eingabe: Anennengewinn in dBi. (Siehe Option Antennen)"},
    {u"txtDaempfung", u"Dämpfung von Speisekabel, Steckern, Matchbox etc. in dB. (Siehe Option Kabel)"},
    {u"txtWinkelDaempfung", u"Winkeldämpfung der Antenne in dB. (Siehe Option Winkel)"},
    {u"txtGrenzwert", u"Grenzwert der Ersatzfeldstärke ohne HSM"},
    {u"txtGrenzwertHSMvde", u"Grenzwert der Ersatzfeldstärke mit HSM nach DIN VDE 0848 Teil 3-1"},
    {u"txtGrenzwertHSM306", u"Grenzwert der Ersatzfeldstärke mit HSM nach Vfg 306/97"},
    {u"txtUssVDE", u"Spitzenspannung der Beeinflussungsschwelle für HSM nach DIN VDE 0848 Teil 3-1"},
    {u"txtUssHSM306", u"Spitzenspannung der Beeinflussungsschwelle für HSM nach Vfg 306/97"},
    {u"txtStrahlung", u"Strahlungsleistung berechnet aus Sendeleistung, Antennengewinn, Kabelverlust"},
    {u"txtNahfeld", u"Bis zu dieser Entfernung (0,159 Lambda) ist Nahfeldbetrachtung erforderlich."},
    {u"txtFernfeld", u"Fernfeld beginnt ab 4 Lambda"},
    {u"rhmAusgabe", u"Ausgabe der errechneten Werte"},
    {u"lblGewinn", u"Achtung: Gewinnangabe über Isotrop [dBi] (dBi = dBd + 2,15)"},
    {u"lblSicherheit", u"Errechnete Sicherheitsabstände für Personenschutz, VDE 0848 und Vfg306/97"},
    {u"lblGrenzwert", u"Grenzwerte für Personenschutz, VDE 0848 und Vfg306/97"},
    {u"lblUss", u"Spitzenspannung für HSM nach VDE 0848 und Vfg306/97"},
    {u"lblOhneHSM", u"Personenschutz nach Vfg 306/97"},
    {u"lblMitHSM", u"HSM nach DIN VDE 0848, Teil 3-1"},
    {u"lblHSM306", u"HSM nach Vfg 306/97"},
}};

constexpr std::array<Feldhilfe, 5> Abstand = {{
    {u"txtPWR", u"Eingabe: Sendeleistung in Watt (Oberstrichleistung, nicht PEP)"},
    {u"txtAusgabe", u"Datenblatt Punkt 6.1 Ermittelter Sicherheitsabstand ohne HSM"},
    {u"txtAusgabeHSMvde", u"Datenblatt Punkt 6.2 Ermittelter Sicherheitsabstand mit HSM (VDE 0848)"},
    {u"txtAusgabeHSM306", u"Datenblatt Punkt 6.2 Ermittelter Sicherheitsabstand mit HSM (Vfg 306/97)"},
    {u"lblModus", u"Klick zum Umschalten auf Berechnung der Sendeleistung"},
}};

constexpr std::array<Feldhilfe, 5> Leistung = {{
    {u"txtPWR", u"Eingabe: Maximal möglicher Sicherheitsabstand"},
    {u"txtAusgabe", u"Maximale Senderausgangsleistung ohne HSM"},
    {u"txtAusgabeHSMvde", u"Maximale Senderausgangsleistung mit HSM nach DIN VDE 0848 Teil 3-1"},
    {u"txtAusgabeHSM306", u"Maximale Senderausgangsleistung mit HSM nach Vfg 306/97"},
    {u"lblModus", u"Klick zum Umschalten auf Berechnung des Sicherheitsabstandes"},
}};

constexpr std::array<Hilfenummer, 25> Nummern = {{
    {u"txtQRG", 1001},
    {u"txtPWR", 1002},
    {u"txtGewinn", 1003},
    {u"txtDaempfung", 1004},
    {u"txtAusgabe", 1005},
    {u"txtAusgabeHSM306", 1006},
    {u"txtAusgabeHSMvde", 1007},
    {u"txtGrenzwert", 1008},
    {u"txtGrenzwertHSM306", 1009},
    {u"txtGrenzwertHSMvde", 1010},
    {u"txtUssHSM306", 1011},
    {u"txtUssVDE", 1012},
    {u"lblQRG", 1015},
    {u"lblGewinn", 1016},
    {u"Picture1", 1017},
    {u"cmdBerechnen", 1018},
    {u"cmdCopy", 1029},
    {u"lblOhneHSM", 1030},
    {u"lblHSM306", 1031},
    {u"lblMitHSM", 1032},
    {u"lblReferat", 1033},
    {u"txtStrahlung", 1034},
    {u"txtNahfeld", 1035},
    {u"txtFernfeld", 1036},
    {u"txtWinkelDaempfung", 1037},
}};

}  // namespace

std::span<const Feldhilfe> HauptTooltips() {
  return Fest;
}

std::span<const Feldhilfe> HauptTooltipsModus(bool leistung) {
  return leistung ? Leistung : Abstand;
}

std::span<const Hilfenummer> HauptHilfenummern() {
  return Nummern;
}

}  // namespace vesk
