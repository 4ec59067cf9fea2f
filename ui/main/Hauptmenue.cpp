#include "ui/main/Hauptmenue.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "station/Haupthandlungen.h"
#include "station/Vorschau.h"
#include "ui/basis/Menue.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Menueeintrag Datei[] = {
    {u"mnuDateiLaden", u"Datenblatt &Laden", Befehlend<Befehl::DateiLaden>},
    {u"mnuDateiSpeichern", u"Datenblatt &Speichern", Befehlend<Befehl::DateiSpeichern>},
    {u"mnuDateiSpeichernUnter", u"Datenblatt speichern &Unter", Befehlend<Befehl::DateiSpeichernUnter>},
    {u"mnuS1"},
    {u"mnuEnde", u"Programm &Beenden", Befehlend<Befehl::Beenden>},
};
constexpr Menueeintrag Optionen[] = {
    {u"mnuMoreOptions", u"&Weitere Optionen (Sendeart - Kabel - Antennen - Winkel)",
     Befehlend<Befehl::OptionenZeigen>},
    {u"mnuAFu", u"&AFu (Berechnung mit ungünstigster Frequenz je Band)", Tuend<AFuUmschalten>, {}, true},
    {u"mnuAbstand", u"&Sicherheits Abstand berechnen", Tuend<AbstandUmschalten>},
    {u"mnuUmrechnung", u"&Leistungsumrechnung (Watt - dBW - dBm)",
     Befehlend<Befehl::LeistungsumrechnungZeigen>},
    {u"mnuS2"},
    {u"mnuToolTips", u"&ToolTips (Hilfe unter Cursor)", Tuend<TooltipsUmschalten>, {}, true},
    {u"mnuMeldungen", u"&Warnmeldungen", Tuend<WarnmeldungenUmschalten>, {}, true},
    {u"mnuFenster", u"Alle &Fenster beim Programmstart öffnen", Tuend<FensterUmschalten>, {}, true},
};
constexpr Menueeintrag Antrag[] = {
    {u"mnuUser", u"&Benutzerdaten", Befehlend<Befehl::BenutzerZeigen>},
    {u"mnuDatenblatt", u"&Datenblatt ausfüllen", Befehlend<Befehl::DatenblattZeigen>},
    {u"mnuAntragDrucken", u"&Antrag drucken", Tuend<AntragZeigen>},
    {u"mnuPapiere", u"Alle &Unterlagen (Vorschau, PDF, Drucken)", Tuend<PapiereZeigen>},
};
constexpr Menueeintrag Hilfe[] = {
    {u"mnuAnleitung", u"&Hilfe Handbuch", Befehlend<Befehl::Handbuch>},
    {u"mnuHilfeBenutzen", u"&Hilfe benutzen", Befehlend<Befehl::HilfeBenutzen>},
    {u"mnuInfo", u"In&fo", Befehlend<Befehl::InfoZeigen>},
};

}  // namespace

void HauptmenueAnlegen(QMenuBar& leiste, Ablauf& ablauf) {
  const auto menue = [&](const QString& name, const QString& titel, std::span<const Menueeintrag> eintraege) {
    QMenu* neu = leiste.addMenu(titel);
    neu->setObjectName(name);
    neu->menuAction()->setObjectName(name);
    MenueFuellen(*neu, eintraege, ablauf);
  };
  menue(u"mnuBedienung"_s, u"&Datei"_s, Datei);
  menue(u"mnuOption"_s, u"&Optionen"_s, Optionen);
  menue(u"mnuAntrag"_s, u"&Antrag stellen"_s, Antrag);
  QAction* tips = leiste.addAction(u"&Tips"_s);
  tips->setObjectName(u"mnuTip1"_s);
  QObject::connect(tips, &QAction::triggered, &leiste, [&ablauf] { ablauf.Befehlen(Befehl::TipZeigen); });
  menue(u"mnuHilfe"_s, u"&Hilfe"_s, Hilfe);
}

}  // namespace vesk
