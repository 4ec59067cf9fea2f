#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "Farben.h"
#include "Zustand.h"
#include "frmVesk.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// Both pacemaker columns carry the same colour after a calculation.
constexpr QColor Farbe306 = farben::HellRot;
constexpr QColor FarbeVDE = farben::HellRot;

void Schreiben(QLabel& label, const std::optional<std::string>& text) {
  if (text) label.setText(QString::fromStdString(*text));
}

/// A number longer than its field shows its head, not its tail.
void Schreiben(QLineEdit& feld, const std::optional<std::string>& text) {
  if (!text) return;
  feld.setText(QString::fromStdString(*text));
  feld.setCursorPosition(0);
}

}  // namespace

void frmVesk::WertNull() {
  for (const Eingabe& eingabe : eingaben_) eingabe.feld->clear();
  WertAusgabeNull();
}

void frmVesk::WertAusgabeNull() {
  for (QLineEdit* feld :
       {txtStrahlung, txtNahfeld, txtFernfeld, txtGrenzwert, txtGrenzwertHSMvde, txtGrenzwertHSM306,
        txtUssVDE, txtUssHSM306, txtAusgabe, txtAusgabeHSMvde, txtAusgabeHSM306}) {
    feld->clear();
  }
  KoepfeZuruecksetzen();
  KopierenErlauben(false);
  Hintergrund(*txtNahfeld, farben::HellGrau);
  Hintergrund(*txtAusgabeHSM306, farben::HellRot);
  Hintergrund(*txtAusgabeHSMvde, farben::HellGelb);
  FeldFarben();
}

void frmVesk::FeldFarben() {
  if (modus() == Modus::Abstand) {
    HintergrundDesThemas(*txtPWR);
    Hintergrund(*txtAusgabe, farben::HellGruen);
    Hintergrund(*txtAusgabeHSMvde, farben::HellGelb);
    Hintergrund(*txtAusgabeHSM306, farben::HellRot);
  } else {
    for (QLineEdit* feld :
         {static_cast<QLineEdit*>(txtPWR), txtAusgabe, txtAusgabeHSMvde, txtAusgabeHSM306}) {
      Hintergrund(*feld, farben::HellCyan);
    }
  }
}

void frmVesk::KoepfeZuruecksetzen() {
  lblOhneHSM->setText(u"ohne HSM"_s);
  lblMitHSM->setText(u"HSM VDE"_s);
  lblHSM306->setText(u"HSM 306"_s);
}

void frmVesk::KoepfeZeigen(const Feldtexte& texte) {
  Schreiben(*lblOhneHSM, texte[Feld::KopfOhneHSM]);
  Schreiben(*lblMitHSM, texte[Feld::KopfHSMvde]);
  Schreiben(*lblHSM306, texte[Feld::KopfHSM306]);
}

void frmVesk::HSMBlockFaerben(float Uss, bool nahfeld, const std::array<QLineEdit*, 3>& felder,
                              const QColor& farbeUss, const QColor& farbe) {
  const auto& [uss, grenzwert, ausgabe] = felder;
  if (Uss == 0) {
    for (QLineEdit* feld : felder) Hintergrund(*feld, farben::Grau);
    return;
  }
  Hintergrund(*uss, farbeUss);
  Hintergrund(*grenzwert, farbe);
  Hintergrund(*ausgabe, nahfeld && modus() == Modus::Abstand ? farben::Nahfeld : farbe);
}

void frmVesk::ErgebnisZeigen(const Rechenergebnis& ergebnis, const Feldtexte& texte, float faktor) {
  List1->clear();
  const HSMvdeWerte& vde = ergebnis.grenzwerte.hsmVDE;
  for (int i = 0; i < vde.Anzahl; ++i) {
    List1->addItem(QString::fromStdString(Kandidatentext(vde.Kandidaten.at(static_cast<std::size_t>(i)))));
  }
  if (!Ausgeben()) return;

  const std::pair<QLineEdit*, Feld> felder[] = {
      {txtStrahlung, Feld::Strahlung},
      {txtGrenzwert, Feld::GrenzwertOhneHSM},
      {txtGrenzwertHSMvde, Feld::GrenzwertHSMvde},
      {txtGrenzwertHSM306, Feld::GrenzwertHSM306},
      {txtUssVDE, Feld::UssVDE},
      {txtUssHSM306, Feld::Uss306},
      {txtAusgabe, Feld::AusgabeOhneHSM},
      {txtAusgabeHSMvde, Feld::AusgabeHSMvde},
      {txtAusgabeHSM306, Feld::AusgabeHSM306},
      {txtNahfeld, Feld::Nahfeld},
      {txtFernfeld, Feld::Fernfeld},
  };
  for (const auto& [feld, art] : felder) Schreiben(*feld, texte[art]);
  Schreiben(*lblStrahlung, texte[Feld::StrahlungTitel]);
  txtStrahlung->setAccessibleName(lblStrahlung->text());
  if (!ergebnis.vollstaendig) return;

  const int flags = ergebnis.Nahfeldflags;
  const bool abstand = ergebnis.modus == Modus::Abstand;
  if (abstand) {
    const QColor& farbe = faktor < 1.0F ? farben::Gruen : farben::HellGruen;
    Hintergrund(*txtAusgabe, (flags & NahfeldOhneHSM) != 0 ? farben::Nahfeld : farbe);
  }
  HSMBlockFaerben(ergebnis.grenzwerte.hsm306.Uss, (flags & NahfeldHSM306) != 0,
                  {txtUssHSM306, txtGrenzwertHSM306, txtAusgabeHSM306}, farben::HellRot, Farbe306);
  HSMBlockFaerben(vde.Uss, (flags & NahfeldHSMvde) != 0, {txtUssVDE, txtGrenzwertHSMvde, txtAusgabeHSMvde},
                  farben::HellGelb, FarbeVDE);
  Hintergrund(*txtNahfeld, flags != 0 ? farben::Nahfeld : farben::HellGrau);
  if (!abstand) Hintergrund(*txtPWR, flags != 0 ? farben::Nahfeld : farben::Weiss);
}

}  // namespace vesk
