#include "Programm.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "Datenblatthilfe.h"
#include "Dezimaltrenner.h"
#include "Meldung.h"
#include "OptionenHilfe.h"
#include "Spaltenkopie.h"
#include "Zahlen.h"
#include "frmInfo.h"
#include "frmLstg.h"
#include "frmTip.h"

using namespace Qt::StringLiterals;

namespace vesk {

Programm::Programm(Zustand& zustand, Plattform& plattform, const Verzeichnisse& verzeichnisse)
    : zustand_(zustand),
      plattform_(plattform),
      hauptfenster_(zustand_, plattform),
      datenblatt_(zustand_, plattform),
      benutzer_(zustand_, plattform, &hauptfenster_),
      verbund_(zustand_, plattform, hauptfenster_, datenblatt_),
      optionen_(zustand_, plattform, verbund_),
      ablauf_(zustand_, plattform, *this),
      hilfetaste_(plattform.hilfe) {
  qApp->installEventFilter(&hilfetaste_);
  verbund_.OptionenBekanntmachen(optionen_);
  zustand_.ProgrammVerzeichnis = verzeichnisse.programm.toStdString();
  zustand_.UserVerzeichnis = zustand_.Arbeitsverzeichnis = QDir::currentPath().toStdString();
  HauptfensterVerbinden();
  MenueVerbinden();
  DatenblattVerbinden();
  BenutzerfensterVerbinden();
}

Programm::~Programm() {
  hauptfenster_.Entschaerfen();
}

void Programm::Starten() {
  hauptfenster_.Aktion("mnuMeldungen").setChecked(true);
  datenblatt_.OptionenBeruecksichtigenSetzen(true);
  ablauf_.InitLaden();
  ablauf_.RettungAnbieten();

  hauptfenster_.show();
  const bool alle = hauptfenster_.Aktion("mnuFenster").isChecked();
  optionen_.Laden();
  if (alle) {
    optionen_.show();
    datenblatt_.show();
  }
  DateimenueSperren(!alle);
  const QString beimStart =
      plattform_.speicher.Lesen(u"Options"_s, u"Show Tips at Startup"_s).value_or(QString());
  if (beimStart.isEmpty()) plattform_.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"1"_s);
  if (beimStart.isEmpty() || beimStart.toInt() == 1) TipZeigen();

  if (hauptfenster_.Aktion("mnuAFu").property("Tag").toString().isEmpty()) {
    hauptfenster_.Aktion("mnuAFu").setChecked(true);
  }
  optionen_.Startfaktoren();
  QAction& tooltips = hauptfenster_.Aktion("mnuToolTips");
  tooltips.setChecked(tooltips.property("Tag").toString() != u"+" || tooltips.isChecked());
  TooltipsZeigen(tooltips.isChecked());
  verbund_.KopierknopfAuffrischen();
  hauptfenster_.Scharfschalten();
  hauptfenster_.activateWindow();
  constexpr int Sicherungstakt = 2000;  // ms; more than this is never lost
  auto* takt = new QTimer(this);
  connect(takt, &QTimer::timeout, this, &Programm::RettungSichern);
  takt->start(Sicherungstakt);
}

std::function<void()> Programm::Antwort(std::function<void()> tun) {
  return [this, tun = std::move(tun)] { Abgefangen(plattform_.boxen, zustand_.werte, tun); };
}

void Programm::Bei(const char* menue, std::function<void()> tun) {
  connect(&hauptfenster_.Aktion(menue), &QAction::triggered, this, Antwort(std::move(tun)));
}

void Programm::HauptfensterVerbinden() {
  const auto an = [this](auto signal, void (Programm::*tun)()) {
    connect(&hauptfenster_, signal, this, Antwort([this, tun] { (this->*tun)(); }));
  };
  an(&frmVesk::berechnenVerlangt, &Programm::BerechnenKnopf);
  connect(&hauptfenster_, &frmVesk::berechnenLosgelassen, this,
          [this] { QTimer::singleShot(0, this, Antwort([this] { NachQrgWechsel(); })); });
  an(&frmVesk::kopierenVerlangt, &Programm::Kopieren);
  an(&frmVesk::qrgVerlassen, &Programm::QrgVerlassen);
  an(&frmVesk::modusGeklickt, &Programm::ModusGeklickt);
  an(&frmVesk::geschlossen, &Programm::Beenden);
  connect(&hauptfenster_, &frmVesk::pwrVerlassen, &optionen_, &frmOptions::AntEinPWRSetzen);
  connect(&hauptfenster_, &frmVesk::qrgGeklickt, this, [this] { hauptfenster_.Aktion("mnuAFu").trigger(); });
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* fenster) {
    if (fenster == nullptr) return;
    if (fenster == hauptfenster_.windowHandle()) HauptfensterAktiviert();
    letztesFenster_ = fenster;
  });
}

void Programm::MenueVerbinden() {
  Bei("mnuDateiLaden", [this] { ablauf_.Laden(); });
  Bei("mnuDateiSpeichern", [this] { ablauf_.Speichern(); });
  Bei("mnuDateiSpeichernUnter", [this] { ablauf_.UserSpeichernUnter(); });
  Bei("mnuEnde", [this] { Beenden(); });
  Bei("mnuMoreOptions", [this] {
    optionen_.show();
    optionen_.activateWindow();
  });
  Bei("mnuAFu", [this] { AFuUmgeschaltet(); });
  Bei("mnuAbstand", [this] { AbstandUmschalten(); });
  Bei("mnuUmrechnung", [this] { LeistungsumrechnungZeigen(); });
  Bei("mnuToolTips", [this] { TooltipsUmschalten(); });
  Bei("mnuMeldungen", [this] { WarnmeldungenUmschalten(); });
  Bei("mnuFenster", [this] { FensterUmschalten(); });
  Bei("mnuUser", [this] { BenutzerZeigen(); });
  Bei("mnuDatenblatt", [this] { DatenblattZeigen(); });
  QAction& drucken = hauptfenster_.Aktion("mnuAntragDrucken");
  drucken.setEnabled(false);
  drucken.setToolTip(u"Das Drucken kommt mit einer späteren Version."_s);
  Bei("mnuTip1", [this] { TipZeigen(); });
  Bei("mnuInfo", [this] { InfoZeigen(); });
  Bei("mnuAnleitung", [this] { plattform_.hilfe.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 1030); });
  Bei("mnuHilfeBenutzen", [this] { plattform_.hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::HilfeBenutzen, 0); });
}

void Programm::DatenblattVerbinden() {
  const auto an = [this](auto signal, std::function<void()> tun) {
    connect(&datenblatt_, signal, this, Antwort(std::move(tun)));
  };
  an(&frmDatenblatt::zelleGeklickt, [this] { verbund_.Spalten().ZelleGeklickt(); });
  an(&frmDatenblatt::kopfGeklickt, [this] { verbund_.Spalten().KopfGeklickt(); });
  an(&frmDatenblatt::rechnen, [this] { verbund_.Spalten().Rechnen(); });
  an(&frmDatenblatt::belegungGeaendert, [this] { verbund_.KopierknopfAuffrischen(); });
  an(&frmDatenblatt::optionenAnzeigen, [this] { optionen_.SatzLaden(); });
  an(&frmDatenblatt::kopierenFreigeben, [this] { verbund_.KopierenFreigeben(); });
  an(&frmDatenblatt::dateiLaden, [this] { ablauf_.Laden(); });
  an(&frmDatenblatt::dateiSpeichern, [this] { ablauf_.Speichern(); });
  an(&frmDatenblatt::dateiSpeichernUnter, [this] { ablauf_.UserSpeichernUnter(); });
  an(&frmDatenblatt::noChange, [this] { ablauf_.AenderungenVerwerfen(); });
  an(&frmDatenblatt::beenden, [this] {
    verbund_.KopierknopfAuffrischen();
    optionen_.hide();
  });
  an(&frmDatenblatt::ende, [this] { Beenden(); });
}

void Programm::BenutzerfensterVerbinden() {
  const auto an = [this](auto signal, std::function<void()> tun) {
    connect(&benutzer_, signal, this, Antwort(std::move(tun)));
  };
  an(&frmUser::UserNeu, [this] { ablauf_.UserNeu(); });
  an(&frmUser::UserLaden, [this] { ablauf_.Laden(); });
  an(&frmUser::UserSpeichern, [this] { ablauf_.UserSpeichern(); });
  an(&frmUser::UserSpeichernUnter, [this] { ablauf_.UserSpeichernUnter(); });
  an(&frmUser::NoChange, [this] { ablauf_.AenderungenVerwerfen(); });
  an(&frmUser::verborgen, [this] { ablauf_.BenutzerfensterVerborgen(); });
}

void Programm::BerechnenKnopf() {
  Rechenwerte& werte = zustand_.werte;
  rechnungSteht_ = false;
  hauptfenster_.Uebernehmen();
  werte.LetzteSpalte = werte.Spalte;
  werte.Spalte = 0;
  verbund_.Spalten().MarkenZuruecknehmen();
  werte.Pruefergebnis = hauptfenster_.EingabenGueltig();
  if (werte.Pruefergebnis) {
    verbund_.Berechnen(true);
  } else {
    verbund_.EingabeHinweis();
  }
}

void Programm::Kopieren() {
  hauptfenster_.Uebernehmen();
  optionen_.ArbeitssatzAuffrischen();
  if (!InFreieSpalteKopieren(zustand_, verbund_)) return;
  hauptfenster_.NachKopieren();
  verbund_.KopierknopfAuffrischen();
}

void Programm::AFuUmgeschaltet() {
  Rechenwerte& werte = zustand_.werte;
  rechnungSteht_ = false;
  hauptfenster_.Uebernehmen();
  hauptfenster_.AFuZeigen();
  zustand_.UserGeaendert = true;
  const float qrg = Zahl(werte.QRGText);
  if (qrg > 0 && Zahl(werte.PWRText) > 0) {
    verbund_.Berechnen(true);
  } else if (qrg > 0) {
    verbund_.Bandlogik(qrg, true);
  } else {
    hauptfenster_.KoepfeZuruecksetzen();
  }
}

void Programm::AbstandUmschalten() {
  hauptfenster_.Uebernehmen();
  zustand_.UserGeaendert = true;
  hauptfenster_.switchLeistung();
}

void Programm::ModusGeklickt() {
  hauptfenster_.Uebernehmen();
  hauptfenster_.switchLeistung();
  verbund_.Spalten().Rechnen();
}

void Programm::QrgVerlassen() {
  const std::string vorher = zustand_.werte.QRGText;
  hauptfenster_.TexteUebernehmen();
  const std::string& text = zustand_.werte.QRGText;
  if (text == vorher) return;
  // The focus must settle before a warning opens; otherwise a click on "=" would be lost to the box.
  rechnungSteht_ = true;
  QTimer::singleShot(0, this, Antwort([this] { NachQrgWechsel(); }));
}

void Programm::NachQrgWechsel() {
  // Pressed, the calculate button decides; let go beside it, it comes back here.
  if (!rechnungSteht_ || hauptfenster_.BerechnenGedrueckt()) return;
  rechnungSteht_ = false;
  if (zustand_.werte.Spalte != 0) return;
  hauptfenster_.TexteUebernehmen();
  const float qrg = Zahl(zustand_.werte.QRGText);
  if (qrg <= 0) return;
  optionen_.HauptfrequenzUebernehmen(QString::fromStdString(zustand_.werte.QRGText));
  if (Zahl(zustand_.werte.PWRText) > 0) {
    verbund_.Berechnen(true);
  } else {
    verbund_.Bandlogik(qrg, true);
  }
}

void Programm::TooltipsUmschalten() {
  zustand_.UserGeaendert = true;
  TooltipsZeigen(hauptfenster_.Aktion("mnuToolTips").isChecked());
}

void Programm::WarnmeldungenUmschalten() {
  zustand_.UserGeaendert = true;
  if (!hauptfenster_.MeldungenAn()) return;
  // Whoever switches the warnings on wants to see them all again.
  Einstellungen& e = zustand_.einstellungen;
  e.HSMHinweisAus = e.NahfeldHinweisAus = e.FaktorMeldungAus = false;
}

void Programm::FensterUmschalten() {
  zustand_.UserGeaendert = true;
  const bool zeigen = hauptfenster_.Aktion("mnuFenster").isChecked();
  datenblatt_.setVisible(zeigen);
  optionen_.setVisible(zeigen);
}

void Programm::DatenblattZeigen() {
  optionen_.show();
  datenblatt_.show();
  datenblatt_.activateWindow();
  DateimenueSperren(false);
}

void Programm::BenutzerZeigen() {
  benutzer_.setWindowModality(Qt::ApplicationModal);
  benutzer_.show();
}

void Programm::LeistungsumrechnungZeigen() {
  if (!leistung_) {
    leistung_ = std::make_unique<frmLstg>(plattform_, zustand_.werte, Dezimaltrenner(), &hauptfenster_);
    leistung_->ToolTips(hauptfenster_.Aktion("mnuToolTips").isChecked());
  }
  leistung_->show();
  leistung_->activateWindow();
}

void Programm::TipZeigen() {
  if (!tip_) {
    const QString datei = QString::fromStdString(zustand_.ProgrammVerzeichnis) + "/TIPOFDAY.TXT"_L1;
    tip_ = std::make_unique<frmTip>(plattform_.speicher, datei, &hauptfenster_);
  }
  tip_->show();
  tip_->activateWindow();
}

void Programm::InfoZeigen() {
  if (!info_) info_ = std::make_unique<frmInfo>(&hauptfenster_);
  info_->setWindowModality(Qt::ApplicationModal);
  info_->show();
}

void Programm::TooltipsZeigen(bool an) {
  hauptfenster_.TooltipsZeigen(an);
  OptionenTooltips(optionen_, an);
  TooltipsSetzen(datenblatt_, DatenblattTooltips, an);
  benutzer_.TooltipsZeigen(an);
  if (leistung_) leistung_->ToolTips(an);
}

void Programm::HauptfensterAktiviert() {
  // Only who comes from another window of the program turns away from its column; a box that closes, a dialog
  // or another program in between changes nothing.
  const QWindow* vorher = letztesFenster_;
  if (vorher == nullptr || vorher == hauptfenster_.windowHandle() || vorher->modality() != Qt::NonModal)
    return;
  if (verbund_.RechnungLaeuft() || verbund_.Spalten().Laeuft()) return;
  zustand_.werte.LetzteSpalte = zustand_.werte.Spalte;
  zustand_.werte.Spalte = 0;
  datenblatt_.MarkierungAufheben();
}

void Programm::DateimenueSperren(bool gesperrt) {
  for (const char* name : {"mnuDateiLaden", "mnuDateiSpeichern", "mnuDateiSpeichernUnter"}) {
    hauptfenster_.Aktion(name).setEnabled(!gesperrt);
  }
}

void Programm::RettungSichern() {
  ablauf_.RettungSichern();
}

void Programm::Beenden() {
  // Hiding and asking take the focus away; that is no leaving of a field.
  rechnungSteht_ = false;
  hauptfenster_.Entschaerfen();
  if (!ablauf_.Beenden()) {
    hauptfenster_.Scharfschalten();
    return;
  }
  plattform_.hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Beenden, 0);
  Q_EMIT beendet();
}

void Programm::SchalterLesen(Einstellungen& einstellungen) const {
  einstellungen.ToolTips = hauptfenster_.Aktion("mnuToolTips").isChecked();
  einstellungen.AFu = hauptfenster_.AFu();
  einstellungen.Fenster = hauptfenster_.Aktion("mnuFenster").isChecked();
  einstellungen.Meldungen = hauptfenster_.MeldungenAn();
}

void Programm::Abschliessen() {
  benutzer_.Abschliessen();
}

void Programm::StandZeigen(const Lesebericht& bericht) {
  const Einstellungen& e = zustand_.einstellungen;
  hauptfenster_.Aktion("mnuToolTips").setChecked(e.ToolTips);
  hauptfenster_.Aktion("mnuAFu").setChecked(e.AFu);
  hauptfenster_.Aktion("mnuFenster").setChecked(e.Fenster);
  hauptfenster_.Aktion("mnuMeldungen").setChecked(e.Meldungen);
  if (bericht.ToolTips) hauptfenster_.Aktion("mnuToolTips").setProperty("Tag", u"+"_s);
  if (bericht.AFu) hauptfenster_.Aktion("mnuAFu").setProperty("Tag", u"+"_s);
  benutzer_.Fuellen();
  datenblatt_.Fuellen(bericht.Spalten);
}

void Programm::NachLadenAuffrischen() {
  zustand_.werte.LetzteSpalte = zustand_.werte.Spalte;
  zustand_.werte.Spalte = 0;
  datenblatt_.MarkierungAufheben();
  TooltipsZeigen(hauptfenster_.Aktion("mnuToolTips").isChecked());
  verbund_.KopierknopfAuffrischen();
}

void Programm::TitelSetzen(const QString& benutzer, const QString& haupt, const QString& datenblatt) {
  benutzer_.setWindowTitle(benutzer);
  hauptfenster_.setWindowTitle(haupt);
  datenblatt_.setWindowTitle(datenblatt);
}

void Programm::BenutzerfensterVerbergen() {
  benutzer_.hide();
}

void Programm::BenutzerNeuBeginnen() {
  BenutzerZeigen();
  benutzer_.NeuBeginnen();
}

bool Programm::DatenblattLoeschen() {
  return datenblatt_.DatenblattLoeschen();
}

}  // namespace vesk
