#include "ui/options/WinkelTab.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "engine/Zahlen.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/options/Winkelbild.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

static_assert(AnzahlSektoren == PolarSektoren);

/// One kind of distance: its column, and its curve in a colour that can be seen on white.
struct Abstandsart {
  std::size_t spalte;
  QColor farbe;
  QStringView name;
  QColor stift;
  Qt::PenStyle strich;
  std::optional<float> (*wert)(const Sektor&);
};

/// As the curves lie one upon another.
constexpr std::array<Abstandsart, 3> Abstandsarten = {{
    {SpalteHSMvde, farben::HellGelb, u"HSM VDE", QColor(0x90, 0x70, 0x00), Qt::DashDotLine,
     [](const Sektor& sektor) { return sektor.HSMvde; }},
    {SpalteHSM306, farben::HellRot, u"HSM 306", QColor(0xC0, 0x20, 0x20), Qt::DashLine,
     [](const Sektor& sektor) { return sektor.HSM306; }},
    {SpalteOhneHSM, farben::HellGruen, u"ohne HSM", QColor(0x00, 0x80, 0x00), Qt::SolidLine,
     [](const Sektor& sektor) { return std::optional(sektor.ohneHSM); }},
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
  Polarkurve kurve{u"relativ zur Hauptrichtung"_s, Qt::darkBlue, Qt::SolidLine, {}};
  std::transform(daempfung.begin(), daempfung.end(), kurve.werte.begin(), Bildwert);
  return {.titel = u"Dämpfung"_s, .einheit = u"dB"_s, .skala = Polarskala::Daempfung, .kurven = {kurve}};
}

QString Rahmentitel(Winkelebene ebene) {
  switch (ebene) {
    case Winkelebene::Horizontal:
      return u"Horizontale Winkeldämpfung von Richtantennen"_s;
    case Winkelebene::Vertikal:
      return u"Vertikale Winkeldämpfung von Richtantennen"_s;
    case Winkelebene::Keine:
      break;
  }
  return u"Winkeldämpfung von Richtantennen"_s;
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
    const std::string EIRP = EIRPText(s, i);
    Schreiben(*ausgaben_[SpalteEIRP].at(i), EIRP);
    ErgebnisFaerben(*ausgaben_[SpalteEIRP].at(i), farben::HellGrau, !EIRP.empty() && !EIRPAktuell(s, i));
  }
  picWinkel->Zeigen(Daempfungsbild(daempfung), AbstaendeZeigen(s));

  const QString datei = QFileInfo(QString::fromStdString(s.winkel.datei)).fileName();
  const QString titel = Rahmentitel(EbeneAusName(datei.toStdString()));
  if (rhmWinkel->title() != titel) rhmWinkel->setTitle(titel);
  Schreiben(*lblWDatei, datei.isEmpty() ? s.winkel.herkunft : datei.toStdString());
}

Polardaten WinkelTab::AbstaendeZeigen(const Station& s) {
  Polardaten bild{.titel = u"Sicherheitsabstände"_s, .einheit = u"m"_s, .kurven = {}};
  for (const Abstandsart& art : Abstandsarten) {
    Polarkurve kurve{art.name.toString(), art.stift, art.strich, {}};
    for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
      std::optional<float> wert;
      if (s.winkel.ergebnis && i < s.winkel.ergebnis->tabelle.sektoren.size()) {
        wert = art.wert(s.winkel.ergebnis->tabelle.sektoren[i]);
      }
      const bool veraltet = wert && !SektorAktuell(s, i);
      QLineEdit& feld = *ausgaben_.at(art.spalte).at(i);
      Schreiben(feld, wert ? Formatieren(*wert) : std::string());
      ErgebnisFaerben(feld, art.farbe, veraltet);
      kurve.werte.at(i) = wert;
      if (veraltet) kurve.farbe = farben::Veraltet;
    }
    if (kurve.farbe == farben::Veraltet) kurve.name += u" (veraltet)"_s;
    bild.kurven.push_back(std::move(kurve));
  }
  return bild;
}

bool WinkelTab::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return false;
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
  if (!enter || (taste->modifiers() & Qt::ControlModifier) == 0) return false;
  const auto feld = std::find(txtWDaempfung.begin(), txtWDaempfung.end(), objekt);
  if (!taste->isAutoRepeat()) Nehmen(static_cast<std::size_t>(feld - txtWDaempfung.begin()));
  return true;
}

void WinkelTab::Nehmen(std::size_t sektor) {
  ablauf_.Tun(Mit(WinkeldaempfungNehmen, sektor));
}

}  // namespace vesk
