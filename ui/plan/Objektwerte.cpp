#include "ui/plan/Objektwerte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "station/Spalten.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/plan/Planaenderung.h"
#include "ui/plan/Planfeld.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr std::array<QStringView, 3> Ebenen = {u"ohne Winkeltabelle", u"waagerecht", u"senkrecht"};

void Auswaehlen(QComboBox& box, int wahl) {
  if (box.currentIndex() != wahl) box.setCurrentIndex(wahl);
}

/// Height and main direction of an antenna as the data sheet has them, column by column.
QString Spaltenzeilen(const Station& s, const Planobjekt& antenne) {
  QStringList zeilen;
  for (int i = 0; i < AnzahlSpalten; ++i) {
    if (!antenne.spalten.test(static_cast<std::size_t>(i))) continue;
    const QString hoehe = QString::fromStdString(Zelle(s, i + 1, ZeileHoehe));
    const QString richtung = QString::fromStdString(Zelle(s, i + 1, ZeileRichtung));
    zeilen << u"%1: %2 m, %3"_s.arg(QChar(u'A' + i))
                  .arg(hoehe.isEmpty() ? u"?"_s : hoehe, richtung.isEmpty() ? u"?"_s : richtung);
  }
  return zeilen.isEmpty() ? u"noch keine Spalte"_s : zeilen.join(u'\n');
}

}  // namespace

Objektwerte::Objektwerte(Ablauf& ablauf, QWidget* eltern)
    : QWidget(eltern),
      ablauf_(ablauf),
      zeilen_(new QFormLayout(this)),
      txtObjektname(new Planfeld(ablauf, u"txtObjektname"_s, u"Name des Objekts"_s, Plantext(), this)),
      spaltenwahl_(new QWidget(this)),
      lblAntenne(new QLabel(this)),
      drehung_(new QWidget(this)) {
  zeilen_->setContentsMargins(0, 0, 0, 0);
  cboObjektart = AuswahlAnlegen(u"cboObjektart"_s, u"Art des Objekts"_s, nullptr);
  connect(cboObjektart, &QComboBox::activated, this, [this] {
    const auto art = static_cast<Planart>(cboObjektart->currentData().toInt());
    ablauf_.Tun(ObjektAendern(objekt_, [art](Planobjekt& o) { o.art = art; }));
  });
  connect(txtObjektname, &Planfeld::eingegeben, this, [this](const QString& text) {
    ablauf_.TunBeimTippen(*txtObjektname, ObjektAendern(objekt_, [name = text.toStdString()](Planobjekt& o) {
      o.name = name;
    }));
  });
  txtHoehe = FeldAnlegen(u"txtHoehe"_s, u"Höhe über Grund in Metern"_s, &Planobjekt::hoehe, 0,
                         plangrenzen::Hoehe, u"m"_s);
  txtRadius = FeldAnlegen(u"txtRadius"_s, u"Radius der Krone in Metern"_s, &Planobjekt::radius, 0,
                          plangrenzen::Radius, u"m"_s);
  cboNutzung = AuswahlAnlegen(u"cboNutzung"_s, u"Wer das Gebäude nutzt"_s,
                              [](Planobjekt& o, int wahl) { o.nutzung = static_cast<Nutzung>(wahl); });
  for (const char* name : Nutzungsnamen) cboNutzung->addItem(QString::fromUtf8(name));
  zeilen_->addRow(u"Art"_s, cboObjektart);
  zeilen_->addRow(u"Name"_s, txtObjektname);
  zeilen_->addRow(u"Höhe [m]"_s, txtHoehe);
  zeilen_->addRow(u"Krone, Radius [m]"_s, txtRadius);
  zeilen_->addRow(u"Gebäude"_s, cboNutzung);
  AntenneAnlegen();
}

void Objektwerte::AntenneAnlegen() {
  auto* spalten = new QHBoxLayout(spaltenwahl_);
  spalten->setContentsMargins(0, 0, 0, 0);
  spalten->setSpacing(2);
  for (std::size_t i = 0; i < chkSpalte.size(); ++i) {
    const QString buchstabe(QChar(u'A' + static_cast<char16_t>(i)));
    auto* kreuz = chkSpalte.at(i) = new QCheckBox(buchstabe, spaltenwahl_);
    kreuz->setObjectName(u"chkSpalte_%1"_s.arg(i));
    kreuz->setAccessibleName(u"Spalte %1 des Datenblatts"_s.arg(buchstabe));
    connect(kreuz, &QCheckBox::clicked, this, [this, i](bool an) {
      ablauf_.Tun(ObjektAendern(objekt_, [i, an](Planobjekt& o) { o.spalten.set(i, an); }));
    });
    spalten->addWidget(kreuz);
  }
  spalten->addStretch();
  lblAntenne->setObjectName(u"lblAntenne"_s);
  lblAntenne->setTextFormat(Qt::PlainText);
  lblAntenne->setWordWrap(true);
  chkDrehbar = new QCheckBox(u"drehbar"_s, drehung_);
  chkDrehbar->setObjectName(u"chkDrehbar"_s);
  connect(chkDrehbar, &QCheckBox::clicked, this,
          [this](bool an) { ablauf_.Tun(ObjektAendern(objekt_, [an](Planobjekt& o) { o.drehbar = an; })); });
  txtVon = FeldAnlegen(u"txtVon"_s, u"Drehbereich von, Grad von Nord"_s, &Planobjekt::von, 0, 360, u"Grad"_s);
  txtBis = FeldAnlegen(u"txtBis"_s, u"Drehbereich bis, Grad von Nord"_s, &Planobjekt::bis, 0, 720, u"Grad"_s);
  auto* drehung = new QHBoxLayout(drehung_);
  drehung->setContentsMargins(0, 0, 0, 0);
  drehung->addWidget(chkDrehbar);
  drehung->addWidget(txtVon);
  drehung->addWidget(new QLabel(u"bis"_s, drehung_));
  drehung->addWidget(txtBis);
  cboEbene = AuswahlAnlegen(u"cboEbene"_s, u"Ebene der Winkeltabellen"_s,
                            [](Planobjekt& o, int wahl) { o.ebene = static_cast<Winkelebene>(wahl); });
  for (const QStringView ebene : Ebenen) cboEbene->addItem(ebene.toString());
  zeilen_->addRow(u"Spalten"_s, spaltenwahl_);
  zeilen_->addRow(u"Höhe, Richtung"_s, lblAntenne);
  zeilen_->addRow(u"Rotor [°]"_s, drehung_);
  zeilen_->addRow(u"Winkel"_s, cboEbene);
}

Planfeld* Objektwerte::FeldAnlegen(const QString& name, const QString& zugang, double Planobjekt::*wert,
                                   double von, double bis, const QString& einheit) {
  auto* feld = new Planfeld(ablauf_, name, zugang, ZahlVon(von, bis, einheit), this);
  connect(feld, &Planfeld::eingegeben, this, [this, feld, wert](const QString& text) {
    ablauf_.TunBeimTippen(
        *feld, ObjektAendern(objekt_, [wert, zahl = Zahlwert(text)](Planobjekt& o) { o.*wert = zahl; }));
  });
  connect(feld, &Planfeld::beanstandet, this, &Objektwerte::hinweis);
  return feld;
}

QComboBox* Objektwerte::AuswahlAnlegen(const QString& name, const QString& zugang,
                                       void (*setzen)(Planobjekt&, int wahl)) {
  auto* box = new QComboBox(this);
  box->setObjectName(name);
  box->setAccessibleName(zugang);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  if (setzen != nullptr) {
    connect(box, &QComboBox::activated, this, [this, setzen](int wahl) {
      ablauf_.Tun(ObjektAendern(objekt_, [setzen, wahl](Planobjekt& o) { setzen(o, wahl); }));
    });
  }
  return box;
}

void Objektwerte::ArtenZeigen(Planart art) {
  const bool umriss = Artzeile(art).umriss;
  cboObjektart->clear();
  for (std::size_t i = 0; i < AnzahlPlanarten; ++i) {
    if (Planarten.at(i).umriss != umriss) continue;
    cboObjektart->addItem(QString::fromUtf8(Planarten.at(i).name), static_cast<int>(i));
  }
  Auswaehlen(*cboObjektart, cboObjektart->findData(static_cast<int>(art)));
}

void Objektwerte::Zeigen(const Station& s, const std::optional<std::size_t>& objekt) {
  setVisible(objekt.has_value());
  if (!objekt) return;
  objekt_ = *objekt;
  const Planobjekt& o = s.lageplan.objekte.at(*objekt);
  const bool antenne = o.art == Planart::Antenne;
  ArtenZeigen(o.art);
  txtObjektname->Zeigen(QString::fromStdString(o.name));
  txtHoehe->Zeigen(Zahltext(o.hoehe));
  txtRadius->Zeigen(Zahltext(o.radius));
  Auswaehlen(*cboNutzung, static_cast<int>(o.nutzung));
  zeilen_->setRowVisible(txtHoehe, Artzeile(o.art).hoehe);
  zeilen_->setRowVisible(txtRadius, o.art == Planart::Baum);
  zeilen_->setRowVisible(cboNutzung, o.art == Planart::Gebaeude);
  zeilen_->setRowVisible(spaltenwahl_, antenne);
  zeilen_->setRowVisible(lblAntenne, antenne);
  zeilen_->setRowVisible(drehung_, antenne);
  zeilen_->setRowVisible(cboEbene, antenne);
  if (antenne) AntenneZeigen(s, o);
}

void Objektwerte::AntenneZeigen(const Station& s, const Planobjekt& antenne) {
  for (std::size_t i = 0; i < chkSpalte.size(); ++i) chkSpalte.at(i)->setChecked(antenne.spalten.test(i));
  if (const QString text = Spaltenzeilen(s, antenne); lblAntenne->text() != text) lblAntenne->setText(text);
  chkDrehbar->setChecked(antenne.drehbar);
  const QString grund = antenne.drehbar ? QString() : u"Die Antenne ist nicht drehbar."_s;
  for (Planfeld* feld : {txtVon, txtBis}) Sperren(*feld, grund);
  txtVon->Zeigen(Zahltext(antenne.von));
  txtBis->Zeigen(Zahltext(antenne.bis));
  Auswaehlen(*cboEbene, static_cast<int>(antenne.ebene));
}

}  // namespace vesk
