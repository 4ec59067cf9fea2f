// What the user asks of the program beyond the station.
#include "app/Papierablauf.h"
#include "app/Programm.h"
#include "persistence/Dateien.h"
#include "persistence/Tips.h"
#include "persistence/Winkelablauf.h"
#include "platform/Plattform.h"
#include "print/Mappe.h"
#include "station/Haupthandlungen.h"
#include "ui/datasheet/frmDatenblatt.h"
#include "ui/info/frmInfo.h"
#include "ui/info/frmTip.h"
#include "ui/options/frmOptions.h"
#include "ui/power/frmLstg.h"
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
    case Befehl::BenutzerVerborgen:
      return datei([this] { dateien_.BenutzerVerborgen(); });
    case Befehl::WinkelLaden:
      return datei([this] { WinkelOeffnen(station_, *this); });
    case Befehl::WinkelSpeichern:
      return datei([this] { WinkelSpeichern(station_, *this); });
    case Befehl::WinkelSpeichernUnter:
      return datei([this] { WinkelSpeichernUnter(station_, *this); });
    case Befehl::PdfSpeichern:
      return PdfSpeichern(Papiere(), plattform_);
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

Mappe Programm::Papiere() const {
  return MappeBilden(station_, kataloge_, AuftragAus(station_, QDate::currentDate()));
}

void Programm::Hinzeigen(const Papierort& ort) {
  Tun(Mit(ZumBefund, ort));
  if (const auto* feld = std::get_if<BeimBenutzer>(&ort)) return Benutzerfenster().Hinzeigen(*feld);
  if (const auto* zelle = std::get_if<InZelle>(&ort)) return Datenblatt().Hinzeigen(*zelle);
  Optionen().Hinzeigen();
}

void Programm::TipZeigen() {
  if (!tip_) {
    const Gelesen datei = DateiLesen(std::filesystem::path(station_.ProgrammVerzeichnis) / "TIPOFDAY.TXT");
    tip_ = std::make_unique<frmTip>(plattform_.speicher, TipsLesen(datei.bytes), &hauptfenster_);
  }
  Oeffnen(*tip_);
}

void Programm::InfoZeigen() {
  if (!info_) info_ = std::make_unique<frmInfo>(&hauptfenster_);
  info_->Zeigen(station_);
  info_->show();
}

}  // namespace vesk
