#include "ui/main/Hauptmenue.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

#include "station/Haupthandlungen.h"
#include "station/Vorschau.h"
#include "station/Wegweiser.h"
#include "ui/basis/Menue.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Menueeintrag Datei[] = {
    {u"mnuDateiLaden", u"Datenblatt &Laden", Befehlend<Befehl::DateiLaden>, {}, false, u"Ctrl+O"},
    {u"mnuDateiSpeichern", u"Datenblatt &Speichern", Befehlend<Befehl::DateiSpeichern>, {}, false, u"Ctrl+S"},
    {u"mnuDateiSpeichernUnter", u"Datenblatt speichern &Unter", Befehlend<Befehl::DateiSpeichernUnter>},
    {u"mnuS1"},
    {u"mnuEnde", u"Programm &Beenden", Befehlend<Befehl::Beenden>},
};
constexpr Menueeintrag Bearbeiten[] = {
    {u"mnuRueckgaengig", u"&Rückgängig", Befehlend<Befehl::Rueckgaengig>, {}, false, u"Ctrl+Z"},
    {u"mnuWiederholen", u"&Wiederholen", Befehlend<Befehl::Wiederholen>, {}, false, u"Ctrl+Y"},
    {},
    {u"mnuBerechnen", u"&Berechnen", Tuend<Rechnen>, {}, false, u"F5"},
    {u"mnuKopieren", u"Berechnen und &kopieren", Tuend<RechnenUndKopieren>, {}, false, u"Ctrl+Enter"},
    {},
    {u"mnuLageplan", u"&Lageplan", Befehlend<Befehl::LageplanZeigen>, {}, false, u"Ctrl+L"},
};
constexpr Menueeintrag Optionen[] = {
    {u"mnuMoreOptions", u"&Weitere Optionen (Sendeart - Kabel - Antennen - Winkel)",
     Befehlend<Befehl::OptionenZeigen>},
    {u"mnuAFu", u"&AFu (Berechnung mit ungünstigster Frequenz je Band)", Tuend<AFuUmschalten>, {}, true},
    {u"mnuAbstand", u"&Sicherheits Abstand berechnen", Tuend<AbstandUmschalten>},
    {u"mnuUmrechnung", u"&Leistungsumrechnung (Watt - dBW - dBm)",
     Befehlend<Befehl::LeistungsumrechnungZeigen>},
    {u"mnuBaender",
     u"Alle Bä&nder (Tabelle und Diagramm)",
     Befehlend<Befehl::BaenderZeigen>,
     {},
     false,
     u"Ctrl+B"},
    {u"mnuDiagramme",
     u"&Diagramme (Leistung - Kabel - Grenzwerte)",
     Befehlend<Befehl::DiagrammeZeigen>,
     {},
     false,
     u"Ctrl+D"},
    {u"mnuS2"},
    {u"mnuToolTips", u"&ToolTips (Hilfe unter Cursor)", Tuend<TooltipsUmschalten>, {}, true},
    {u"mnuMeldungen", u"&Warnmeldungen", Tuend<WarnmeldungenUmschalten>, {}, true},
    {u"mnuFenster", u"Alle &Fenster beim Programmstart öffnen", Tuend<FensterUmschalten>, {}, true},
};
constexpr Menueeintrag Antrag[] = {
    {u"mnuUser", u"&Benutzerdaten", Befehlend<Befehl::BenutzerZeigen>},
    {u"mnuDatenblatt", u"&Datenblatt ausfüllen", Befehlend<Befehl::DatenblattZeigen>},
    {u"mnuAntragDrucken", u"&Antrag drucken", Tuend<AntragZeigen>},
    {u"mnuPapiere", u"Alle &Unterlagen (Vorschau, PDF, Drucken)", Tuend<PapiereZeigen>, {}, false, u"Ctrl+P"},
};
constexpr Menueeintrag Hilfe[] = {
    {u"mnuAnleitung", u"&Hilfe Handbuch", Befehlend<Befehl::Handbuch>},
    {u"mnuHilfeBenutzen", u"&Hilfe benutzen", Befehlend<Befehl::HilfeBenutzen>},
    {u"mnuInfo", u"In&fo", Befehlend<Befehl::InfoZeigen>},
};

void ZuletztErlauben(QMenu& menue, bool an) {
  menue.setEnabled(an);
  menue.menuAction()->setToolTip(an ? QString() : u"Es wurde noch keine Datei benutzt."_s);
}

}  // namespace

void HauptmenueAnlegen(QMenuBar& leiste, Ablauf& ablauf) {
  const auto menue = [&](const QString& name, const QString& titel, std::span<const Menueeintrag> eintraege) {
    MenueAnlegen(leiste, name, titel, eintraege, ablauf);
  };
  menue(u"mnuBedienung"_s, u"&Datei"_s, Datei);
  auto* zuletzt = new QMenu(u"&Zuletzt benutzt"_s, &leiste);
  zuletzt->setObjectName(u"mnuZuletzt"_s);
  zuletzt->menuAction()->setObjectName(u"mnuZuletzt"_s);
  ZuletztErlauben(*zuletzt, false);
  leiste.findChild<QMenu*>(u"mnuBedienung"_s)->insertMenu(leiste.findChild<QAction*>(u"mnuS1"_s), zuletzt);
  menue(u"mnuBearbeiten"_s, u"&Bearbeiten"_s, Bearbeiten);
  menue(u"mnuOption"_s, u"&Optionen"_s, Optionen);
  menue(u"mnuAntrag"_s, u"&Antrag stellen"_s, Antrag);
  QAction* tips = leiste.addAction(u"&Tips"_s);
  tips->setObjectName(u"mnuTip1"_s);
  QObject::connect(tips, &QAction::triggered, &leiste, [&ablauf] { ablauf.Befehlen(Befehl::TipZeigen); });
  menue(u"mnuHilfe"_s, u"&Hilfe"_s, Hilfe);
}

void ZuletztZeigen(QMenuBar& leiste, const std::vector<std::string>& dateien, Ablauf& ablauf) {
  auto* menue = leiste.findChild<QMenu*>(u"mnuZuletzt"_s);
  ZuletztErlauben(*menue, !dateien.empty());
  menue->clear();
  for (std::size_t i = 0; i < dateien.size(); ++i) {
    const QString pfad = QString::fromStdString(dateien[i]);
    const QFileInfo datei(pfad);
    const QString name = u"%1 (%2)"_s.arg(datei.fileName(), QDir::toNativeSeparators(datei.path()));
    QAction* aktion = menue->addAction(u"&%1 "_s.arg(i + 1) + QString(name).replace(u'&', u"&&"_s));
    aktion->setObjectName(u"mnuZuletzt_%1"_s.arg(i));
    QObject::connect(
        aktion, &QAction::triggered, &leiste, [&ablauf, pfad] { ablauf.DateiOeffnen(pfad); },
        Qt::QueuedConnection);  // opening it makes this menu anew
  }
}

}  // namespace vesk
