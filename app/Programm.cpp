#include "app/Programm.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "app/Desktoplage.h"
#include "app/Pfadtext.h"
#include "engine/Laufzeitfehler.h"
#include "persistence/Dateien.h"
#include "persistence/Katalogdateien.h"
#include "persistence/Tips.h"
#include "platform/Plattform.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "ui/bands/frmBaender.h"
#include "ui/basis/Dezimaltrenner.h"
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

namespace fs = std::filesystem;

namespace {

constexpr int Wartezeit = 80;  // ms

std::optional<fs::path> Gewaehlt(const std::optional<QString>& pfad) {
  if (!pfad) return std::nullopt;
  return AlsPfad(*pfad);
}

Dialogwahl AlsDialog(const Dateiwahl& wahl) {
  return {QString::fromStdString(wahl.titel), QString::fromStdString(wahl.filter),
          QString::fromStdString(wahl.endung), AlsText(wahl.verzeichnis),
          QString::fromStdString(wahl.vorschlag)};
}

Meldungen Hindernismeldung(const Verzeichnisse& verzeichnisse) {
  if (verzeichnisse.hindernis.empty()) return {};
  return {{Fehlermeldung("In das Verzeichnis " + PfadZumZeigen(AlsPfad(verzeichnisse.programm)) +
                         " läßt sich nichts schreiben.\n" + verzeichnisse.hindernis +
                         "\nWas dort an Kabeln, Antennen und Tips fehlt, gilt, wie es mitgeliefert ist. Ihre "
                         "Daten speichern Sie bitte mit \"Speichern unter\" in ein anderes Verzeichnis; "
                         "nach einem Absturz wäre verloren, was nicht gespeichert ist.")}};
}

template <typename Fenster, typename... Werte>
Fenster& Angelegt(std::unique_ptr<Fenster>& fenster, Benutzerspeicher& speicher, const Station& station,
                  Werte&&... werte) {
  if (!fenster) {
    fenster = std::make_unique<Fenster>(std::forward<Werte>(werte)...);
    fenster->Zeigen(station);
    LageHolen(*fenster, speicher);
  }
  return *fenster;
}

}  // namespace

Programm::Programm(Station& station, Plattform& plattform, const Verzeichnisse& verzeichnisse)
    : station_(station),
      plattform_(plattform),
      ersatz_(verzeichnisse.hindernis.empty() ? fs::path() : AlsPfad(verzeichnisse.daten)),
      startmeldungen_(Hindernismeldung(verzeichnisse)),
      kataloge_(KatalogeLesen(AlsPfad(verzeichnisse.programm), startmeldungen_, ersatz_)),
      hauptfenster_(*this, kataloge_, plattform.ton),
      dateien_(station_, kataloge_, *this),
      winkel_(station_, *this),
      hilfetaste_(plattform.hilfe),
      tastenwege_(*this),
      abwurf_(*this) {
  for (QObject* filter : {static_cast<QObject*>(&hilfetaste_), static_cast<QObject*>(&tastenwege_),
                          static_cast<QObject*>(&abwurf_)}) {
    qApp->installEventFilter(filter);
  }
  station_.ProgrammVerzeichnis = verzeichnisse.programm.toStdString();
  station_.winkel.datei = station_.ProgrammVerzeichnis + "/Winkel.ang";
  // Queued, because a timer is silent while it is being answered, and saving may open a box.
  connect(&endetakt_, &QTimer::timeout, this, &Programm::Endeschritt, Qt::QueuedConnection);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Programm::HauptfensterAktiviert);
}

Programm::~Programm() {
  // Windows that go take the focus from their fields; nobody is there to answer. A field that went with its
  // window would tell what is left of it.
  beendet_ = true;
  disconnect(qGuiApp, nullptr, this, nullptr);
  const std::initializer_list<QWidget*> fenster = {
      optionen_.get(),  datenblatt_.get(), benutzer_.get(), leistung_.get(), vorschau_.get(), baender_.get(),
      diagramme_.get(), lageplan_.get(),   tip_.get(),      info_.get(),     &hauptfenster_};
  for (QWidget* jedes : fenster) {
    if (jedes != nullptr) jedes->hide();
  }
}

void Programm::Starten() {
  OptionenVorbelegen(station_, kataloge_);
  station_.zuletztBenutzt = ZuletztBenutzt(plattform_.speicher);
  dateien_.InitLaden();
  dateien_.RettungAnbieten();
  if (endetakt_.isActive()) {
    // Nothing has been typed; saving would only overtake what is still on offer.
    beendet_ = true;
    Q_EMIT beendet(0);
    return;
  }
  const bool alle = station_.einstellungen.Fenster;
  station_.fenster.optionen = station_.fenster.datenblatt = station_.fenster.dateimenue = alle;
  DateiMerken();
  hauptfenster_.Zeigen(station_);
  LageHolen(hauptfenster_, plattform_.speicher);
  hauptfenster_.show();
  Zeigen();
  Sagen(std::exchange(startmeldungen_, {}));
  const QString abschnitt = u"Options"_s;
  const QString schluessel = u"Show Tips at Startup"_s;
  const QString beimStart = plattform_.speicher.Lesen(abschnitt, schluessel).value_or(QString());
  if (beimStart.isEmpty()) plattform_.speicher.Schreiben(abschnitt, schluessel, u"1"_s);
  if (beimStart.isEmpty() || beimStart.toInt() == 1) {
    // The main window need not wait for it.
    connect(
        &hauptfenster_, &frmVesk::gemalt, this,
        [this] {
          TipZeigen();
          hauptfenster_.activateWindow();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    hauptfenster_.update();
  }
  hauptfenster_.activateWindow();
  constexpr int Sicherungstakt = 2000;  // ms; more than this is never lost
  auto* takt = new QTimer(this);
  connect(takt, &QTimer::timeout, this, &Programm::RettungSichern);
  takt->start(Sicherungstakt);
}

frmOptions& Programm::Optionen() {
  return Angelegt(optionen_, plattform_.speicher, station_, *this, kataloge_, plattform_.ton);
}

frmDatenblatt& Programm::Datenblatt() {
  return Angelegt(datenblatt_, plattform_.speicher, station_, *this, plattform_.ton);
}

frmUser& Programm::Benutzerfenster() {
  return Angelegt(benutzer_, plattform_.speicher, station_, *this, plattform_.ton, &hauptfenster_);
}

frmVorschau& Programm::Vorschau() {
  return Angelegt(vorschau_, plattform_.speicher, station_, *this, kataloge_);
}

frmBaender& Programm::Baender() {
  return Angelegt(baender_, plattform_.speicher, station_, *this, kataloge_);
}

frmDiagramme& Programm::Diagramme() {
  return Angelegt(diagramme_, plattform_.speicher, station_, *this, kataloge_);
}

frmLageplan& Programm::Lageplan() {
  return Angelegt(lageplan_, plattform_.speicher, station_, *this);
}

frmLstg& Programm::Leistungsumrechnung() {
  return Angelegt(leistung_, plattform_.speicher, station_, *this, plattform_.ton, Dezimaltrenner(),
                  &hauptfenster_);
}

Meldungen Programm::Ausfuehren(const Handlung& handlung, const Merken& merken) {
  // What happens while a box of an action is open belongs to that action.
  const bool aussen = !std::exchange(inHandlung_, true);
  const Station vorher = station_;
  Meldungen meldungen = vesk::Ausfuehren(handlung, station_, kataloge_);
  const auto zurRechnung = [](const Meldung& meldung) { return meldung.zurRechnung; };
  if (station_.ergebnis != vorher.ergebnis || std::any_of(meldungen.begin(), meldungen.end(), zurRechnung)) {
    std::erase_if(aufgeschoben_, zurRechnung);
  }
  if (aussen) {
    inHandlung_ = false;
    merken(vorher);
    DateiMerken();
  }
  return meldungen;
}

void Programm::Tun(const Handlung& handlung) {
  if (beendet_) return;
  Meldungen meldungen =
      Ausfuehren(handlung, [this](const Station& vorher) { verlauf_.Merken(vorher, station_); });
  Zeigen();
  Sagen(meldungen);
}

void Programm::TunBeimTippen(const QObject& feld, const Handlung& handlung) {
  if (beendet_) return;
  Meldungen meldungen =
      Ausfuehren(handlung, [&](const Station& vorher) { verlauf_.Merken(vorher, station_, &feld); });
  Zeigen();
  Sagen(meldungen);
}

void Programm::TunBeimVerlassen(const Handlung& handlung) {
  if (beendet_) return;
  Anhaengen(aufgeschoben_, Ausfuehren(handlung, [this](const Station& vorher) {
              verlauf_.MerkenBeimVerlassen(vorher, station_);
            }));
  Zeigen();
  // The press that has taken the focus to another window comes later than the focus.
  if (!aufgeschoben_.empty()) QTimer::singleShot(Wartezeit, this, &Programm::AufgeschobenesSagen);
}

void Programm::Zuruecknehmen(bool (Verlauf::*weg)(Station&)) {
  if (inHandlung_) return;
  if ((verlauf_.*weg)(station_)) {
    aufgeschoben_.clear();
    Zeigen();
  } else {
    plattform_.ton.Piep();
  }
}

void Programm::AufgeschobenesSagen() {
  if (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activeModalWidget() != nullptr) {
    QTimer::singleShot(Wartezeit, this, &Programm::AufgeschobenesSagen);
    return;
  }
  Sagen(std::exchange(aufgeschoben_, {}));
}

void Programm::Zeigen() {
  hauptfenster_.Zeigen(station_);
  hauptfenster_.VerlaufZeigen(verlauf_.ZurueckMoeglich(), verlauf_.VorMoeglich());
  const auto zeigen = [this](auto& fenster, bool offen, auto anlegen) {
    if (!fenster && !offen) return;
    (this->*anlegen)();
    fenster->Zeigen(station_);
    if (fenster->isVisible() != offen) fenster->setVisible(offen);
  };
  zeigen(optionen_, station_.fenster.optionen, &Programm::Optionen);
  zeigen(datenblatt_, station_.fenster.datenblatt, &Programm::Datenblatt);
  zeigen(benutzer_, station_.fenster.benutzer, &Programm::Benutzerfenster);
  zeigen(vorschau_, station_.fenster.vorschau, &Programm::Vorschau);
  zeigen(baender_, station_.fenster.baender, &Programm::Baender);
  zeigen(diagramme_, station_.fenster.diagramme, &Programm::Diagramme);
  zeigen(lageplan_, station_.fenster.lageplan, &Programm::Lageplan);
  if (leistung_) leistung_->Zeigen(station_);
}

void Programm::Sagen(const Meldungen& meldungen) {
  for (const Meldung& meldung : meldungen) {
    if (beendet_) return;
    const Antwort antwort = plattform_.boxen.Zeigen(meldung.hinweis);
    if (meldung.zurFrequenz) hauptfenster_.QrgFokussieren();
    if (!meldung.danach) continue;
    Tun([&](Station& s, const Kataloge& k) { return meldung.danach(s, k, antwort); });
  }
}

void Programm::HauptfensterAktiviert(QWindow* jetzt) {
  if (jetzt == nullptr) return;
  const QWindow* vorher = std::exchange(letztesFenster_, jetzt);
  // Only who comes from another window of the program turns away from its column; a box that closes, a dialog
  // or another program in between changes nothing.
  if (jetzt != hauptfenster_.windowHandle() || vorher == nullptr || vorher == jetzt) return;
  if (vorher->modality() == Qt::NonModal) Tun(vesk::HauptfensterAktiviert);
}

Antwort Programm::Fragen(const Hinweis& hinweis) {
  Zeigen();
  return plattform_.boxen.Zeigen(hinweis);
}

std::optional<fs::path> Programm::ZumOeffnen(const Dateiwahl& wahl) {
  return Gewaehlt(plattform_.dialoge.Oeffnen(AlsDialog(wahl)));
}

std::optional<fs::path> Programm::ZumSpeichern(const Dateiwahl& wahl) {
  auto pfad = Gewaehlt(plattform_.dialoge.Speichern(AlsDialog(wahl)));
  const auto grund = pfad ? dateien_.WarumVergeben(*pfad, wahl.endung) : std::nullopt;
  if (!grund) return pfad;
  Fragen(Fehlermeldung(*grund));
  return std::nullopt;
}

}  // namespace vesk
