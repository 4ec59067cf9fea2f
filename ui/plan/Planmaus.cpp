// Drawing and moving with the mouse.
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "station/Flaechen.h"
#include "ui/basis/Ablauf.h"
#include "ui/plan/Planaenderung.h"
#include "ui/plan/Planansicht.h"
#include "ui/plan/Planblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

bool Dasselbe(Punkt a, Punkt b) {
  constexpr double Haar = 1e-6;  // m
  return std::abs(a.x - b.x) < Haar && std::abs(a.y - b.y) < Haar;
}

bool ZeichnetUmriss(Planwerkzeug werkzeug) {
  const auto art = Werkzeugzeile(werkzeug).art;
  return art && Artzeile(*art).umriss;
}

/// How what has been begun goes on.
QString Strichhinweis(std::size_t ecken, bool umriss) {
  if (ecken == 0) return {};
  if (!umriss) return u"Klicken Sie zwei Punkte an und tippen Sie ihren Abstand in Metern."_s;
  const QString zurueck = u"Rücktaste nimmt die letzte Ecke zurück, Esc gibt auf."_s;
  return ecken == 1 ? zurueck : u"Enter oder Doppelklick schließt den Umriß, "_s + zurueck;
}

}  // namespace

Artenwahl Planblick::SichtbareArten() const {
  constexpr std::array<Planschicht, AnzahlPlanarten> Schichten = {
      Planschicht::Grundstuecke, Planschicht::Bereich, Planschicht::Gebaeude,
      Planschicht::Grundstuecke, Planschicht::Baeume,  Planschicht::Beschriftungen,
      Planschicht::Antennen};
  Artenwahl arten;
  for (std::size_t i = 0; i < AnzahlPlanarten; ++i) {
    arten[i] = schichten_.test(static_cast<std::size_t>(Schichten.at(i)));
  }
  return arten;
}

Punkt Planblick::Gefangen(QPointF maus, Qt::KeyboardModifiers tasten) const {
  const Punkt punkt = abbildung_.Von(maus);
  // What the picture shows lies on no grid.
  if (werkzeug_ == Planwerkzeug::Eichen || tasten.testFlag(Qt::AltModifier)) return punkt;
  Fang fang = fang_;
  fang.weite = Fangweite();
  std::vector<Punkt> ecken = Fangecken(Plan(), std::nullopt);
  if (!strich_.ecken.empty()) ecken.push_back(strich_.ecken.front());
  return vesk::Gefangen(Plan(), fang, punkt, strich_.ecken, ecken);
}

void Planblick::mousePressEvent(QMouseEvent* ereignis) {
  const bool links = ereignis->button() == Qt::LeftButton;
  if (ereignis->button() == Qt::MiddleButton || (links && leertaste_)) {
    schwenk_ = ereignis->position();
    return setCursor(Qt::ClosedHandCursor);
  }
  if (!links) return;
  if (werkzeug_ == Planwerkzeug::Waehlen) return Greifen(ereignis->position());
  EckeSetzen(Gefangen(ereignis->position(), ereignis->modifiers()));
}

void Planblick::mouseMoveEvent(QMouseEvent* ereignis) {
  const QPointF maus = ereignis->position();
  if (schwenk_) {
    Planabbildung neu = abbildung_;
    neu.ursprung += maus - *schwenk_;
    schwenk_ = maus;
    eingepasst_ = false;
    return Abbilden(neu);
  }
  if (zug_) return Ziehen(maus, ereignis->modifiers());
  strich_.zeiger = Gefangen(maus, ereignis->modifiers());
  Q_EMIT ueber(strich_.zeiger);
  if (werkzeug_ == Planwerkzeug::Waehlen) return;
  MassfeldZeigen();
  update();
}

void Planblick::mouseReleaseEvent(QMouseEvent* /*ereignis*/) {
  if (schwenk_) {
    schwenk_.reset();
    if (leertaste_) return setCursor(Qt::OpenHandCursor);
    return unsetCursor();
  }
  Loslassen();
}

void Planblick::mouseDoubleClickEvent(QMouseEvent* ereignis) {
  if (ereignis->button() != Qt::LeftButton || leertaste_) return;
  if (werkzeug_ != Planwerkzeug::Waehlen) {
    if (Zeichnet() && strich_.ecken.size() > 1 && werkzeug_ != Planwerkzeug::Eichen) return Schliessen();
    return mousePressEvent(ereignis);
  }
  zug_.reset();
  const Punkt punkt = abbildung_.Von(ereignis->position());
  const auto vorher = wahl_ ? std::optional(wahl_->objekt) : std::nullopt;
  const auto stelle = StelleBei(Plan(), punkt, Fangweite(), SichtbareArten(), vorher);
  if (!stelle || stelle->ecke || !Artzeile(Plan().objekte[stelle->objekt].art).umriss) return;
  const Umriss& ecken = Plan().objekte[stelle->objekt].punkte;
  if (Randabstand(ecken, punkt) > Fangweite()) return;
  const std::size_t kante = NaechsteKante(ecken, punkt);
  const Punkt ort = Gefangen(ereignis->position(), ereignis->modifiers());
  ablauf_.Tun(PlanAendern([objekt = stelle->objekt, kante, ort](Lageplan& plan) {
    plan = MitEcke(plan, {objekt, kante}, ort);
  }));
  Q_EMIT gewaehlt(Planstelle{stelle->objekt, kante + 1});
}

void Planblick::Greifen(QPointF maus) {
  const Punkt punkt = abbildung_.Von(maus);
  const auto vorher = wahl_ ? std::optional(wahl_->objekt) : std::nullopt;
  const auto stelle = StelleBei(Plan(), punkt, Fangweite(), SichtbareArten(), vorher);
  Q_EMIT gewaehlt(stelle);
  // An area is moved only when it is meant; else a plot would follow the mouse unnoticed.
  const bool gemeint = stelle && (stelle->ecke || vorher == stelle->objekt ||
                                  !Artzeile(Plan().objekte[stelle->objekt].art).umriss);
  if (!gemeint) {
    schwenk_ = maus;
    return;
  }
  const Umriss& ecken = Plan().objekte[stelle->objekt].punkte;
  const auto naechste = std::min_element(ecken.begin(), ecken.end(), [&](Punkt a, Punkt b) {
    return std::hypot(a.x - punkt.x, a.y - punkt.y) < std::hypot(b.x - punkt.x, b.y - punkt.y);
  });
  zug_ = {*stelle, stelle->ecke ? ecken[*stelle->ecke] : *naechste, punkt};
}

void Planblick::Ziehen(QPointF maus, Qt::KeyboardModifiers tasten) {
  constexpr double Wackeln = 3;  // units
  if (!zug_->bewegt && (maus - abbildung_.Nach(zug_->beginn)).manhattanLength() < Wackeln) return;
  zug_->bewegt = true;
  const Punkt jetzt = abbildung_.Von(maus);
  Punkt ziel{zug_->griff.x + jetzt.x - zug_->beginn.x, zug_->griff.y + jetzt.y - zug_->beginn.y};
  if (!tasten.testFlag(Qt::AltModifier)) {
    Fang fang = fang_;
    fang.weite = Fangweite();
    Umriss linie;
    const Umriss& ecken = Plan().objekte[zug_->stelle.objekt].punkte;
    if (const auto ecke = zug_->stelle.ecke; ecke && ecken.size() > 2) {
      linie = {ecken[(*ecke + ecken.size() - 2) % ecken.size()],
               ecken[(*ecke + ecken.size() - 1) % ecken.size()]};
    }
    ziel = vesk::Gefangen(Plan(), fang, ziel, linie, Fangecken(Plan(), zug_->stelle));
  }
  Station dann = station_;
  dann.lageplan = Verschoben(Plan(), zug_->stelle, {ziel.x - zug_->griff.x, ziel.y - zug_->griff.y});
  // The sum is too slow to follow the mouse; it comes back when the mouse lets go.
  dann.lageplan.summe = false;
  BildZeigen(PlanbildVon(dann));
  Q_EMIT ueber(ziel);
}

void Planblick::Loslassen() {
  if (!zug_) return;
  if (zug_->bewegt) {
    ablauf_.Tun(PlanAendern([objekte = bild_.plan.objekte](Lageplan& plan) { plan.objekte = objekte; }));
  }
  zug_.reset();
  BildZeigen(PlanbildVon(station_));
  update();
}

void Planblick::EckeSetzen(Punkt punkt) {
  const auto art = Werkzeugzeile(werkzeug_).art;
  if (werkzeug_ == Planwerkzeug::Bezugspunkt) {
    ablauf_.Tun(PlanAendern([punkt](Lageplan& plan) {
      const Punkt vorher = std::exchange(plan.bezug, punkt);
      plan.geo = GeoVersetzt(plan, vorher);
    }));
    return Q_EMIT fertig();
  }
  if (art && !Artzeile(*art).umriss) return Anlegen(*art, {punkt});
  Umriss& ecken = strich_.ecken;
  const bool umriss = art.has_value();
  if (umriss && ecken.size() > 2 && Dasselbe(punkt, ecken.front())) return Schliessen();
  if (!umriss && ecken.size() > 1) ecken.pop_back();  // the second place of the picture once more
  if (ecken.empty() || !Dasselbe(punkt, ecken.back())) ecken.push_back(punkt);
  strich_.zeiger = punkt;
  StrichZeigen();
}

void Planblick::StrichZeigen() {
  Q_EMIT hinweis(Strichhinweis(strich_.ecken.size(), ZeichnetUmriss(werkzeug_)));
  MassfeldZeigen();
  update();
}

void Planblick::Schliessen() {
  if (strich_.ecken.size() < 3) return Q_EMIT hinweis(u"Ein Umriß braucht mindestens drei Ecken."_s);
  Anlegen(*Werkzeugzeile(werkzeug_).art, strich_.ecken);
}

void Planblick::Anlegen(Planart art, const Umriss& punkte) {
  const std::size_t vorher = Plan().objekte.size();
  Planobjekt neu = NeuesPlanobjekt(art, punkte.front());
  neu.punkte = punkte;
  ablauf_.Tun(PlanAendern([neu](Lageplan& plan) { plan.objekte.push_back(neu); }));
  if (Plan().objekte.size() == vorher) return;  // the plan is full; what is drawn stays
  Aufgeben();
  Q_EMIT gewaehlt(Planstelle{vorher, std::nullopt});
}

void Planblick::Eichen(double abstand) {
  if (!Plan().hintergrund) return Q_EMIT hinweis(u"Der Plan hat kein Hintergrundbild."_s);
  const auto geeicht = Geeicht(*Plan().hintergrund, strich_.ecken[0], strich_.ecken[1], abstand);
  if (!geeicht) return Q_EMIT hinweis(u"Beide Punkte müssen im Hintergrundbild liegen."_s);
  ablauf_.Tun(PlanAendern([geeicht](Lageplan& plan) { plan.hintergrund = geeicht; }));
  Aufgeben();
}

void Planblick::Aufgeben() {
  strich_.ecken.clear();
  MassfeldZeigen();
  update();
  Q_EMIT hinweis({});
  Q_EMIT fertig();
}

void Planblick::EckeZurueck() {
  if (!strich_.ecken.empty()) strich_.ecken.pop_back();
  StrichZeigen();
}

void Planblick::WerkzeugNehmen(Planwerkzeug werkzeug) {
  if (werkzeug == werkzeug_) return;
  // An outline that has been begun as another kind goes on.
  if (!ZeichnetUmriss(werkzeug_) || !ZeichnetUmriss(werkzeug)) {
    if (!strich_.ecken.empty()) Q_EMIT hinweis(u"Was angefangen war, ist verworfen."_s);
    strich_ = {{}, Plan().bezug};
  }
  werkzeug_ = werkzeug;
  zug_.reset();
  setCursor(werkzeug == Planwerkzeug::Waehlen ? Qt::ArrowCursor : Qt::CrossCursor);
  MassfeldZeigen();
  update();
}

void Planblick::MassfeldZeigen() {
  const bool kante = Zeichnet() && strich_.ecken.size() > (werkzeug_ == Planwerkzeug::Eichen ? 1 : 0);
  if (!kante) {
    if (txtMass->hasFocus()) setFocus();
    txtMass->clear();
    return txtMass->hide();
  }
  const Punkt von = strich_.ecken.back();
  txtMass->setPlaceholderText(werkzeug_ == Planwerkzeug::Eichen
                                  ? u"Abstand in m"_s
                                  : QString::fromStdString(Masstext(Plan(), von, strich_.zeiger)));
  txtMass->resize(22 * fontMetrics().averageCharWidth(), txtMass->sizeHint().height());
  const QPointF stelle = abbildung_.Nach(strich_.zeiger) + QPointF(14, 14);
  const QPoint rand(width() - txtMass->width() - 2, height() - txtMass->height() - 2);
  txtMass->move(std::clamp(int(stelle.x()), 2, std::max(2, rand.x())),
                std::clamp(int(stelle.y()), 2, std::max(2, rand.y())));
  txtMass->show();
}

}  // namespace vesk
