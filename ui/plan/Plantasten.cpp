// Drawing and moving with the keyboard.
#include <QKeyEvent>
#include <QLineEdit>
#include <array>

#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"
#include "ui/plan/Planaenderung.h"
#include "ui/plan/Planblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Pfeil {
  Qt::Key taste;
  Punkt richtung;
};
constexpr std::array<Pfeil, 4> Pfeile = {
    {{Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, 1}}, {Qt::Key_Down, {0, -1}}}};

/// A length begins with a digit.
bool GehoertZumMass(const QString& zeichen, const QString& bisher) {
  if (zeichen.size() != 1 || !zeichen.at(0).isPrint()) return false;
  return !bisher.isEmpty() || u"0123456789,."_s.contains(zeichen);
}

}  // namespace

void Planblick::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() == Qt::Key_Space) {
    leertaste_ = true;
    if (!schwenk_) setCursor(Qt::OpenHandCursor);
    return;
  }
  if ((ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
    return QWidget::keyPressEvent(ereignis);
  }
  if (ereignis->key() == Qt::Key_Escape) {
    if (zug_) return ZugAufgeben();
    if (werkzeug_ != Planwerkzeug::Waehlen) return Aufgeben();
    if (wahl_) return Q_EMIT gewaehlt(std::nullopt);
  }
  const bool genommen =
      werkzeug_ == Planwerkzeug::Waehlen ? TasteBeimWaehlen(*ereignis) : TasteBeimZeichnen(*ereignis);
  if (!genommen) QWidget::keyPressEvent(ereignis);
}

void Planblick::keyReleaseEvent(QKeyEvent* ereignis) {
  if (ereignis->key() != Qt::Key_Space || ereignis->isAutoRepeat()) return QWidget::keyReleaseEvent(ereignis);
  leertaste_ = false;
  setCursor(werkzeug_ == Planwerkzeug::Waehlen ? Qt::ArrowCursor : Qt::CrossCursor);
}

bool Planblick::TasteBeimZeichnen(const QKeyEvent& taste) {
  const bool enter = taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
  if (enter && strich_.ecken.empty()) {
    EckeSetzen(strich_.zeiger);
  } else if (enter && werkzeug_ != Planwerkzeug::Eichen) {
    Schliessen();
  } else if (taste.key() == Qt::Key_Backspace) {
    EckeZurueck();
  } else if (!txtMass->isHidden() && GehoertZumMass(taste.text(), txtMass->text())) {
    txtMass->setFocus();
    txtMass->insert(taste.text());
  } else {
    return false;
  }
  return true;
}

bool Planblick::TasteBeimWaehlen(const QKeyEvent& taste) {
  switch (taste.key()) {
    case Qt::Key_Delete:
      WahlLoeschen();
      return true;
    case Qt::Key_Insert:
      EckeEinfuegen();
      return true;
    default:
      break;
  }
  for (const Pfeil& pfeil : Pfeile) {
    if (pfeil.taste != taste.key()) continue;
    Schieben(pfeil.richtung, taste.modifiers().testFlag(Qt::ShiftModifier));
    return true;
  }
  return false;
}

void Planblick::Schieben(Punkt schritte, bool fein) {
  if (!wahl_) {
    constexpr double Anteil = 0.1;
    Planabbildung neu = abbildung_;
    neu.ursprung += QPointF(-schritte.x * width(), schritte.y * height()) * Anteil;
    eingepasst_ = false;
    return Abbilden(neu);
  }
  constexpr double Feinschritt = 0.1;  // m
  const double weite = fein || fang_.raster <= 0 ? Feinschritt : fang_.raster;
  ablauf_.TunBeimTippen(*this, PlanAendern([stelle = *wahl_, schritte, weite](Lageplan& plan) {
    plan = Verschoben(plan, stelle, {schritte.x * weite, schritte.y * weite});
  }));
}

void Planblick::WahlLoeschen() {
  if (!wahl_) return Q_EMIT hinweis(u"Es ist nichts gewählt."_s);
  if (wahl_->ecke && Artzeile(Plan().objekte.at(wahl_->objekt).art).umriss) {
    const auto ohne = OhneEcke(Plan(), *wahl_);
    if (!ohne) return Q_EMIT hinweis(u"Ein Umriß braucht mindestens drei Ecken."_s);
    ablauf_.Tun(PlanAendern([ohne](Lageplan& plan) { plan = *ohne; }));
    return Q_EMIT gewaehlt(Planstelle{wahl_->objekt, std::nullopt});
  }
  const auto objekt = static_cast<std::ptrdiff_t>(wahl_->objekt);
  Q_EMIT gewaehlt(std::nullopt);
  ablauf_.Tun(PlanAendern([objekt](Lageplan& plan) { plan.objekte.erase(plan.objekte.begin() + objekt); }));
}

void Planblick::EckeEinfuegen() {
  const bool umriss = wahl_ && Artzeile(Plan().objekte.at(wahl_->objekt).art).umriss;
  if (!umriss || Plan().objekte[wahl_->objekt].punkte.empty()) {
    return Q_EMIT hinweis(u"Wählen Sie zuerst einen Umriß oder eine seiner Ecken."_s);
  }
  const std::size_t ecke = wahl_->ecke.value_or(Plan().objekte[wahl_->objekt].punkte.size() - 1);
  const Planstelle stelle{wahl_->objekt, ecke};
  ablauf_.Tun(PlanAendern([stelle](Lageplan& plan) { plan = MitEcke(plan, stelle); }));
  Q_EMIT gewaehlt(Planstelle{stelle.objekt, ecke + 1});
}

void Planblick::MassUebernehmen() {
  if (txtMass->text().trimmed().isEmpty()) {
    if (werkzeug_ != Planwerkzeug::Eichen) Schliessen();
    return;
  }
  const auto mass = MassLesen(txtMass->text().toStdString());
  if (!mass) {
    Faerben(*txtMass, farben::Rot);
    return Q_EMIT hinweis(u"Bitte eine Länge in Metern, wenn nötig mit Richtung: 12.5 oder 12.5;90"_s);
  }
  MassVerwerfen();
  if (werkzeug_ == Planwerkzeug::Eichen) return Eichen(mass->laenge);
  const Punkt von = strich_.ecken.back();
  const Punkt ecke = Abgetragen(Plan(), von, *mass, strich_.zeiger);
  EckeSetzen(ecke);
  Hinzeigen(ecke);
}

void Planblick::ZugAufgeben() {
  zug_.reset();
  BildZeigen(PlanbildVon(station_));
}

void Planblick::MassVerwerfen() {
  txtMass->clear();
  ThemaFaerben(*txtMass);
  setFocus();
}

bool Planblick::SchrittZurueck() {
  if (zug_) {
    ZugAufgeben();
    return true;
  }
  if (strich_.ecken.empty()) return false;
  if (txtMass->text().isEmpty()) EckeZurueck();
  MassVerwerfen();
  return true;
}

bool Planblick::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return QWidget::eventFilter(objekt, ereignis);
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  const auto* control = qobject_cast<QWidget*>(objekt);
  const bool hier = control != nullptr && control->window() == window();
  if (hier && taste->matches(QKeySequence::Undo) && SchrittZurueck()) return true;
  if (objekt != txtMass) return QWidget::eventFilter(objekt, ereignis);
  if (taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter) {
    MassUebernehmen();  // the field would hand the key on, to be taken once more
    return true;
  }
  if (txtMass->text().isEmpty() && taste->key() == Qt::Key_Backspace) {
    setFocus();
    EckeZurueck();
    return true;
  }
  if (taste->key() != Qt::Key_Escape) return false;
  MassVerwerfen();
  return true;
}

}  // namespace vesk
