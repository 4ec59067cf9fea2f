// What the user asks of the program beyond the station.
#include <QTabWidget>

#include "app/Desktoplage.h"
#include "app/Papierablauf.h"
#include "app/Pfadtext.h"
#include "app/Planablauf.h"
#include "app/Programm.h"
#include "persistence/Katalogdateien.h"
#include "persistence/Tips.h"
#include "platform/Plattform.h"
#include "print/Mappe.h"
#include "station/Baender.h"
#include "station/Diagramme.h"
#include "station/Haupthandlungen.h"
#include "station/Katalogwechsel.h"
#include "station/Lageplanhandlungen.h"
#include "ui/bands/frmBaender.h"
#include "ui/charts/frmDiagramme.h"
#include "ui/datasheet/frmDatenblatt.h"
#include "ui/info/frmInfo.h"
#include "ui/info/frmTip.h"
#include "ui/options/frmOptions.h"
#include "ui/plan/frmLageplan.h"
#include "ui/power/frmLstg.h"
#include "ui/preview/frmVorschau.h"
#include "ui/user/frmUser.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void Oeffnen(QWidget& fenster) {
  fenster.show();
  fenster.activateWindow();
}

}  // namespace

void Programm::Befehlen(Befehl befehl) {
  if (beendet_) return;
  const auto datei = [this](auto tun) {
    Tun([tun](Station&, const Kataloge&) {
      tun();
      return Meldungen{};
    });
  };
  switch (befehl) {
    case Befehl::DateiLaden:
      return datei([this] { dateien_.UserLaden(); });
    case Befehl::DateiSpeichern:
      return datei([this] { dateien_.UserSpeichern(); });
    case Befehl::DateiSpeichernUnter:
      return datei([this] { dateien_.UserSpeichernUnter(); });
    case Befehl::AenderungenVerwerfen:
      return datei([this] { dateien_.AenderungenVerwerfen(); });
    case Befehl::UserNeu:
      return datei([this] { dateien_.UserNeu(); });
    case Befehl::Rueckgaengig:
      return Zuruecknehmen(&Verlauf::Zurueck);
    case Befehl::Wiederholen:
      return Zuruecknehmen(&Verlauf::Vor);
    case Befehl::BenutzerVerborgen:
      return datei([this] { dateien_.BenutzerVerborgen(); });
    case Befehl::WinkelLaden:
      return datei([this] { winkel_.Oeffnen(); });
    case Befehl::WinkelSpeichern:
      return datei([this] { winkel_.Speichern(); });
    case Befehl::WinkelSpeichernUnter:
      return datei([this] { winkel_.SpeichernUnter(); });
    case Befehl::GeojsonEinlesen:
      return Tun([this](Station& s, const Kataloge& k) { return vesk::GeojsonEinlesen(s, k, *this); });
    case Befehl::HintergrundWaehlen:
      return Tun([this](Station& s, const Kataloge& k) { return vesk::HintergrundWaehlen(s, k, *this); });
    case Befehl::PdfSpeichern:
      return PdfSpeichern(Papiere(), *this, plattform_);
    case Befehl::PapiereDrucken:
      return PapiereDrucken(Papiere(), plattform_);
    case Befehl::DruckerEinrichten:
      return DruckerEinrichten(plattform_);
    case Befehl::Beenden:
      return Beenden();
    case Befehl::OptionenZeigen:
      Tun(OptionenOeffnen);
      return Optionen().activateWindow();
    case Befehl::DatenblattZeigen:
      Tun(DatenblattOeffnen);
      return Datenblatt().activateWindow();
    case Befehl::BenutzerZeigen:
      return Tun(BenutzerOeffnen);
    case Befehl::LeistungsumrechnungZeigen:
      return Oeffnen(Leistungsumrechnung());
    case Befehl::BaenderZeigen:
      Tun(BaenderOeffnen);
      return Baender().activateWindow();
    case Befehl::DiagrammeZeigen:
      Tun(DiagrammeOeffnen);
      return Diagramme().activateWindow();
    case Befehl::LageplanZeigen:
      Tun(LageplanOeffnen);
      return Lageplan().activateWindow();
    case Befehl::TipZeigen:
      return TipZeigen();
    case Befehl::InfoZeigen:
      return InfoZeigen();
    case Befehl::Handbuch:
      return plattform_.hilfe.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 1030);
    case Befehl::HilfeBenutzen:
      return plattform_.hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::HilfeBenutzen, 0);
  }
}

void Programm::DateiOeffnen(const QString& name) {
  if (beendet_ || inHandlung_) return;
  const std::filesystem::path pfad = AlsPfad(name);
  const auto oeffnen = [this](const auto& tun) {
    Tun([&](Station&, const Kataloge&) {
      tun();
      return Meldungen{};
    });
  };
  if (HatEndung(pfad, ".ang")) {
    bool offen = false;
    oeffnen([&] { offen = winkel_.Oeffnen(pfad); });
    if (!offen) return;
    Befehlen(Befehl::OptionenZeigen);
    return Optionen().Hinzeigen();
  }
  if (!IstKatalog(pfad)) return oeffnen([&] { dateien_.UserLaden(pfad); });
  bool neu = false;
  oeffnen([&] { neu = KatalogErsetzen(pfad, PfadAusUtf8(station_.ProgrammVerzeichnis), *this); });
  if (neu) KatalogeErneuern();
}

void Programm::KatalogeErneuern() {
  Meldungen meldungen;
  const Kataloge vorher =
      std::exchange(kataloge_, KatalogeLesen(PfadAusUtf8(station_.ProgrammVerzeichnis), meldungen, ersatz_));
  Anhaengen(meldungen, KatalogeGewechselt(station_, vorher, kataloge_));
  verlauf_.Angleichen([&](Station& s) { KatalogeGewechselt(s, vorher, kataloge_); });
  // What they show is from the former catalogues.
  const auto ersetzen = [this](auto& fenster, auto anlegen) {
    if (!fenster) return;
    const auto karten = [&] { return fenster->template findChild<QTabWidget*>(); };
    const int karte = karten() != nullptr ? karten()->currentIndex() : 0;
    LageMerken(*fenster, plattform_.speicher);
    fenster.reset();
    (this->*anlegen)();
    if (karten() != nullptr) karten()->setCurrentIndex(karte);
  };
  ersetzen(optionen_, &Programm::Optionen);
  ersetzen(vorschau_, &Programm::Vorschau);
  ersetzen(baender_, &Programm::Baender);
  ersetzen(diagramme_, &Programm::Diagramme);
  Zeigen();
  Sagen(meldungen);
}

void Programm::DateiMerken() {
  if (station_.neuesRufzeichen) return;
  const std::string pfad =
      PfadAlsUtf8(PfadAusUtf8(station_.Arbeitsverzeichnis) / PfadAusUtf8(station_.UserDatei));
  std::vector<std::string>& liste = station_.zuletztBenutzt;
  if (!liste.empty() && liste.front() == pfad) return;
  if (std::error_code fehler; !std::filesystem::exists(PfadAusUtf8(pfad), fehler)) return;
  std::erase(liste, pfad);
  liste.insert(liste.begin(), pfad);
  if (liste.size() > MaxZuletzt) liste.resize(MaxZuletzt);
  ZuletztMerken(liste, plattform_.speicher);
}

Mappe Programm::Papiere() const {
  return MappeBilden(station_, kataloge_, AuftragAus(station_, QDate::currentDate()));
}

void Programm::Hinzeigen(const Papierort& ort) {
  Tun(Mit(ZumBefund, ort));
  if (const auto* feld = std::get_if<BeimBenutzer>(&ort)) return Benutzerfenster().Hinzeigen(*feld);
  if (const auto* zelle = std::get_if<InZelle>(&ort)) return Datenblatt().Hinzeigen(*zelle);
  if (const auto* plan = std::get_if<ImLageplan>(&ort)) {
    Lageplan().activateWindow();
    return Lageplan().Hinzeigen(*plan);
  }
  Optionen().Hinzeigen();
}

void Programm::TipZeigen() {
  if (!tip_) {
    std::filesystem::path tips = PfadAusUtf8(station_.ProgrammVerzeichnis) / "TIPOFDAY.TXT";
    std::error_code egal;
    if (!ersatz_.empty() && !std::filesystem::exists(tips, egal)) tips = ersatz_ / "TIPOFDAY.TXT";
    tip_ = std::make_unique<frmTip>(plattform_.speicher, TipsLaden(tips), &hauptfenster_);
  }
  Oeffnen(*tip_);
}

void Programm::InfoZeigen() {
  if (!info_) info_ = std::make_unique<frmInfo>(&hauptfenster_);
  info_->Zeigen(station_);
  info_->show();
}

}  // namespace vesk
