#include "KabelTab.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <filesystem>
#include <utility>

#include "Auswahlliste.h"
#include "Dateien.h"
#include "Farben.h"
#include "Meldung.h"
#include "OptionenUmgebung.h"
#include "Spaltensatz.h"
#include "Zahlen.h"
#include "Zahlenfeld.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

Kabelkatalog KatalogLesen(const std::string& verzeichnis) {
  const Gelesen datei = DateiLesen(std::filesystem::path(verzeichnis) / "Kabel.txt");
  switch (datei.status) {
    case Lesestatus::Gelesen:
      return KabelLaden(datei.bytes);
    case Lesestatus::Fehlt:
      return KabelOhneDatei();
    case Lesestatus::Fehler:
      break;
  }
  return KabelUnlesbar();
}

/// A number from a record; what is none, or beyond every range, is 0.
float ZahlAusSatz(const std::string& text) {
  try {
    return Zahl(text);
  } catch (const Laufzeitfehler&) {
    return 0;
  }
}

}  // namespace

void KabelTab::Laden() {
  katalog_ = KatalogLesen(zustand_.ProgrammVerzeichnis);
  for (const std::string& name : katalog_.liste) lstKabel->addItem(QString::fromStdString(name));
  lstKabel->setCurrentRow(katalog_.auswahl);
  D100Sperren(true);
  if (!katalog_.Meldung.empty()) {
    Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(katalog_.Meldung));
  }
  if (katalog_.fehler) Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(*katalog_.fehler));
}

bool KabelTab::IstAnderesKabel() const {
  const QListWidgetItem* kabel = lstKabel->currentItem();
  return kabel != nullptr && kabel->text().toStdString() == AnderesKabel;
}

void KabelTab::D100Sperren(bool gesperrt) {
  txtD100->setEnabled(!gesperrt);
  if (gesperrt) Hintergrund(*txtD100, farben::HellGrau);
}

void KabelTab::KabelGewaehlt() {
  rechnungGestellt_ = false;
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    D100Sperren(!IstAnderesKabel());
    if (IstAnderesKabel()) {
      txtD100->setText(u"0"_s);
      Hintergrund(*txtD100, farben::Rot);
    }
    Kabeldaempfung();
    Neurechnen(zustand_, umgebung_);
  });
}

void KabelTab::GleichGeklickt() {
  rechnungGestellt_ = false;
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    Kabeldaempfung();
    Neurechnen(zustand_, umgebung_);
  });
}

void KabelTab::FrequenzGeaendert() {
  // On the way to 145 the user types 1 and 14. What such a frequency would say is said when the field is
  // left.
  try {
    const float mhz = Zahl(txtQRG->text().toStdString());
    if (mhz == 0) return;
    umgebung_.Bandlogik(mhz, false);
    Kabeldaempfung();
    if (zustand_.werte.Spalte == 0) umgebung_.Berechnen(false);
  } catch (const Laufzeitfehler&) {
    return;
  }
}

void KabelTab::FrequenzVerlassen() {
  if (!window()->isVisible()) return;
  std::string& QRGText = zustand_.werte.QRGText;
  if (txtQRG->text().isEmpty()) {
    const QSignalBlocker still(txtQRG);
    txtQRG->setText(QString::fromStdString(QRGText));
    return;
  }
  const bool geaendert = txtQRG->text().toStdString() != QRGText;
  umgebung_.HauptfrequenzSetzen(txtQRG->text());
  QRGText = txtQRG->text().toStdString();
  if (!geaendert || zustand_.werte.Spalte != 0) return;
  // A box must not open under the press of the mouse that has left the field.
  rechnungGestellt_ = true;
  QTimer::singleShot(0, this, [this] { GestellteRechnung(); });
}

void KabelTab::GestellteRechnung() {
  constexpr int Wartezeit = 20;  // ms
  if (!rechnungGestellt_) return;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(Wartezeit, this, [this] { GestellteRechnung(); });
    return;
  }
  rechnungGestellt_ = false;
  if (zustand_.werte.Spalte != 0) return;
  Abgefangen(plattform_.boxen, zustand_.werte, [&] { umgebung_.Berechnen(true); });
}

void KabelTab::HauptfrequenzUebernehmen(const QString& text) {
  {
    const QSignalBlocker still(txtQRG);
    txtQRG->setText(text);
  }
  if (Zahl(txtKabelLaenge->text().toStdString()) != 0) Kabeldaempfung();
}

void KabelTab::Kabeldaempfung() {
  Rechenwerte& werte = zustand_.werte;
  Kabelfelder felder = Felder();
  try {
    KabeldaempfungRechnen(katalog_, lstKabel->currentRow(), felder, werte.Pruefergebnis);
  } catch (const Laufzeitfehler&) {
    FelderZeigen(felder);
    throw;
  }
  FelderZeigen(felder);
  werte.DaempfungText = felder.Gesamtdaempfung;
  umgebung_.HauptverlusteSetzen(txtGesamtdaempfung->text());
  if (!umgebung_.OptionenBeruecksichtigen()) return;

  SatzAendern(zustand_, werte.Spalte, [&](Datenblattspalte& satz) {
    satz.Modulationsfaktor = Formatieren(werte.Modulationsfaktor);
    satz.Zyklusfaktor = Formatieren(werte.Zyklusfaktor);
    SatzSchreiben(satz);
  });
  if (werte.Spalte != 0) umgebung_.ZelleSetzen(werte.Spalte, ZeileVerluste, txtGesamtdaempfung->text());
}

Kabelfelder KabelTab::Felder() const {
  return {.QRG = txtQRG->text().toStdString(),
          .D100 = txtD100->text().toStdString(),
          .KabelLaenge = txtKabelLaenge->text().toStdString(),
          .Kabeldaempfung = txtKabeldaempfung->text().toStdString(),
          .Stecker = txtStecker->text().toStdString(),
          .Gesamtdaempfung = txtGesamtdaempfung->text().toStdString()};
}

void KabelTab::FelderZeigen(const Kabelfelder& felder) {
  txtD100->setText(QString::fromStdString(felder.D100));
  txtKabeldaempfung->setText(QString::fromStdString(felder.Kabeldaempfung));
  txtGesamtdaempfung->setText(QString::fromStdString(felder.Gesamtdaempfung));
  if (felder.farbe == D100Farbe::Unveraendert) return;
  Hintergrund(*txtD100, felder.farbe == D100Farbe::Rot ? farben::Rot : farben::Weiss);
}

void KabelTab::SatzLaden(const Datenblattspalte& satz) {
  bool zahl = false;
  const int index = QString::fromStdString(satz.KabelIndex).toInt(&zahl);
  lstKabel->setCurrentRow(zahl && index >= 0 && index < lstKabel->count() ? index : -1);
  const QSignalBlocker still(txtQRG);
  txtQRG->setText(QString::fromStdString(satz.QRG));
  txtKabelLaenge->setText(QString::fromStdString(satz.KabelLaenge));
  txtStecker->setText(QString::fromStdString(satz.Stecker));
  FelderZeigen(
      {.D100 = satz.D100, .Kabeldaempfung = satz.Kabeldaempfung, .Gesamtdaempfung = satz.Gesamtdaempfung});
  D100Sperren(!IstAnderesKabel());
  if (IstAnderesKabel()) Hintergrund(*txtD100, ZahlAusSatz(satz.D100) == 0 ? farben::Rot : farben::Weiss);
}

void KabelTab::SatzSchreiben(Datenblattspalte& satz) const {
  const Kabelfelder felder = Felder();
  satz.KabelLaenge = felder.KabelLaenge;
  satz.KabelIndex = std::to_string(lstKabel->currentRow());
  satz.D100 = felder.D100;
  satz.Kabeldaempfung = felder.Kabeldaempfung;
  satz.Stecker = felder.Stecker;
  satz.Gesamtdaempfung = felder.Gesamtdaempfung;
  satz.QRG = felder.QRG;
}

}  // namespace vesk
