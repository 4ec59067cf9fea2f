#include "Programm.h"

#include <QAction>
#include <QTimer>

#include "Datenblatt.h"
#include "Meldung.h"
#include "Zahlen.h"

namespace vesk {

Programm::Programm(Plattform& plattform)
    : plattform_(plattform),
      hauptfenster_(zustand_, plattform),
      rechengang_(zustand_, plattform, hauptfenster_,
                  [this](const Rechenergebnis& ergebnis, const Feldtexte&) {
                    if (!ergebnis.vollstaendig) return;
                    KopierknopfAuffrischen();
                    hauptfenster_.KopierenErlauben(!NaechsteFreieSpalte(zustand_.Zellen).empty());
                  }) {
  HauptfensterVerbinden();
}

Programm::~Programm() = default;

void Programm::Starten() {
  hauptfenster_.show();
  hauptfenster_.Aktion("mnuAFu").setChecked(true);
  hauptfenster_.Aktion("mnuMeldungen").setChecked(true);
  hauptfenster_.Aktion("mnuToolTips").setChecked(true);
  hauptfenster_.TooltipsZeigen(true);
  KopierknopfAuffrischen();
  hauptfenster_.Scharfschalten();
}

void Programm::Antworten(const std::function<void()>& tun) {
  try {
    tun();
  } catch (const Laufzeitfehler& fehler) {
    Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(fehler.art));
  }
}

void Programm::Bei(const char* menue, const std::function<void()>& tun) {
  connect(&hauptfenster_.Aktion(menue), &QAction::triggered, this, [this, tun] { Antworten(tun); });
}

void Programm::HauptfensterVerbinden() {
  const auto antwort = [this](void (Programm::*tun)()) {
    return [this, tun] { Antworten([this, tun] { (this->*tun)(); }); };
  };
  connect(&hauptfenster_, &frmVesk::berechnenVerlangt, this, antwort(&Programm::BerechnenKnopf));
  connect(&hauptfenster_, &frmVesk::qrgVerlassen, this, antwort(&Programm::QrgVerlassen));
  connect(&hauptfenster_, &frmVesk::modusGeklickt, this, antwort(&Programm::ModusGeklickt));
  connect(&hauptfenster_, &frmVesk::qrgGeklickt, this, [this] { hauptfenster_.Aktion("mnuAFu").trigger(); });
  connect(&hauptfenster_, &frmVesk::geschlossen, this, antwort(&Programm::Beenden));

  Bei("mnuEnde", [this] { Beenden(); });
  Bei("mnuAFu", [this] { AFuUmgeschaltet(); });
  Bei("mnuAbstand", [this] { AbstandUmschalten(); });
  Bei("mnuToolTips", [this] {
    zustand_.UserGeaendert = true;
    hauptfenster_.TooltipsZeigen(hauptfenster_.Aktion("mnuToolTips").isChecked());
  });
  Bei("mnuMeldungen", [this] {
    zustand_.UserGeaendert = true;
    if (!hauptfenster_.MeldungenAn()) return;
    // Whoever switches the warnings on wants to see them all again.
    Einstellungen& e = zustand_.einstellungen;
    e.HSMHinweisAus = e.NahfeldHinweisAus = e.FaktorMeldungAus = false;
  });
  for (const char* name : {"mnuDateiLaden", "mnuDateiSpeichern", "mnuDateiSpeichernUnter", "mnuMoreOptions",
                           "mnuUmrechnung", "mnuFenster", "mnuUser", "mnuDatenblatt", "mnuAntragDrucken",
                           "mnuTip1", "mnuAnleitung", "mnuHilfeBenutzen", "mnuInfo"}) {
    hauptfenster_.Aktion(name).setEnabled(false);
  }
}

void Programm::BerechnenKnopf() {
  Rechenwerte& werte = zustand_.werte;
  rechnungSteht_ = false;
  hauptfenster_.Uebernehmen();
  werte.LetzteSpalte = werte.Spalte;
  werte.Spalte = 0;
  werte.Pruefergebnis = hauptfenster_.EingabenGueltig();
  if (!werte.Pruefergebnis) {
    Zeigen(plattform_.boxen, werte, EingabeHinweis());
    return;
  }
  rechengang_.Berechnen(true);
}

void Programm::AFuUmgeschaltet() {
  Rechenwerte& werte = zustand_.werte;
  hauptfenster_.Uebernehmen();
  hauptfenster_.AFuZeigen();
  zustand_.UserGeaendert = true;
  const float qrg = Zahl(werte.QRGText);
  if (qrg > 0 && Zahl(werte.PWRText) > 0) {
    rechengang_.Berechnen(true);
  } else if (qrg > 0) {
    rechengang_.Bandlogik(qrg, true);
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
}

void Programm::QrgVerlassen() {
  const std::string vorher = zustand_.werte.QRGText;
  hauptfenster_.TexteUebernehmen();
  const std::string& text = zustand_.werte.QRGText;
  if (text == vorher || Zahl(text) <= 0) return;

  // The focus must settle before a warning opens; otherwise a click on "=" would be lost to the box.
  rechnungSteht_ = true;
  QTimer::singleShot(0, this, [this] { Antworten([this] { NachQrgWechsel(); }); });
}

void Programm::NachQrgWechsel() {
  if (!rechnungSteht_) return;
  rechnungSteht_ = false;
  if (hauptfenster_.BerechnenGedrueckt()) return;
  hauptfenster_.TexteUebernehmen();
  const float qrg = Zahl(zustand_.werte.QRGText);
  if (qrg <= 0) return;
  if (Zahl(zustand_.werte.PWRText) > 0) {
    rechengang_.Berechnen(true);
  } else {
    rechengang_.Bandlogik(qrg, true);
  }
}

void Programm::KopierknopfAuffrischen() {
  hauptfenster_.KopierknopfZeigen(QString::fromStdString(NaechsteFreieSpalte(zustand_.Zellen)));
}

void Programm::Beenden() {
  Q_EMIT beendet();
}

}  // namespace vesk
