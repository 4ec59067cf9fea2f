#include "Hauptmenue.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <array>

namespace vesk {

namespace {

struct Eintrag {
  int stufe;  ///< 1: menu bar, 2: entry of the menu above
  const char16_t* name;
  const char16_t* titel;  ///< "-": separator
  bool schalter = false;
};

constexpr std::array<Eintrag, 24> Eintraege = {{
    {1, u"mnuBedienung", u"&Datei"},
    {2, u"mnuDateiLaden", u"Datenblatt &Laden"},
    {2, u"mnuDateiSpeichern", u"Datenblatt &Speichern"},
    {2, u"mnuDateiSpeichernUnter", u"Datenblatt speichern &Unter"},
    {2, u"mnuS1", u"-"},
    {2, u"mnuEnde", u"Programm &Beenden"},
    {1, u"mnuOption", u"&Optionen"},
    {2, u"mnuMoreOptions", u"&Weitere Optionen (Sendeart - Kabel - Antennen - Winkel)"},
    {2, u"mnuAFu", u"&AFu (Berechnung mit ungünstigster Frequenz je Band)", true},
    {2, u"mnuAbstand", u"&Sicherheits Abstand berechnen"},
    {2, u"mnuUmrechnung", u"&Leistungsumrechnung (Watt - dBW - dBm)"},
    {2, u"mnuS2", u"-"},
    {2, u"mnuToolTips", u"&ToolTips (Hilfe unter Cursor)", true},
    {2, u"mnuMeldungen", u"&Warnmeldungen", true},
    {2, u"mnuFenster", u"Alle &Fenster beim Programmstart öffnen", true},
    {1, u"mnuAntrag", u"&Antrag stellen"},
    {2, u"mnuUser", u"&Benutzerdaten"},
    {2, u"mnuDatenblatt", u"&Datenblatt ausfüllen"},
    {2, u"mnuAntragDrucken", u"&Antrag drucken"},
    {1, u"mnuTip1", u"&Tips"},
    {1, u"mnuHilfe", u"&Hilfe"},
    {2, u"mnuAnleitung", u"&Hilfe Handbuch"},
    {2, u"mnuHilfeBenutzen", u"&Hilfe benutzen"},
    {2, u"mnuInfo", u"In&fo"},
}};

}  // namespace

void HauptmenueAnlegen(QMenuBar& leiste) {
  QMenu* menue = nullptr;
  for (std::size_t i = 0; i < Eintraege.size(); ++i) {
    const Eintrag& eintrag = Eintraege[i];
    const QString name = QString::fromUtf16(eintrag.name);
    const QString titel = QString::fromUtf16(eintrag.titel);
    const bool oeffnetMenue = eintrag.stufe == 1 && i + 1 < Eintraege.size() && Eintraege[i + 1].stufe == 2;
    if (oeffnetMenue) {
      menue = leiste.addMenu(titel);
      menue->setObjectName(name);
      menue->menuAction()->setObjectName(name);
      menue->setToolTipsVisible(true);
      continue;
    }
    QAction* aktion =
        eintrag.stufe == 1 || menue == nullptr ? leiste.addAction(titel) : menue->addAction(titel);
    aktion->setObjectName(name);
    aktion->setCheckable(eintrag.schalter);
    aktion->setSeparator(titel == QLatin1Char('-'));
  }
}

}  // namespace vesk
