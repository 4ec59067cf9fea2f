#include "ui/user/frmUser.h"

#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "station/Haupthandlungen.h"
#include "station/Operator.h"
#include "station/Papiere.h"
#include "station/Vorschau.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Menue.h"
#include "ui/basis/Textfeld.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Feldart {
  QStringView name;
  QStringView beschriftung;
};

/// By the order of Benutzerfelder.
constexpr std::array<Feldart, Benutzerfelder.size()> Feldarten = {{
    {u"Name", u"&Name"},
    {u"Strasse", u"&Straße"},
    {u"Ort", u"&Ort"},
    {u"Telefon", u"&Telefon"},
    {u"Telefax", u"Telefa&x"},
    {u"Rufzeichen", u"&Rufzeichen"},
    {u"Klasse", u"&Klasse"},
    {u"Standort", u"St&andort"},
}};
constexpr std::size_t FeldRufzeichen = 5;

constexpr Feldhilfe Tooltips[] = {
    {u"txtName", u"Eingabe: Vor- und Nachname"},
    {u"txtStrasse", u"Eingabe: Straße und Hausnummer"},
    {u"txtOrt", u"Eingabe: PLZ und Wohnort"},
    {u"txtTelefon", u"Eingabe: Telefonnummer mit Vorwahl"},
    {u"txtTelefax", u"Eingabe: Telefaxnummer mit Vorwahl"},
    {u"txtRufzeichen", u"Eingabe: Rufzeichen"},
    {u"txtKlasse", u"Eingabe: Genehmigungsklasse 1, 2 oder 3"},
    {u"txtStandort", u"Eingabe: Standort der Funkstelle - Straße/Gemarkung, Haus Nr./Flurstück, PLZ, Ort"},
};

void Speichern(Ablauf& ablauf) {
  ablauf.Tun([](Station& s, const Kataloge&) { return UserCheck(s, false); });
  ablauf.Befehlen(Befehl::DateiSpeichern);
}

constexpr Menueeintrag Menue[] = {
    {u"mnuUserNeu", u"&Neu", Befehlend<Befehl::UserNeu>},
    {u"mnuUserLaden", u"&Laden", Befehlend<Befehl::DateiLaden>},
    {u"mnuUserSpeichern", u"&Speichern", Speichern},
    {u"mnuUserSpeichernUnter", u"Speichern &unter", Befehlend<Befehl::DateiSpeichernUnter>},
    {u"mnuUserPrint", u"&Drucken", Tuend<BenutzerdatenZeigen>},
    {u"mnuUserDelete", u"Daten l&öschen", Tuend<BenutzerLoeschen>},
    {u"mnuNoChange", u"Änderungen &rückgängig machen", Befehlend<Befehl::AenderungenVerwerfen>},
    {u"mnuUserBeenden", u"S&chließen", Tuend<BenutzerVerbergen>},
};

QColor Grundfarbe(Pruefmarke marke) {
  if (marke == Pruefmarke::Keine) return farben::HellViolett;
  return marke == Pruefmarke::Gut ? farben::Weiss : farben::Rot;
}

}  // namespace

frmUser::frmUser(Ablauf& ablauf, Signalton& ton, QWidget* eltern) : QDialog(eltern), ablauf_(ablauf) {
  setObjectName(u"frmUser"_s);
  setProperty(HilfekontextEigenschaft, 4001);
  setModal(true);
  setWindowTitle(u"Persönliche Daten "_s);
  FelderAnlegen(ton);
  auto* leiste = new QMenuBar(this);
  MenueAnlegen(*leiste, u"mnuDatei"_s, u"&Datei"_s, Menue, ablauf_);
  layout()->setMenuBar(leiste);

  new Feldfolge({felder_.begin(), felder_.end()}, this, Folgetasten::AufAb);
  const Textfeld* rufzeichen = felder_[FeldRufzeichen];
  connect(rufzeichen, &Textfeld::betreten, this,
          [this] { ablauf_.TunBeimVerlassen(Mit(FeldBetreten, Eingabefeld::Rufzeichen)); });
  connect(rufzeichen, &Textfeld::verlassen, this,
          [this] { ablauf_.TunBeimVerlassen(Mit(FeldVerlassen, Eingabefeld::Rufzeichen)); });
  Einpassen(*this);
}

void frmUser::FelderAnlegen(Signalton& ton) {
  auto* raster = new QGridLayout(this);
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const QString name = Feldarten[i].name.toString();
    const QString beschriftung = Feldarten[i].beschriftung.toString();
    auto* feld = new Textfeld(ton, this);
    feld->setObjectName(u"txt"_s + name);
    feld->setAccessibleName(QString(beschriftung).remove(u'&'));
    feld->setMaxLength(static_cast<int>(MaxFeldlaenge));
    MindestensBreit(*feld, 40);
    connect(feld, &QLineEdit::textEdited, this, [this, i](const QString& text) {
      ablauf_.TunBeimTippen(*felder_[i], Mit(BenutzerGetippt, i, text.toStdString()));
    });
    auto* label = new QLabel(beschriftung, this);
    label->setObjectName(u"lbl"_s + name);
    label->setBuddy(feld);
    raster->addWidget(label, int(i), 0);
    raster->addWidget(feld, int(i), 1);
    felder_[i] = feld;
  }
  raster->setRowStretch(raster->rowCount(), 1);
}

void frmUser::Hinzeigen(const BeimBenutzer& ort) {
  activateWindow();
  felder_.at(ort.feld)->setFocus(Qt::TabFocusReason);
}

void frmUser::Zeigen(const Station& station) {
  const bool leer = std::all_of(felder_.begin(), felder_.end(),
                                [](const Textfeld* feld) { return feld->text().isEmpty(); });
  // An emptied form is filled in from its beginning.
  if (!leer && station.benutzer == Benutzer()) felder_[0]->setFocus();
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const bool betretenLeer = felder_[i]->hasFocus() && felder_[i]->text().isEmpty();
    Schreiben(*felder_[i], station.benutzer.*Benutzerfelder[i]);
    // What the callsign says of the class comes when the cursor is there already.
    if (betretenLeer) felder_[i]->selectAll();
    if (Pflichtfelder[i] == Pflicht::Nein) continue;
    Faerben(*felder_[i], Grundfarbe(station.benutzermarken[i]));
    felder_[i]->setPlaceholderText(u"(Pflichtangabe)"_s);
  }
  if (station.titelGesetzt) setWindowTitle(QString::fromStdString(TitelBenutzerfenster(station)));
  if (tooltips_ != station.einstellungen.ToolTips) {
    tooltips_ = station.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
}

void frmUser::reject() {
  ablauf_.Tun(BenutzerVerbergen);
}

void frmUser::hideEvent(QHideEvent* ereignis) {
  QDialog::hideEvent(ereignis);
  if (ereignis->spontaneous()) return;
  // Saving may open a box; the window must be out of its modal loop by then.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (isHidden()) ablauf_.Befehlen(Befehl::BenutzerVerborgen);
      },
      Qt::QueuedConnection);
}

}  // namespace vesk
