#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>

#include "station/Datenblatt.h"
#include "station/Ergebniswerte.h"
#include "station/Operator.h"
#include "station/Rechnung.h"
#include "station/Wegweiser.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Dezimaltrenner.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Klicklabel.h"
#include "ui/basis/Zugang.h"
#include "ui/main/Haupthilfe.h"
#include "ui/main/Hauptmenue.h"
#include "ui/main/Statuszeile.h"
#include "ui/main/frmVesk.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// What a mode writes besides the tooltips that belong to the switch of all tooltips.
struct Modustexte {
  const char* tag;
  const char* lblModus;
  const char* mnuAbstand;
  const char* lblPWR;
  const char* lblSicherheit;
  const char* tipPWR;
  const char* tipAusgabe;
  const char* tipModus;
  QColor farbe;
};

constexpr Modustexte Abstandstexte = {"Abstand",
                                      "Berechnung Sicherheitsabstand",
                                      "Maximale Sendeleistung berechnen",
                                      "Sendeleistung [W]",
                                      "Erforderlicher Sicherheitsabstand [m]",
                                      "Eingabe: Senderausgangsleistung in Watt",
                                      "Ausgabe: Errechneter Sicherheitsabstand in Metern",
                                      "Klick zum Umschalten auf Berechnung der Sendeleistung",
                                      BGR(0xFF0000)};
constexpr Modustexte Leistungstexte = {"Leistung",
                                       "Berechnung max. Sendeleistung",
                                       "Sicherheitsabstand berechnen",
                                       "Sicherheitsabstand [m]",
                                       "Maximal zulässige Sendeleistung [W]",
                                       "Eingabe: Maximal möglicher Sicherheitsabstand in Metern",
                                       "Ausgabe: Maximale Senderausgangsleistung in Watt",
                                       "Klick zum Umschalten auf Berechnung des Sicherheitsabstandes",
                                       BGR(0x008000)};
constexpr std::array Koepfe = {"ohne HSM", "HSM VDE", "HSM 306"};

const Modustexte& TexteDesModus(const Station& s) {
  return s.modus == Modus::Leistung ? Leistungstexte : Abstandstexte;
}

void Beschriften(QLabel& label, QWidget& feld, const std::string& text) {
  Schreiben(label, text);
  if (feld.accessibleName() != label.text()) feld.setAccessibleName(label.text());
}

/// The fields of a pacemaker limit.
struct Block {
  Feld Uss;
  Feld grenzwert;
  Feld ausgabe;
  int nahfeld;  ///< its bit of Nahfeldflags
  QColor start;
  Blockfarbe Station::*farbe;
};

constexpr Block Bloecke[] = {
    {Feld::UssVDE, Feld::GrenzwertHSMvde, Feld::AusgabeHSMvde, NahfeldHSMvde, farben::HellGelb,
     &Station::farbeVDE},
    {Feld::Uss306, Feld::GrenzwertHSM306, Feld::AusgabeHSM306, NahfeldHSM306, farben::HellRot,
     &Station::farbe306},
};

using Ausgabefarben = std::array<QColor, AnzahlAusgaben>;

QColor& Farbe(Ausgabefarben& farben, Feld feld) {
  return farben.at(static_cast<std::size_t>(feld));
}

/// The result that is whole; no other is coloured.
const Ergebnis* Ganzes(const Station& s) {
  return s.ergebnis && s.ergebnis->zahlen.vollstaendig ? &*s.ergebnis : nullptr;
}

Ausgabefarben FarbenDerAusgaben(const Station& s) {
  const Ergebnis* ganzes = Ganzes(s);
  const int flags = ganzes != nullptr ? ganzes->zahlen.Nahfeldflags : 0;
  const bool leistung =
      ganzes != nullptr ? ganzes->eingabe.modus == Modus::Leistung : s.modus == Modus::Leistung;
  const int nahAusgaben = leistung ? 0 : flags;
  const bool vermindert = ganzes != nullptr && ganzes->eingabe.faktor < 1.0F;

  Ausgabefarben farbe;
  farbe.fill(farben::HellGrau);
  Farbe(farbe, Feld::GrenzwertOhneHSM) = farben::HellGruen;
  if (flags != 0) Farbe(farbe, Feld::Nahfeld) = farben::Nahfeld;
  QColor& ohneHSM = Farbe(farbe, Feld::AusgabeOhneHSM);
  ohneHSM = vermindert ? farben::Gruen : farben::HellGruen;
  if (leistung) ohneHSM = farben::HellCyan;
  if ((nahAusgaben & NahfeldOhneHSM) != 0) ohneHSM = farben::Nahfeld;
  for (const Block& block : Bloecke) {
    const Blockfarbe art = s.*block.farbe;
    const bool grau = art == Blockfarbe::Grau;
    const QColor& grenzwert = art == Blockfarbe::Start ? block.start : farben::HellRot;
    const QColor& leer = leistung ? farben::HellCyan : block.start;
    const QColor& voll = (nahAusgaben & block.nahfeld) != 0 ? farben::Nahfeld : farben::HellRot;
    Farbe(farbe, block.Uss) = grau ? farben::Grau : block.start;
    Farbe(farbe, block.grenzwert) = grau ? farben::Grau : grenzwert;
    Farbe(farbe, block.ausgabe) = ganzes == nullptr ? leer : voll;
    if (ganzes != nullptr && grau) Farbe(farbe, block.ausgabe) = farben::Grau;
  }
  return farbe;
}

void Markieren(QWidget& feld, Pruefmarke marke) {
  if (marke == Pruefmarke::Keine) {
    ThemaFaerben(feld);
  } else {
    Faerben(feld, marke == Pruefmarke::Gut ? farben::Weiss : farben::Rot);
  }
}

/// An empty field of a limit that is not defined says so.
QString Platzhalter(const QColor& farbe) {
  return farbe == farben::Grau ? u"(nicht definiert)"_s : QString();
}

}  // namespace

void frmVesk::Zeigen(const Station& s) {
  cmdBerechnen->setProperty("Tag", u"True"_s);
  if (s.titelGesetzt) setWindowTitle(QString::fromStdString(TitelHauptfenster(s)));
  ModusZeigen(s);
  SchalterZeigen(s);
  TooltipsZeigen(s);
  EingabenZeigen(s);
  AusgabenZeigen(s);
  KopierknopfZeigen(s);
  status_->Zeigen(s, kataloge_);
  if (zuletzt_ != s.zuletztBenutzt) ZuletztZeigen(*menuBar(), zuletzt_ = s.zuletztBenutzt, ablauf_);
}

void frmVesk::VerlaufZeigen(bool zurueck, bool vor) {
  const auto zeigen = [this](const char* name, bool moeglich, const QString& gesperrt) {
    Aktion(name).setEnabled(moeglich);
    Aktion(name).setToolTip(moeglich ? QString() : gesperrt);
  };
  zeigen("mnuRueckgaengig", zurueck, u"Es ist noch nichts geändert."_s);
  zeigen("mnuWiederholen", vor, u"Es ist nichts rückgängig gemacht."_s);
}

void frmVesk::ModusZeigen(const Station& s) {
  const Modustexte& texte = TexteDesModus(s);
  lblModus->setProperty("Tag", QString::fromUtf8(texte.tag));
  Faerben(*lblModus, farben::HellGrau, texte.farbe);
  Beschriften(*lblPWR, Eingabe(Eingabefeld::PWR), texte.lblPWR);
  Schreiben(*lblSicherheit, texte.lblSicherheit);
  if (!s.modusGewechselt) return;
  Schreiben(*lblModus, texte.lblModus);
  Aktion("mnuAbstand").setText(QString::fromUtf8(texte.mnuAbstand));
}

void frmVesk::SchalterZeigen(const Station& s) {
  const Einstellungen& e = s.einstellungen;
  Beschriften(*lblQRG, Eingabe(Eingabefeld::QRG), e.AFu ? "AFu-Band [MHz]" : "Betriebsfrequenz [MHz]");
  Aktion("mnuAFu").setChecked(e.AFu);
  Aktion("mnuToolTips").setChecked(e.ToolTips);
  Aktion("mnuMeldungen").setChecked(e.Meldungen);
  Aktion("mnuFenster").setChecked(e.Fenster);
  const QString erst = u"Erst nach „Antrag stellen“, „Datenblatt ausfüllen“."_s;
  const std::pair<const char*, QString> dateien[] = {{"mnuDateiLaden", u" Strg+O geht immer."_s},
                                                     {"mnuDateiSpeichern", u" Strg+S geht immer."_s},
                                                     {"mnuDateiSpeichernUnter", QString()}};
  for (const auto& [name, immer] : dateien) {
    Aktion(name).setEnabled(s.fenster.dateimenue);
    Aktion(name).setToolTip(s.fenster.dateimenue ? QString() : erst + immer);
  }
}

void frmVesk::TooltipsZeigen(const Station& s) {
  const bool an = s.einstellungen.ToolTips;
  const bool afu = s.einstellungen.AFu;
  TooltipsSetzen(*this, HauptTooltips(), an);
  TooltipsSetzen(*this, HauptTooltipsModus(s.modus == Modus::Leistung), an);
  if (s.modustipsVomSchalter) {
    const Modustexte& texte = TexteDesModus(s);
    Eingabe(Eingabefeld::PWR).setToolTip(QString::fromUtf8(texte.tipPWR));
    Ausgabe(Feld::AusgabeOhneHSM).setToolTip(QString::fromUtf8(texte.tipAusgabe));
    lblModus->setToolTip(QString::fromUtf8(texte.tipModus));
  }
  const QString tipAFu = afu ? u"Klick zum Umschalten auf frequenzgenaue Berechnung"_s
                             : u"Klick zum Umschalten auf AFu-Berechnung"_s;
  lblQRG->setToolTip(an || s.afutipVomSchalter ? tipAFu : QString());
  Aktion("mnuAFu").setToolTip(
      afu ? u"Berechnung für Amateurfunk mit dem ungünstigsten Wert je Band. (Eingabe: 1, 3, 7, 14 etc.)"_s
          : u"Frequenzeingabe [MHz]. Berechnung exakt für die eingegebene Frequenz."_s);
}

void frmVesk::EingabenZeigen(const Station& s) {
  for (std::size_t i = 0; i < eingaben_.size(); ++i) {
    Schreiben(*eingaben_.at(i), s.werte.*Eingabetexte.at(i));
  }
  Markieren(Eingabe(Eingabefeld::QRG), s.markeQRG);
  Zahlenfeld& pwr = Eingabe(Eingabefeld::PWR);
  const Ergebnis* ganzes = Ganzes(s);
  if (s.modus == Modus::Abstand || s.markePWR == Pruefmarke::Fehlt) {
    Markieren(pwr, s.markePWR);
  } else if (ganzes != nullptr && ganzes->zahlen.Nahfeldflags != 0) {
    Faerben(pwr, farben::Nahfeld);
  } else {
    Faerben(pwr, ganzes != nullptr || s.markePWR == Pruefmarke::Gut ? farben::Weiss : farben::HellCyan);
  }
}

void frmVesk::AusgabenZeigen(const Station& s) {
  Feldtexte texte;
  List1->clear();
  if (s.ergebnis) {
    texte = Ausgabetexte(s.ergebnis->zahlen, Dezimaltrenner());
    const HSMvdeWerte& vde = s.ergebnis->zahlen.grenzwerte.hsmVDE;
    for (int i = 0; i < vde.Anzahl; ++i) {
      List1->addItem(QString::fromStdString(Kandidatentext(vde.Kandidaten.at(static_cast<std::size_t>(i)))));
    }
  } else if (s.koepfe) {
    Kopftexte(*s.koepfe, Dezimaltrenner(), texte);
  }
  const Ausgabefarben farbe = FarbenDerAusgaben(s);
  Ergebniswerte werte = Hauptwerte(s, texte);
  for (std::size_t i = 0; i < werte.size(); ++i) {
    QLineEdit& feld = Ausgabe(Ausgabefolge.at(i));
    const QColor& grund = farbe.at(static_cast<std::size_t>(Ausgabefolge.at(i)));
    ErgebnisZeigen(feld, werte[i], grund);
    feld.setPlaceholderText(Platzhalter(grund));
  }
  ansage_->Zeigen(std::move(werte));
  Schreiben(*lblHinweis, Farbensinn(s));
  for (std::size_t i = 0; i < koepfe_.size(); ++i) {
    const auto feld = static_cast<Feld>(static_cast<std::size_t>(Feld::KopfOhneHSM) + i);
    Schreiben(*koepfe_.at(i), texte[feld].value_or(Koepfe.at(i)));
  }
  Schreiben(*lblStrahlung, s.StrahlungTitel);
}

void frmVesk::KopierknopfZeigen(const Station& s) {
  const std::string spalte = NaechsteFreieSpalte(s.Zellen);
  Schreiben(*cmdCopy, spalte.empty() ? "Datenblatt voll" : "Kopieren in Spalte " + spalte);
  const bool kopierbar = Kopierbar(s);
  // Disabling it would send the focus anywhere.
  if (!kopierbar && focusWidget() == cmdCopy) cmdBerechnen->setFocus(Qt::OtherFocusReason);
  Sperren(*cmdCopy, QString::fromStdString(WarumNichtKopierbar(s)));
}

}  // namespace vesk
