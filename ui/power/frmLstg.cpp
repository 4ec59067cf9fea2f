#include "frmLstg.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <utility>

#include "Feldhilfe.h"
#include "Laufzeitfehler.h"
#include "Leistungsumrechnung.h"
#include "Meldung.h"
#include "Rechenwerte.h"
#include "Version.h"
#include "Zahlenfeld.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"txtWatt", u"Diese Felder dienen zur Umrechnung von Watt, dBW und dbm. "},
    {u"txtDBW", u"Diese Felder dienen zur Umrechnung von Watt, dBW und dbm. "},
    {u"txtDBm", u"Diese Felder dienen zur Umrechnung von Watt, dBW und dbm. "},
};

constexpr Hilfenummer Hilfenummern[] = {
    {u"txtDBm", 3001}, {u"txtDBW", 3002}, {u"txtWatt", 3003}, {u"rhmLeistung", 3004}, {u"lblReferat", 3005},
};

/// Whether the focus has gone to another working window of the program: not to a box, which comes back, and
/// not to another program.
bool ZuAnderemFenster(const QWidget& fenster) {
  const QWidget* aktiv = QApplication::activeWindow();
  return aktiv != nullptr && aktiv != &fenster && !aktiv->isModal();
}

}  // namespace

frmLstg::frmLstg(Plattform& plattform, Rechenwerte& werte, char trenner, QWidget* eltern)
    : QDialog(eltern),
      plattform_(plattform),
      werte_(werte),
      trenner_(trenner),
      rhmLeistung(new QGroupBox(u"Leistungsumrechnung"_s, this)),
      txtDBm(new Zahlenfeld(werte, plattform.ton, this)),
      txtDBW(new Zahlenfeld(werte, plattform.ton, this)),
      txtWatt(new Zahlenfeld(werte, plattform.ton, this)),
      lblDBm(new QLabel(u"Leistung in dBm"_s, this)),
      lblDBW(new QLabel(u"Leistung in dBW"_s, this)),
      lblWatt(new QLabel(u"Leistung in Watt"_s, this)),
      lblReferat(new QLabel(this)),
      felder_{txtDBm, txtDBW, txtWatt} {
  setObjectName(u"frmLstg"_s);
  setWindowTitle(u"Leistungsumrechnung"_s);
  setProperty(HilfekontextEigenschaft, 3001);
  Aufbauen();
  HilfenummernSetzen(*this, Hilfenummern);
  for (Zahlenfeld* feld : felder_) {
    connect(feld, &Zahlenfeld::gefiltert, this, [this, feld](int zeichen) { Gefiltert(*feld, zeichen); });
    connect(feld, &QLineEdit::textEdited, this, [this, feld] { Bearbeitet(*feld); });
    feld->installEventFilter(this);
  }
}

void frmLstg::Aufbauen() {
  struct Zeile {
    QLabel* label;
    Zahlenfeld* feld;
    QString labelname;
    QString feldname;
  };
  const Zeile zeilen[] = {
      {lblDBm, txtDBm, u"lblDBm"_s, u"txtDBm"_s},
      {lblDBW, txtDBW, u"lblDBW"_s, u"txtDBW"_s},
      {lblWatt, txtWatt, u"lblWatt"_s, u"txtWatt"_s},
  };
  auto* gitter = new QGridLayout(rhmLeistung);
  int nummer = 0;
  for (const Zeile& zeile : zeilen) {
    zeile.label->setObjectName(zeile.labelname);
    zeile.label->setBuddy(zeile.feld);
    zeile.feld->setObjectName(zeile.feldname);
    zeile.feld->setAccessibleName(zeile.label->text());
    zeile.feld->setAlignment(Qt::AlignRight);
    zeile.feld->setMinimumWidth(fontMetrics().horizontalAdvance(u"000000000000.000"_s));
    gitter->addWidget(zeile.label, nummer, 0);
    gitter->addWidget(zeile.feld, nummer, 1);
    ++nummer;
  }
  gitter->setColumnStretch(1, 1);

  rhmLeistung->setObjectName(u"rhmLeistung"_s);
  lblReferat->setObjectName(u"lblReferat"_s);
  lblReferat->setText(QString::fromUtf8(Produktname.data(), Produktname.size()) + u' ' +
                      QString::fromStdString(VersionLang()) + u" – Alle Angaben ohne Gewähr"_s);
  lblReferat->setAlignment(Qt::AlignHCenter);

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(rhmLeistung);
  spalte->addWidget(lblReferat);
  spalte->addStretch();
}

void frmLstg::ToolTips(bool an) {
  TooltipsSetzen(*this, Tooltips, an);
}

void frmLstg::setVisible(bool sichtbar) {
  schliesst_ = !sichtbar;
  if (sichtbar && !isVisible()) {
    unterbrochenes_.clear();
    Leeren();
  }
  QDialog::setVisible(sichtbar);
}

bool frmLstg::eventFilter(QObject* objekt, QEvent* ereignis) {
  auto* feld = qobject_cast<Zahlenfeld*>(objekt);
  if (feld != nullptr && ereignis->type() == QEvent::FocusIn) Betreten(*feld);
  if (feld != nullptr && ereignis->type() == QEvent::FocusOut) {
    Verlassen(*feld, static_cast<QFocusEvent*>(ereignis)->reason());
  }
  if (feld != nullptr && ereignis->type() == QEvent::KeyPress) {
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    const auto zusatz = taste->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (zusatz == Qt::NoModifier && TasteUnten(*feld, taste->key())) return true;
  }
  return QDialog::eventFilter(objekt, ereignis);
}

void frmLstg::Betreten(Zahlenfeld& feld) {
  const bool zurueck = unterbrochenes_ == &feld;
  unterbrochenes_.clear();
  if (!zurueck) Leeren();
  werte_.MinusErlaubt = MinusMoeglich(feld);
}

void frmLstg::Verlassen(Zahlenfeld& feld, Qt::FocusReason grund) {
  werte_.MinusErlaubt = false;
  const bool nurUnterbrochen = grund == Qt::PopupFocusReason || grund == Qt::MenuBarFocusReason ||
                               (grund == Qt::ActiveWindowFocusReason && !ZuAnderemFenster(*this));
  if (schliesst_ || nurUnterbrochen) {
    unterbrochenes_ = &feld;
  } else if (feld.text() != erledigt_) {
    Umwandeln(feld, Anlass::Verlassen);
  }
}

bool frmLstg::TasteUnten(Zahlenfeld& feld, int taste) {
  switch (taste) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // The field's own handler passes the key on to the filter, which notes Enter.
      Umwandeln(feld, Anlass::Taste);
      return false;
    case Qt::Key_Down:
      Umwandeln(feld, Anlass::Taste);
      return true;
    case Qt::Key_Up:
      if (&feld != txtDBm) (&feld == txtWatt ? txtDBW : txtDBm)->setFocus(Qt::BacktabFocusReason);
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      // Moving on would clear the result at once, so the first Tab only converts.
      if (feld.text().isEmpty() || feld.text() == erledigt_) return false;
      Umwandeln(feld, Anlass::Taste);
      return true;
    default:
      return false;
  }
}

void frmLstg::Gefiltert(Zahlenfeld& feld, int zeichen) {
  constexpr int Rueckschritt = 8;
  if (werte_.EnterGedrueckt) {
    werte_.EnterGedrueckt = false;
    ergebnisGezeigt_ = true;
    feld.selectAll();
    werte_.MinusErlaubt = MinusMoeglich(feld);
  } else if (ergebnisGezeigt_ && zeichen != 0) {
    Leeren();
    werte_.MinusErlaubt = MinusMoeglich(feld) && (zeichen == '-' || zeichen == Rueckschritt);
  } else if (ergebnisGezeigt_) {
    werte_.MinusErlaubt = MinusMoeglich(feld);
  }
}

void frmLstg::Bearbeitet(Zahlenfeld& feld) {
  if (ergebnisGezeigt_) {
    // Pasted over or cut: no key passed the filter, but what the other fields show belongs to the old value.
    ergebnisGezeigt_ = false;
    erledigt_.reset();
    for (Zahlenfeld* anderes : felder_) {
      if (anderes != &feld) anderes->clear();
    }
  }
  if (feld.text().isEmpty()) werte_.MinusErlaubt = MinusMoeglich(feld);
}

void frmLstg::Umwandeln(Zahlenfeld& feld, Anlass anlass) {
  std::size_t quelle = 0;
  while (felder_[quelle] != &feld) ++quelle;
  erledigt_ = feld.text();
  try {
    const Leistungsumrechnung umrechnung =
        Umrechnen(Leistungseinheit{quelle}, feld.text().toStdString(), trenner_);
    switch (umrechnung.ergebnis) {
      case Umrechnungsergebnis::Leer:
        break;
      case Umrechnungsergebnis::Umgerechnet:
        for (std::size_t i = 0; i < felder_.size(); ++i) {
          if (i != quelle) felder_[i]->setText(QString::fromStdString(umrechnung.texte[i]));
        }
        break;
      case Umrechnungsergebnis::ZuGross:
        Melden({"Hinweis", "Der eingegebene Wert ist zu groß\n10 Mega Watt = 70 dBW oder 100 dBm"}, anlass);
        break;
      case Umrechnungsergebnis::NichtPositiv:
        Melden({"Hinweis", "Der eingegebene Wert muß größer Null sein"}, anlass);
        break;
    }
  } catch (const Laufzeitfehler& fehler) {
    Melden(Fehlermeldung(fehler.art), anlass);
  }
}

void frmLstg::Leeren() {
  for (Zahlenfeld* feld : felder_) feld->clear();
  ergebnisGezeigt_ = false;
  erledigt_.reset();
}

bool frmLstg::MinusMoeglich(const Zahlenfeld& feld) const {
  // Only where the next character can lead a value: the field is empty or about to be emptied.
  return &feld != txtWatt && (feld.text().isEmpty() || ergebnisGezeigt_);
}

void frmLstg::Melden(const Hinweis& hinweis, Anlass anlass) {
  const auto zeigen = [this, hinweis] { Zeigen(plattform_.boxen, werte_, hinweis); };
  if (anlass == Anlass::Taste) {
    zeigen();
  } else {
    // A box opened while the focus is moving would take it from the field that is just getting it.
    QMetaObject::invokeMethod(this, zeigen, Qt::QueuedConnection);
  }
}

}  // namespace vesk
