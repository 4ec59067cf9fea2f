#include "ui/options/KabelTab.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "station/Ergebniswerte.h"
#include "station/Haupthandlungen.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Auswahlliste.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/basis/Zugang.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

struct Feldart {
  QStringView name;
  QStringView beschriftung;
};

/// In the order of Kabelfeld.
constexpr std::array<Feldart, Kabeltexte.size()> Feldarten = {{
    {u"QRG", u"Frequenz [MHz]"},
    {u"KabelLaenge", u"Kabellänge [m]"},
    {u"D100", u"Kabeldämpfung je 100m"},
    {u"Kabeldaempfung", u"Kabeldämpfung [dB]"},
    {u"Stecker", u"zusätzliche Dämpfung durch Stecker etc. [dB]"},
    {u"Gesamtdaempfung", u"Dämpfung gesamt [dB]"},
}};

/// Background of the loss per 100 m; a field that is locked is grey until a look-up says more.
QColor D100Grund(D100Farbe farbe, bool frei) {
  if (farbe == D100Farbe::Rot) return farben::Rot;
  return farbe == D100Farbe::Weiss || frei ? farben::Weiss : farben::HellGrau;
}

/// What the colours of the tab say, or why it has no result.
std::string Kabelhinweis(const Station& s, const Kataloge& k) {
  const Datenblattspalte& kabel = s.Datenblattspalten.front();
  if (Kabelindex(s, k) < 0) return "Bitte einen Kabeltyp wählen.";
  if (kabel.KabelLaenge.find_first_of("123456789") == std::string::npos)
    return "Ohne Kabellänge wird keine Kabeldämpfung berechnet.";
  if (s.farbeD100 == D100Farbe::Rot) {
    return AnderesKabelGewaehlt(s, k) ? "! Bitte die Dämpfung je 100 m eingeben."
                                      : "! Die Kabeltabelle gilt für 1 MHz bis 5 GHz.";
  }
  if (KabelAktuell(s)) return {};
  if (kabel.Kabeldaempfung.empty()) return "Noch nicht berechnet: Bitte „=“ drücken.";
  return "Veraltet: Die Dämpfung gehört zu anderen Eingaben. Bitte „=“ drücken.";
}

}  // namespace

KabelTab::KabelTab(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton) : kataloge_(kataloge) {
  Bauen(ton);
  Anordnen();
  Verbinden(ablauf);
}

void KabelTab::Bauen(Signalton& ton) {
  lstKabel = new Auswahlliste(this);
  lstKabel->setObjectName(u"lstKabel"_s);
  lstKabel->setAccessibleName(u"Kabeltyp"_s);
  lstKabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  MindestensBreit(*lstKabel, 20);
  for (const std::string& name : kataloge_.kabel.liste) lstKabel->addItem(QString::fromStdString(name));

  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const Feldart& art = Feldarten.at(i);
    auto* feld = felder_.at(i) = new Zahlenfeld(ton, this);
    feld->setObjectName(u"txt"_s + art.name.toString());
    feld->setAccessibleName(art.beschriftung.toString());
    feld->setAlignment(Qt::AlignRight);
    MindestensBreit(*feld, 13);
    auto* label = beschriftungen_.at(i) = new QLabel(art.beschriftung.toString(), this);
    label->setObjectName(u"lbl"_s + art.name.toString());
    label->setBuddy(feld);
  }

  cmdGleich = new QPushButton(u"="_s, this);
  cmdGleich->setObjectName(u"cmdGleich"_s);
  cmdGleich->setAccessibleName(u"Kabeldämpfung berechnen und übernehmen"_s);
  cmdGleich->setAutoDefault(true);
  cmdGleich->setDefault(true);

  lblKabelhinweis = new QLabel(this);
  lblKabelhinweis->setObjectName(u"lblKabelhinweis"_s);
  lblKabelhinweis->setWordWrap(true);
  lblKabelhinweis->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void KabelTab::Anordnen() {
  auto* rhmKabel = new QGroupBox(u"Kabeltyp"_s, this);
  rhmKabel->setObjectName(u"rhmKabel"_s);
  auto* rahmen = new QVBoxLayout(rhmKabel);
  rahmen->addWidget(lstKabel);

  auto* zeilen = new QGridLayout;
  std::vector<QWidget*> folge;
  int zeile = 0;
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    if (felder_.at(i) == FeldVon(Kabelfeld::Gesamtdaempfung)) {
      zeilen->addWidget(cmdGleich, zeile++, 1);
      folge.push_back(cmdGleich);
    }
    zeilen->addWidget(beschriftungen_.at(i), zeile, 0);
    zeilen->addWidget(felder_.at(i), zeile, 1);
    if (felder_.at(i) == FeldVon(Kabelfeld::D100)) zeilen->addWidget(new QLabel(u"dB"_s, this), zeile, 2);
    ++zeile;
    folge.push_back(felder_.at(i));
  }
  zeilen->addWidget(lblKabelhinweis, zeile, 0, 1, 3, Qt::AlignTop);
  MitSchrift(*lblKabelhinweis,
             [this] { lblKabelhinweis->setMinimumHeight(3 * lblKabelhinweis->fontMetrics().lineSpacing()); });
  zeilen->setRowStretch(zeile, 1);
  new Feldfolge(folge, this);

  auto* flaeche = new QHBoxLayout(this);
  flaeche->addWidget(rhmKabel, 1);
  flaeche->addSpacing(fontMetrics().height());
  flaeche->addLayout(zeilen);
  flaeche->addStretch(1);
}

void KabelTab::Verbinden(Ablauf& ablauf) {
  ansage_ = new Ansage(this);
  Zahlenfeld* txtQRG = FeldVon(Kabelfeld::QRG);
  connect(lstKabel, &Auswahlliste::gewaehlt, this,
          [&ablauf](int zeile) { ablauf.Tun(Mit(KabelGewaehlt, zeile)); });
  connect(lstKabel, &Auswahlliste::bestaetigt, txtQRG, [txtQRG] { txtQRG->setFocus(Qt::TabFocusReason); });
  connect(cmdGleich, &QPushButton::clicked, this, [&ablauf] { ablauf.Tun(KabelGleich); });
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const auto feld = static_cast<Kabelfeld>(i);
    connect(felder_.at(i), &QLineEdit::textEdited, this,
            [&ablauf, feld, ort = felder_.at(i)](const QString& text) {
              ablauf.TunBeimTippen(*ort, Mit(KabelfeldGetippt, feld, text.toStdString()));
            });
    connect(felder_.at(i), &Zahlenfeld::gedrueckt, this,
            [&ablauf, feld] { ablauf.Tun(Mit(KabelfeldGeklickt, feld)); });
  }
  connect(txtQRG, &Zahlenfeld::betreten, this,
          [&ablauf] { ablauf.TunBeimVerlassen(Mit(FeldBetreten, Eingabefeld::KabelQRG)); });
  connect(txtQRG, &Zahlenfeld::verlassen, this,
          [&ablauf] { ablauf.TunBeimVerlassen(Mit(FeldVerlassen, Eingabefeld::KabelQRG)); });
}

void KabelTab::Zeigen(const Station& s) {
  lstKabel->setCurrentRow(Kabelindex(s, kataloge_));
  for (const Kabelfeld feld : {Kabelfeld::QRG, Kabelfeld::KabelLaenge, Kabelfeld::Stecker}) {
    Schreiben(*FeldVon(feld), s.Datenblattspalten.front().*Kabeltexte.at(static_cast<std::size_t>(feld)));
  }
  const bool frei = AnderesKabelGewaehlt(s, kataloge_);
  Sperren(*FeldVon(Kabelfeld::D100), frei ? QString() : u"Einzugeben nur bei „Anderes Kabel“."_s);
  Ergebniswerte werte = Kabelwerte(s);
  for (std::size_t i = 0; i < werte.size(); ++i) {
    const Kabelfeld feld = Kabelergebnisse.at(i);
    const QColor grund = feld == Kabelfeld::D100 ? D100Grund(s.farbeD100, frei) : farben::Weiss;
    ErgebnisZeigen(*FeldVon(feld), werte[i], grund);
  }
  ansage_->Zeigen(std::move(werte));
  Schreiben(*lblKabelhinweis, Kabelhinweis(s, kataloge_));
}

}  // namespace vesk
