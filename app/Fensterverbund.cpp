#include "Fensterverbund.h"

#include "Datenblatt.h"
#include "Farben.h"
#include "Meldung.h"
#include "Zahlen.h"
#include "frmDatenblatt.h"
#include "frmOptions.h"
#include "frmVesk.h"

namespace vesk {

Fensterverbund::Fensterverbund(Zustand& zustand, Plattform& plattform, frmVesk& hauptfenster,
                               frmDatenblatt& datenblatt)
    : zustand_(zustand),
      plattform_(plattform),
      hauptfenster_(hauptfenster),
      datenblatt_(datenblatt),
      rechengang_(
          zustand, plattform, hauptfenster,
          [this](const Rechenergebnis& ergebnis, const Feldtexte& texte) { NachRechnung(ergebnis, texte); }),
      spalten_(zustand, *this) {}

void Fensterverbund::KopierknopfAuffrischen() {
  hauptfenster_.KopierknopfZeigen(QString::fromStdString(NaechsteFreieSpalte(zustand_.Zellen)));
}

void Fensterverbund::KopierenFreigeben() {
  KopierknopfAuffrischen();
  hauptfenster_.KopierenErlauben(!NaechsteFreieSpalte(zustand_.Zellen).empty());
}

void Fensterverbund::NachRechnung(const Rechenergebnis& ergebnis, const Feldtexte& texte) {
  optionen_->RechnungZeigen(texte);
  if (ergebnis.vollstaendig) KopierenFreigeben();
}

bool Fensterverbund::OptionenBeruecksichtigen() const {
  return datenblatt_.OptionenBeruecksichtigen();
}

void Fensterverbund::OptionenBeruecksichtigenSetzen(bool an) {
  datenblatt_.OptionenBeruecksichtigenSetzen(an);
}

bool Fensterverbund::MeldungenAn() const {
  return hauptfenster_.MeldungenAn();
}

bool Fensterverbund::AFu() const {
  return hauptfenster_.AFu();
}

QString Fensterverbund::Zelle(std::int16_t spalte, Zeile zeile) const {
  return QString::fromStdString(zustand_.Zellen.at(static_cast<std::size_t>(Gitterindex(spalte, zeile))));
}

void Fensterverbund::ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text) {
  datenblatt_.ZelleSetzen(spalte, zeile, text);
}

void Fensterverbund::ZelleSetzen(std::int16_t spalte, Zeile zeile, const std::string& text) {
  datenblatt_.ZelleSetzen(spalte, zeile, QString::fromStdString(text));
}

void Fensterverbund::ModIdxSetzen(const QString& text) {
  datenblatt_.ModIdxSetzen(text);
}

void Fensterverbund::HauptfeldSetzen(std::string Rechenwerte::*feld, const QString& text) {
  hauptfenster_.TexteUebernehmen();
  zustand_.werte.*feld = text.toStdString();
  hauptfenster_.EingabenZeigen();
}

void Fensterverbund::HauptfrequenzSetzen(const QString& text) {
  HauptfeldSetzen(&Rechenwerte::QRGText, text);
}

void Fensterverbund::HauptgewinnSetzen(const QString& text) {
  HauptfeldSetzen(&Rechenwerte::GewinnText, text);
}

void Fensterverbund::HauptverlusteSetzen(const QString& text) {
  HauptfeldSetzen(&Rechenwerte::DaempfungText, text);
}

void Fensterverbund::HauptwinkelSetzen(const QString& text) {
  HauptfeldSetzen(&Rechenwerte::WinkelDaempfungText, text);
}

void Fensterverbund::Bandlogik(float mhz, bool hinweis) {
  rechengang_.Bandlogik(mhz, hinweis);
}

void Fensterverbund::Berechnen(bool meldungen) {
  // A column is calculated from its own texts, as they stand in its cells; the main window from its fields.
  if (zustand_.werte.Spalte == 0) hauptfenster_.TexteUebernehmen();
  rechengang_.Berechnen(meldungen);
}

void Fensterverbund::SpalteUebernehmen() {
  spalten_.OptionGeaendert();
}

Modus Fensterverbund::modus() const {
  return hauptfenster_.modus();
}

void Fensterverbund::AbstandEinschalten() {
  hauptfenster_.AbstandEinschalten();
}

void Fensterverbund::EingabenZeigen() {
  hauptfenster_.EingabenZeigen();
}

Ergebnistexte Fensterverbund::Ergebnisse() const {
  const auto text = [this](Feld feld) { return hauptfenster_.Ergebnis(feld).toStdString(); };
  return {text(Feld::AusgabeOhneHSM), text(Feld::AusgabeHSM306), text(Feld::AusgabeHSMvde)};
}

bool Fensterverbund::RechnungLaeuft() const {
  return rechengang_.Laeuft();
}

void Fensterverbund::EingabeHinweis() {
  Zeigen(plattform_.boxen, zustand_.werte, vesk::EingabeHinweis());
}

void Fensterverbund::OptionenLaden(std::int16_t) {
  optionen_->SatzLaden();
}

std::string Fensterverbund::GewaehlteBetriebsarten() const {
  return optionen_->GewaehlteSendearten().toStdString();
}

void Fensterverbund::ZelleMarkieren(std::int16_t spalte, Zeile zeile, bool fehlt) {
  datenblatt_.ZellfarbeSetzen(spalte, zeile, fehlt ? farben::Rot : farben::Weiss);
}

void Fensterverbund::SpaltenschriftSetzen(std::int16_t spalte, bool rueckwaerts) {
  datenblatt_.SpaltenschriftSetzen(spalte, rueckwaerts ? farben::Tuerkis : QColor(Qt::black));
}

void Fensterverbund::FaktorZeigen(std::int16_t spalte, float faktor) {
  datenblatt_.FaktorZeigen(spalte, faktor);
}

}  // namespace vesk
