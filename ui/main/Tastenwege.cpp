#include "ui/main/Tastenwege.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "station/Vorschau.h"
#include "station/Wegweiser.h"
#include "ui/basis/Menue.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

enum Ort : unsigned {
  Hauptfenster = 1,
  Datenblatt = 2,
  Optionen = 4,
  Benutzerdaten = 8,
  Papiere = 16,
  Weitere = 32
};
constexpr unsigned Arbeitsfenster = Hauptfenster | Datenblatt | Optionen | Weitere;
constexpr unsigned Eingabefenster = Arbeitsfenster | Benutzerdaten;

struct Fensterort {
  QStringView name;
  Ort ort;
};
constexpr Fensterort Fensterorte[] = {
    {u"frmVesk", Hauptfenster},  {u"frmDatenblatt", Datenblatt}, {u"frmOptions", Optionen},
    {u"frmUser", Benutzerdaten}, {u"frmVorschau", Papiere},      {u"frmBaender", Weitere},
    {u"frmDiagramme", Weitere},  {u"frmLageplan", Weitere},
};

template <int spalte>
void ZuSpalte(Ablauf& ablauf) {
  ablauf.Tun(Mit(SpalteAufsuchen, spalte));
  ablauf.Hinzeigen(InZelle{spalte, ZeileHoehe});
}

struct Tastenweg {
  QKeyCombination taste;
  unsigned orte;
  void (*tun)(Ablauf&);
  bool wiederholt = false;  ///< goes on while the key is held down
};

constexpr Tastenweg Wege[] = {
    {Qt::CTRL | Qt::Key_N, Eingabefenster, Befehlend<Befehl::UserNeu>},
    {Qt::CTRL | Qt::Key_O, Eingabefenster, Befehlend<Befehl::DateiLaden>},
    {Qt::CTRL | Qt::Key_S, Eingabefenster, Befehlend<Befehl::DateiSpeichern>},
    {Qt::CTRL | Qt::Key_P, Eingabefenster, Tuend<PapiereZeigen>},
    {Qt::CTRL | Qt::Key_B, Arbeitsfenster, Befehlend<Befehl::BaenderZeigen>},
    {Qt::CTRL | Qt::Key_D, Arbeitsfenster, Befehlend<Befehl::DiagrammeZeigen>},
    {Qt::CTRL | Qt::Key_L, Arbeitsfenster, Befehlend<Befehl::LageplanZeigen>},
    {Qt::CTRL | Qt::Key_Z, Eingabefenster | Papiere, Befehlend<Befehl::Rueckgaengig>, true},
    {Qt::CTRL | Qt::Key_Y, Eingabefenster | Papiere, Befehlend<Befehl::Wiederholen>, true},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Eingabefenster | Papiere, Befehlend<Befehl::Wiederholen>, true},
    {Qt::Key_F5, Arbeitsfenster, Tuend<Rechnen>},
    // In the options window it takes the attenuation that the cursor is in.
    {Qt::CTRL | Qt::Key_Return, Hauptfenster | Datenblatt, Tuend<RechnenUndKopieren>},
    {Qt::CTRL | Qt::Key_Enter, Hauptfenster | Datenblatt, Tuend<RechnenUndKopieren>},
    {Qt::CTRL | Qt::Key_1, Arbeitsfenster, ZuSpalte<1>},
    {Qt::CTRL | Qt::Key_2, Arbeitsfenster, ZuSpalte<2>},
    {Qt::CTRL | Qt::Key_3, Arbeitsfenster, ZuSpalte<3>},
    {Qt::CTRL | Qt::Key_4, Arbeitsfenster, ZuSpalte<4>},
    {Qt::CTRL | Qt::Key_5, Arbeitsfenster, ZuSpalte<5>},
    {Qt::CTRL | Qt::Key_6, Arbeitsfenster, ZuSpalte<6>},
    {Qt::CTRL | Qt::Key_7, Arbeitsfenster, ZuSpalte<7>},
    {Qt::CTRL | Qt::Key_P, Papiere, Befehlend<Befehl::PapiereDrucken>},
    {Qt::CTRL | Qt::Key_S, Papiere, Befehlend<Befehl::PdfSpeichern>},
};

unsigned OrtVon(const QWidget& control) {
  const QString name = control.window()->objectName();
  const auto* ort = std::find_if(std::begin(Fensterorte), std::end(Fensterorte),
                                 [&](const Fensterort& zeile) { return zeile.name == name; });
  return ort == std::end(Fensterorte) ? 0U : unsigned{ort->ort};
}

}  // namespace

bool Tastenwege::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return false;
  const auto* control = qobject_cast<QWidget*>(objekt);
  if (control == nullptr || QApplication::activePopupWidget() != nullptr) return false;
  const auto* druck = static_cast<QKeyEvent*>(ereignis);
  const QKeyCombination taste(druck->modifiers() & ~Qt::KeypadModifier, Qt::Key(druck->key()));
  const unsigned ort = OrtVon(*control);
  const auto* weg = std::find_if(std::begin(Wege), std::end(Wege), [&](const Tastenweg& zeile) {
    return zeile.taste == taste && (zeile.orte & ort) != 0;
  });
  if (weg == std::end(Wege)) return false;
  if (weg->wiederholt || !druck->isAutoRepeat()) weg->tun(ablauf_);
  return true;
}

}  // namespace vesk
