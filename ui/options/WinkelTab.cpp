#include "ui/options/WinkelTab.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "engine/Zahlen.h"
#include "station/Kurven.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/basis/Zugang.h"
#include "ui/options/Winkelbild.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

static_assert(AnzahlSektoren == PolarSektoren);

/// Background of the outputs of a sector.
constexpr std::array<QColor, AnzahlWinkelspalten> Gruende = {farben::HellGrau, farben::HellGruen,
                                                             farben::HellGelb, farben::HellRot};

struct Abstandsart {
  Winkelkurve kurve;
  Grenzwertart art;
  Qt::PenStyle strich;
};

/// As the curves lie one upon another.
constexpr std::array<Abstandsart, 3> Abstandsarten = {{
    {Winkelkurve::HSMvde, Grenzwertart::HSMvde, Qt::DashDotLine},
    {Winkelkurve::HSM306, Grenzwertart::HSM306, Qt::DashLine},
    {Winkelkurve::OhneHSM, Grenzwertart::OhneHSM, Qt::SolidLine},
}};

/// A typed attenuation as a point of the picture; what holds no figure, or an absurd one, is none.
std::optional<double> Bildwert(const std::string& text) {
  if (text.find_first_of("0123456789") == std::string::npos) return std::nullopt;
  try {
    return Zahl(text);
  } catch (const Laufzeitfehler&) {
    return std::nullopt;
  }
}

Polardaten Daempfungsbild(const std::array<std::string, AnzahlSektoren>& daempfung) {
  Polarkurve kurve{.name = u"relativ zur Hauptrichtung"_s, .stil = AnzahlGrenzwertarten};
  std::transform(daempfung.begin(), daempfung.end(), kurve.werte.begin(), Bildwert);
  return {.titel = u"Dämpfung"_s, .einheit = u"dB"_s, .skala = Polarskala::Daempfung, .kurven = {kurve}};
}

Polardaten Abstandsbild(const Station& s) {
  Polardaten bild{.titel = u"Sicherheitsabstände"_s, .einheit = u"m"_s, .kurven = {}};
  for (const Abstandsart& art : Abstandsarten) {
    const auto stil = static_cast<std::size_t>(art.art);
    Polarkurve kurve{
        .name = QString::fromUtf8(Grenzwertartnamen.at(stil)), .stil = stil, .strich = art.strich};
    for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
      kurve.werte.at(i) = Sektorabstand(s, i, art.kurve);
      kurve.veraltet = kurve.veraltet || (kurve.werte.at(i) && !SektorAktuell(s, i));
    }
    if (kurve.veraltet) kurve.name += u" (veraltet)"_s;
    bild.kurven.push_back(std::move(kurve));
  }
  return bild;
}

}  // namespace

void WinkelTab::Hinzeigen() {
  txtWDaempfung[0]->setFocus(Qt::TabFocusReason);
}

void WinkelTab::Zeigen(const Station& s) {
  const auto& daempfung = s.Datenblattspalten.front().Winkel;
  for (std::size_t i = 0; i < kopf_.size(); ++i) {
    Schreiben(*kopf_.at(i), WinkelText(s.winkel, static_cast<Winkelfeld>(i)));
  }
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    Schreiben(*txtWDaempfung.at(i), daempfung.at(i));
  }
  Ergebniswerte werte = Winkelwerte(s);
  for (std::size_t i = 0; i < werte.size(); ++i) {
    ErgebnisZeigen(*ausgaben_.at(i), werte[i], Gruende.at(i % AnzahlWinkelspalten));
  }
  ansage_->Zeigen(std::move(werte));
  picWinkel->Zeigen(Daempfungsbild(daempfung), Abstandsbild(s));

  const QString datei = QFileInfo(QString::fromStdString(s.winkel.datei)).fileName();
  const QString titel = QString::fromUtf8(Ebenentitel(EbeneAusName(datei.toStdString())));
  if (rhmWinkel->title() != titel) rhmWinkel->setTitle(titel);
  Schreiben(*lblWDatei, datei.isEmpty() ? s.winkel.herkunft : datei.toStdString());
}

bool WinkelTab::eventFilter(QObject* objekt, QEvent* ereignis) {
  const auto feld = std::find(txtWDaempfung.begin(), txtWDaempfung.end(), objekt);
  const auto sektor = static_cast<std::size_t>(feld - txtWDaempfung.begin());
  if (ereignis->type() == QEvent::FocusIn)
    ansage_->Vorlesen(sektor * AnzahlWinkelspalten, AnzahlWinkelspalten);
  if (ereignis->type() != QEvent::KeyPress) return false;
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
  if (!enter || (taste->modifiers() & Qt::ControlModifier) == 0) return false;
  if (!taste->isAutoRepeat()) Nehmen(sektor);
  return true;
}

void WinkelTab::Nehmen(std::size_t sektor) {
  ablauf_.Tun(Mit(WinkeldaempfungNehmen, sektor));
}

}  // namespace vesk
