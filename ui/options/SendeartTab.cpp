#include "SendeartTab.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "Datenblattspalte.h"
#include "Farben.h"
#include "Meldung.h"
#include "OptionenUmgebung.h"
#include "Plattform.h"
#include "Spaltensatz.h"
#include "Zahlen.h"
#include "Zahlenfeld.h"
#include "Zustand.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

QString Formatiert(float wert) {
  return QString::fromStdString(Formatieren(wert));
}

QString Faktortext() {
  return u"Faktor für Sendeart: "_s;
}

}  // namespace

void SendeartTab::Laden() {
  lblMod1->setText(
      u"Bitte die gewünschte Betriebsart ankreuzen. (Mehrfachauswahl zulässig)\n"
      "Der ermittelte Faktor wirkt sich nicht auf HSM- Berechnungen aus!"_s);
  rhmBetriebsart->setEnabled(true);
  GrenzwerttypSetzen(GrenzwertAM);
}

void SendeartTab::Vorbelegen() {
  chkBetriebsart.back()->setChecked(true);
  Startfaktoren();
  ModulationsFaktorErmitteln();
}

void SendeartTab::Startfaktoren() {
  ZyklusSetzen({AnzahlZyklen - 1, 1.0F});
  zustand_.werte.Modulationsfaktor = 1.0F;
  FaktorZeigen();
}

void SendeartTab::BetriebsartGeklickt(int index) {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    OptionModulation(index);
    ModulationsFaktorErmitteln();
    if (Faktor(zustand_.werte) < 1.0F) WarnMeldungFaktor();
    Neurechnen(zustand_, umgebung_);
  });
}

void SendeartTab::OptionModulation(int index) {
  const auto folge = vesk::OptionModulation(Kreuze(), index);
  if (!folge) return;
  GrenzwerttypSetzen(folge->typ);
  KreuzeSetzen(folge->kreuze);
}

void SendeartTab::ModulationsFaktorErmitteln() {
  Rechenwerte& werte = zustand_.werte;
  const Sendeartwahl wahl = vesk::ModulationsFaktorErmitteln(Kreuze());
  werte.Modulationsfaktor = wahl.faktor;
  txtSelectedModes->setText(QString::fromStdString(wahl.text));
  lblFaktorB->setText(Faktortext());
  FaktorZeigen();
  if (!umgebung_.OptionenBeruecksichtigen()) return;

  umgebung_.ModIdxSetzen(Faktortext() + Formatiert(Faktor(werte)));
  for (const std::int16_t spalte : {werte.Spalte, std::int16_t{0}}) {
    FeldSetzen(zustand_, spalte, &Datenblattspalte::Modulationsfaktor, Formatieren(werte.Modulationsfaktor));
    FeldSetzen(zustand_, spalte, &Datenblattspalte::Zyklusfaktor, Formatieren(werte.Zyklusfaktor));
  }
  if (werte.Spalte != 0) umgebung_.ZelleSetzen(werte.Spalte, ZeileBetriebsarten, txtSelectedModes->text());
}

void SendeartTab::ModulationsArtAnkreuzen() {
  const QString zelle = umgebung_.Zelle(zustand_.werte.Spalte, ZeileBetriebsarten);
  lblFaktorB->setText(Faktortext() + u"1.00"_s);
  KreuzeSetzen(vesk::ModulationsArtAnkreuzen(zelle.toStdString()));
  ModulationsFaktorErmitteln();
}

void SendeartTab::ZyklusfaktorErmitteln() {
  zustand_.werte.Zyklusfaktor = 1.0F;
  for (int i = 0; i < AnzahlZyklen; ++i) {
    if (optDuty.at(std::size_t(i))->isChecked()) zustand_.werte.Zyklusfaktor = ZyklusfaktorVon(i);
  }
}

void SendeartTab::ZyklusGeklickt() {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    ZyklusfaktorErmitteln();
    FaktorZeigen();
    if (Faktor(zustand_.werte) < 1.0F) WarnMeldungFaktor();
    const std::int16_t spalte = zustand_.werte.Spalte;
    if (spalte == 0 || umgebung_.OptionenBeruecksichtigen()) {
      FeldSetzen(zustand_, spalte, &Datenblattspalte::Zyklusfaktor, Formatieren(zustand_.werte.Zyklusfaktor));
    }
    Neurechnen(zustand_, umgebung_);
  });
}

void SendeartTab::GrenzwerttypGeklickt(int index) {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    GrenzwerttypSetzen(static_cast<std::int16_t>(index));
    Neurechnen(zustand_, umgebung_);
  });
}

void SendeartTab::GrenzwerttypSetzen(std::int16_t typ) {
  optSSB.at(std::size_t(typ))->setChecked(true);
  zustand_.werte.Grenzwerttyp = typ;
  for (const std::int16_t spalte : {zustand_.werte.Spalte, std::int16_t{0}}) {
    FeldSetzen(zustand_, spalte, &Datenblattspalte::Grenzwerttyp, typ);
  }
}

void SendeartTab::WarnMeldungFaktor() {
  if (!umgebung_.MeldungenAn() || zustand_.einstellungen.FaktorMeldungAus) return;
  const Antwort antwort = Zeigen(plattform_.boxen, zustand_.werte, FaktorHinweis());
  zustand_.einstellungen.FaktorMeldungAus = antwort != Antwort::Ja;
}

void SendeartTab::FaktorZeigen() {
  const float faktor = Faktor(zustand_.werte);
  txtFaktorB->setText(Formatiert(faktor));
  Hintergrund(*txtFaktorB, faktor < 1.0F ? farben::Gruen : farben::HellGruen);
}

void SendeartTab::ZyklusSetzen(const Zykluswahl& wahl) {
  zyklen_->setExclusive(false);
  for (int i = 0; i < AnzahlZyklen; ++i) optDuty.at(std::size_t(i))->setChecked(i == wahl.option);
  zyklen_->setExclusive(true);
  zustand_.werte.Zyklusfaktor = wahl.faktor;
}

Sendeartkreuze SendeartTab::Kreuze() const {
  Sendeartkreuze kreuze{};
  for (std::size_t i = 0; i < kreuze.size(); ++i) kreuze.at(i) = chkBetriebsart.at(i)->isChecked();
  return kreuze;
}

void SendeartTab::KreuzeSetzen(const Sendeartkreuze& kreuze) {
  for (std::size_t i = 0; i < kreuze.size(); ++i) chkBetriebsart.at(i)->setChecked(kreuze.at(i));
}

void SendeartTab::SatzLaden(const Datenblattspalte& satz) {
  const std::int16_t spalte = zustand_.werte.Spalte;
  GrenzwerttypSetzen(satz.Grenzwerttyp >= GrenzwertAM && satz.Grenzwerttyp <= GrenzwertGSM
                         ? satz.Grenzwerttyp
                         : std::int16_t{GrenzwertAM});
  ZyklusSetzen(ZyklusAusText(satz.Zyklusfaktor));
  if (spalte == 0) {
    // The working record holds no modes: the boxes stand, and the factor stays what they say.
    ModulationsFaktorErmitteln();
  } else if (!umgebung_.OptionenBeruecksichtigen()) {
    ModulationsArtAnkreuzen();
  } else {
    // The cell holds at most three abbreviations, so that the factor of more modes is only in the record.
    const QString zelle = umgebung_.Zelle(spalte, ZeileBetriebsarten);
    KreuzeSetzen(KreuzeAusKuerzeln(zelle.toStdString()));
    txtSelectedModes->setText(zelle);
    zustand_.werte.Modulationsfaktor = FaktorAusText(satz.Modulationsfaktor);
    FaktorZeigen();
  }
}

void SendeartTab::SatzSchreiben(Datenblattspalte& satz) const {
  satz.Modulationsfaktor = Formatieren(zustand_.werte.Modulationsfaktor);
  satz.Zyklusfaktor = Formatieren(zustand_.werte.Zyklusfaktor);
  satz.Grenzwerttyp = zustand_.werte.Grenzwerttyp;
}

QString SendeartTab::GewaehlteSendearten() const {
  return txtSelectedModes->text();
}

}  // namespace vesk
