#include "WinkelTab.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include "Ausgabe.h"
#include "Dateien.h"
#include "Meldung.h"
#include "OptionenUmgebung.h"
#include "Spaltensatz.h"
#include "Winkelbild.h"
#include "Zahlen.h"
#include "Zahlenfeld.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

using Daempfungen = std::array<std::string, AnzahlSektoren>;

const Winkeldaten Beispieldaten{
    "Beispiel Tonna 17el",
    "15.3",
    "144",
    {"0.00", "0.85", "3.33", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"}};
constexpr QStringView Beispielleistung = u"347.59";

constexpr QStringView TitelLaden = u"Winkel-Datei laden";

QString Formatiert(float wert) {
  return QString::fromStdString(Formatieren(wert));
}

QString PfadText(const std::filesystem::path& pfad) {
  return QString::fromStdU16String(pfad.u16string());
}

std::filesystem::path Pfad(const QString& text) {
  return {text.toStdU16String()};
}

QString Rahmentitel(const std::filesystem::path& pfad) {
  switch (EbeneAusName(pfad.filename().string())) {
    case Winkelebene::Horizontal:
      return u"Horizontale Winkeldämpfung von Richtantennen"_s;
    case Winkelebene::Vertikal:
      return u"Vertikale Winkeldämpfung von Richtantennen"_s;
    case Winkelebene::Keine:
      break;
  }
  return u"Winkeldämpfung von Richtantennen"_s;
}

/// What a field shows, as a point of the picture; an empty field or an absurd number is none.
std::optional<double> Bildwert(const QLineEdit& feld) {
  if (feld.text().isEmpty()) return std::nullopt;
  try {
    return Zahl(feld.text().toStdString());
  } catch (const Laufzeitfehler&) {
    return std::nullopt;
  }
}

template <typename Feld>
Polarkurve Kurve(const QString& name, const QColor& farbe, Qt::PenStyle strich,
                 const std::array<Feld*, AnzahlSektoren>& felder) {
  static_assert(AnzahlSektoren == PolarSektoren);
  Polarkurve kurve{name, farbe, strich, {}};
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) kurve.werte.at(i) = Bildwert(*felder.at(i));
  return kurve;
}

}  // namespace

void WinkelTab::Laden() {
  datei_ = std::filesystem::path(zustand_.ProgrammVerzeichnis) / "Winkel.ang";
  lblDatei->setText(PfadText(datei_.filename()));
  txtWDaempfung.front()->setText(u"0"_s);
  gesichert_ = Tabelle();
}

void WinkelTab::SektorenBerechnen() {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    SaetzeFortschreiben();
    const Grenzwerte grenzwerte = GrenzwerteErmitteln();
    const Sektortabelle tabelle = SektorenRechnen({.AntEinPWR = txtWAntEinPWR->text().toStdString(),
                                                   .gewinn = txtWGewinn0->text().toStdString(),
                                                   .daempfung = Tabelle()},
                                                  grenzwerte);
    TabelleZeigen(tabelle, grenzwerte);
    if (tabelle.fehler) throw Laufzeitfehler(*tabelle.fehler);
  });
}

Grenzwerte WinkelTab::GrenzwerteErmitteln() {
  Rechenwerte& werte = zustand_.werte;
  GrenzwerteZuruecksetzen(werte);
  werte.QRG = Zahl(txtWMHZ->text().toStdString());
  umgebung_.Bandlogik(werte.QRG, true);
  const Grenzwerte grenzwerte = GrenzwerteBestimmen(werte.QRG, umgebung_.AFu(), werte.Grenzwerttyp);
  GrenzwerteEintragen(grenzwerte, werte);
  if (grenzwerte.hsmVDE.ausserhalb && umgebung_.MeldungenAn()) {
    Zeigen(plattform_.boxen, werte, HSMBereichsHinweis());
  }
  return grenzwerte;
}

void WinkelTab::TabelleZeigen(const Sektortabelle& tabelle, const Grenzwerte& grenzwerte) {
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    if (grenzwerte.hsm306.Grenzwert == 0) txtWHSM306.at(i)->clear();
    if (grenzwerte.hsmVDE.Grenzwert == 0) txtWHSMvde.at(i)->clear();
  }
  for (std::size_t i = 0; i < tabelle.sektoren.size(); ++i) {
    const Sektor& sektor = tabelle.sektoren.at(i);
    txtWAbstand.at(i)->setText(Formatiert(sektor.ohneHSM));
    if (sektor.HSMvde) txtWHSMvde.at(i)->setText(Formatiert(*sektor.HSMvde));
    if (sektor.HSM306) txtWHSM306.at(i)->setText(Formatiert(*sektor.HSM306));
    txtWEIRP.at(i)->setText(Formatiert(sektor.EIRP));
  }
  DruckbarMelden();
}

void WinkelTab::DaempfungUebernehmen(std::size_t sektor) {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    Rechenwerte& werte = zustand_.werte;
    const QString text = txtWDaempfung.at(sektor)->text();
    umgebung_.HauptwinkelSetzen(text);
    werte.WinkelDaempfungText = text.toStdString();
    SaetzeFortschreiben();
    if (werte.Spalte == 0 || umgebung_.OptionenBeruecksichtigen()) {
      FeldSetzen(zustand_, werte.Spalte, &Datenblattspalte::Winkeldaempfung, text.toStdString());
      if (werte.Spalte != 0) umgebung_.ZelleSetzen(werte.Spalte, ZeileWinkel, text);
    }
    Neurechnen(zustand_, umgebung_);
  });
}

void WinkelTab::Beispiel() {
  if (!VerwerfenErlaubt(u"Beispiel"_s)) return;
  TabelleSetzen(Beispieldaten.daempfung);
  gesichert_ = Beispieldaten.daempfung;
  txtWAntenne->setText(QString::fromStdString(Beispieldaten.antenne));
  txtWGewinn0->setText(QString::fromStdString(Beispieldaten.gewinn));
  txtWMHZ->setText(QString::fromStdString(Beispieldaten.frequenz));
  txtWAntEinPWR->setText(Beispielleistung.toString());
  SektorenBerechnen();
}

bool WinkelTab::VerwerfenErlaubt(const QString& titel) {
  if (Tabelle() == gesichert_) return true;
  return Bestaetigt(plattform_.boxen, zustand_.werte, titel,
                    u"Die Winkeltabelle wurde geändert. Änderungen verwerfen?"_s);
}

void WinkelTab::WinkelOeffnen() {
  if (!VerwerfenErlaubt(TitelLaden.toString())) return;
  const auto pfad = plattform_.dialoge.Oeffnen({.titel = TitelLaden.toString(),
                                                .filter = u"Winkel Dateien (*.ang)"_s,
                                                .endung = u"ang"_s,
                                                .verzeichnis = PfadText(datei_.parent_path()),
                                                .vorschlag = PfadText(datei_.filename())});
  if (!pfad) return;
  Abgefangen(plattform_.boxen, zustand_.werte, [&] { WinkelLaden(Pfad(*pfad)); });
}

void WinkelTab::WinkelLaden(const std::filesystem::path& pfad) {
  const Gelesen datei = DateiLesen(pfad);
  if (datei.status == Lesestatus::Fehler) {
    DateifehlerZeigen(pfad, "gelesen", datei.grund);
    return;
  }
  DateiWechseln(pfad);
  // Distances of the table before would stand beside the attenuations of this one.
  ErgebnisseLeeren();
  const GeleseneWinkeldaten daten = WinkelLesen(datei.bytes);
  TabelleSetzen(daten.daempfung);
  gesichert_ = Tabelle();
  if (daten.antenne) txtWAntenne->setText(QString::fromStdString(*daten.antenne));
  if (daten.gewinn) txtWGewinn0->setText(QString::fromStdString(*daten.gewinn));
  if (daten.frequenz) {
    txtWMHZ->setText(
        QString::fromStdString(daten.frequenz->empty() ? zustand_.werte.QRGText : *daten.frequenz));
  }
  SaetzeFortschreiben();
}

void WinkelTab::WinkelSpeichernUnter() {
  const auto pfad = plattform_.dialoge.Speichern({.titel = u"Winkel-Datei speichern"_s,
                                                  .filter = u"Winkel Dateien (*.ang)"_s,
                                                  .endung = u"ang"_s,
                                                  .verzeichnis = PfadText(datei_.parent_path()),
                                                  .vorschlag = PfadText(datei_.filename())});
  if (!pfad) return;
  DateiWechseln(Pfad(*pfad));
  WinkelSpeichern();
}

void WinkelTab::WinkelSpeichern() {
  const Fehlergrund fehler =
      DateiSchreiben(datei_, WinkelSchreiben({.antenne = txtWAntenne->text().toStdString(),
                                              .gewinn = txtWGewinn0->text().toStdString(),
                                              .frequenz = txtWMHZ->text().toStdString(),
                                              .daempfung = Tabelle()}));
  if (fehler) {
    DateifehlerZeigen(datei_, "gespeichert", *fehler);
  } else {
    gesichert_ = Tabelle();
  }
}

void WinkelTab::DateifehlerZeigen(const std::filesystem::path& pfad, const std::string& was,
                                  const std::string& grund) {
  Zeigen(plattform_.boxen, zustand_.werte,
         Fehlermeldung("Die Datei " + PfadText(pfad.filename()).toStdString() + " konnte nicht " + was +
                       " werden.\n" + grund));
}

void WinkelTab::TabelleLoeschen() {
  if (!Bestaetigt(plattform_.boxen, zustand_.werte, u"Winkeldämpfung"_s, u"Datenblatt wirklich löschen?"_s)) {
    return;
  }
  Abgefangen(plattform_.boxen, zustand_.werte, [&] { WinkelLoeschen(); });
}

void WinkelTab::WinkelLoeschen() {
  TabelleSetzen({});
  gesichert_ = {};
  ErgebnisseLeeren();
  SaetzeFortschreiben();
}

void WinkelTab::ErgebnisseLeeren() {
  for (const auto* spalte : {&txtWEIRP, &txtWAbstand, &txtWHSM306, &txtWHSMvde}) {
    for (QLineEdit* feld : *spalte) feld->clear();
  }
  DruckbarMelden();
}

void WinkelTab::DateiWechseln(const std::filesystem::path& pfad) {
  datei_ = pfad;
  rhmWinkel->setTitle(Rahmentitel(pfad));
  lblDatei->setText(PfadText(pfad.filename()));
}

void WinkelTab::TabelleSetzen(const Daempfungen& daempfung) {
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    txtWDaempfung.at(i)->setText(QString::fromStdString(daempfung.at(i)));
  }
}

Daempfungen WinkelTab::Tabelle() const {
  Daempfungen tabelle;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) tabelle.at(i) = txtWDaempfung.at(i)->text().toStdString();
  return tabelle;
}

void WinkelTab::SaetzeFortschreiben() {
  FeldSetzen(zustand_, 0, &Datenblattspalte::Winkel, Tabelle());
  if (zustand_.werte.Spalte == 0 || !umgebung_.OptionenBeruecksichtigen()) return;
  FeldSetzen(zustand_, zustand_.werte.Spalte, &Datenblattspalte::Winkel, Tabelle());
}

void WinkelTab::DruckbarMelden() {
  BildAuffrischen();
  Q_EMIT druckbarGeaendert(!txtWHSM306.front()->text().isEmpty(), !txtWHSMvde.front()->text().isEmpty());
}

void WinkelTab::BildAuffrischen() {
  // Darker than the fields, to be seen on white.
  constexpr QColor Gruen(0x00, 0x80, 0x00);
  constexpr QColor Rot(0xC0, 0x20, 0x20);
  constexpr QColor Ocker(0x90, 0x70, 0x00);
  bild_->Zeigen(
      {.titel = u"Dämpfung"_s,
       .einheit = u"dB"_s,
       .skala = Polarskala::Daempfung,
       .kurven = {Kurve(u"relativ zur Hauptrichtung"_s, Qt::darkBlue, Qt::SolidLine, txtWDaempfung)}},
      {.titel = u"Sicherheitsabstände"_s,
       .einheit = u"m"_s,
       .skala = Polarskala::Abstand,
       .kurven = {Kurve(u"HSM VDE"_s, Ocker, Qt::DashDotLine, txtWHSMvde),
                  Kurve(u"HSM 306"_s, Rot, Qt::DashLine, txtWHSM306),
                  Kurve(u"ohne HSM"_s, Gruen, Qt::SolidLine, txtWAbstand)}});
}

void WinkelTab::RechnungZeigen(const Feldtexte& texte) {
  txtWGewinn0->setText(QString::fromStdString(zustand_.werte.GewinnText));
  txtWMHZ->setText(QString::fromStdString(zustand_.werte.QRGText));
  if (const auto& text = texte[Feld::WAntEinPWR]) AntEinPWRSetzen(QString::fromStdString(*text));
  if (const auto& text = texte[Feld::WEIRP]) txtWEIRP.front()->setText(QString::fromStdString(*text));
}

void WinkelTab::AntEinPWRSetzen(const QString& text) {
  txtWAntEinPWR->setText(text);
}

void WinkelTab::AntenneSetzen(const QString& name, const QString& gewinn, const QString& mhz) {
  txtWAntenne->setText(name);
  txtWGewinn0->setText(gewinn);
  txtWMHZ->setText(mhz);
}

void WinkelTab::SatzLaden(const Datenblattspalte& satz) {
  if (satz.Winkel == Tabelle()) return;
  TabelleSetzen(satz.Winkel);
  gesichert_ = satz.Winkel;
  ErgebnisseLeeren();
}

void WinkelTab::SatzSchreiben(Datenblattspalte& satz) const {
  satz.Winkel = Tabelle();
}

bool WinkelTab::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress) {
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
    for (std::size_t i = 0; enter && i < AnzahlSektoren; ++i) {
      if (objekt != txtWDaempfung.at(i) || (taste->modifiers() & Qt::ControlModifier) == 0) continue;
      DaempfungUebernehmen(i);
      return true;
    }
  }
  return QWidget::eventFilter(objekt, ereignis);
}

}  // namespace vesk
