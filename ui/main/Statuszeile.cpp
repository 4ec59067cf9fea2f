#include "ui/main/Statuszeile.h"

#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "station/Datenblatt.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Kurzlabel.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

std::string Dateiangabe(const Station& s) {
  if (s.neuesRufzeichen) return "Neues Rufzeichen, noch ohne Datei";
  return s.UserDatei + " in " + s.Arbeitsverzeichnis;
}
bool Unbeschrieben(const Station& s) {
  const bool leer = std::all_of(s.Zellen.begin(), s.Zellen.end(), [](const auto& z) { return z.empty(); });
  return leer && s.benutzer == Benutzer() && s.lageplan == Lageplan() && s.Fusszeile.empty();
}
std::string Aenderungsangabe(const Station& s) {
  const char* stand = s.ohneDatei && Unbeschrieben(s) ? "noch keine Datei"
                      : s.UserGeaendert               ? "nicht gespeichert"
                                                      : "gespeichert";
  return std::string(stand) + (s.ohneRettung ? ", keine Kopie für den Fall eines Absturzes" : "");
}
std::string Spaltenangabe(const Station& s) {
  return s.werte.Spalte == 0 ? "Hauptfenster" : Spaltenname(s.werte.Spalte);
}
std::string Antennenangabe(const Station& s) {
  return s.Datenblattspalten[0].Antenne;
}

/// One place of a line; what is empty says so in words.
struct Angabe {
  QStringView name;
  QStringView titel;
  QStringView leer;
  std::string (*text)(const Station&, const Kataloge&);
  std::size_t zeile;
};

template <std::string (*text)(const Station&)>
std::string Ohne(const Station& s, const Kataloge&) {
  return text(s);
}

constexpr std::array<Angabe, 6> Angaben = {{
    {u"lblDatei", u"Datei", u"", Ohne<Dateiangabe>, 0},
    {u"lblGespeichert", u"Änderungen", u"", Ohne<Aenderungsangabe>, 0},
    {u"lblSpalteAktuell", u"Rechnet für", u"", Ohne<Spaltenangabe>, 1},
    {u"lblFaktorTyp", u"Faktor, Signaltyp", u"", Ohne<FaktorUndTyp>, 1},
    {u"lblKabelGewaehlt", u"Kabel", u"keines", Kabelangabe, 1},
    {u"lblAntenneGewaehlt", u"Antenne", u"keine", Ohne<Antennenangabe>, 1},
}};

QFrame* Trennstrich(QWidget* eltern) {
  auto* strich = new QFrame(eltern);
  strich->setFrameStyle(int(QFrame::VLine) | int(QFrame::Sunken));
  MindestensBreit(*strich, 2);
  return strich;
}

}  // namespace

Statuszeile::Statuszeile(QWidget* eltern) : QWidget(eltern) {
  auto* raster = new QGridLayout(this);
  raster->setContentsMargins(8, 0, 8, 2);
  raster->setVerticalSpacing(0);
  raster->setColumnStretch(0, 1);
  std::array<QHBoxLayout*, 2> zeilen{};
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    zeilen.at(i) = new QHBoxLayout;
    raster->addLayout(zeilen.at(i), static_cast<int>(i), 0);
  }
  for (std::size_t i = 0; i < Angaben.size(); ++i) {
    const Angabe& angabe = Angaben[i];
    QHBoxLayout& zeile = *zeilen.at(angabe.zeile);
    if (zeile.count() > 0) zeile.addWidget(Trennstrich(this));
    auto* label = new Kurzlabel(this);
    label->setObjectName(angabe.name.toString());
    zeile.addWidget(label);
    angaben_.at(i) = label;
  }
  for (QHBoxLayout* zeile : zeilen) zeile->addStretch();

  auto* lblWeiter = new QLabel(u"Nächster Schritt:"_s, this);
  lblWeiter->setObjectName(u"lblWeiter"_s);
  raster->addWidget(lblWeiter, 0, 1);
  cmdWeiter = new QPushButton(this);
  cmdWeiter->setObjectName(u"cmdWeiter"_s);
  cmdWeiter->setAutoDefault(true);  // Enter presses it
  raster->addWidget(cmdWeiter, 1, 1);
  connect(cmdWeiter, &QPushButton::clicked, this, [this] { Q_EMIT weiter(schritt_); });
}

void Statuszeile::Zeigen(const Station& s, const Kataloge& k) {
  for (std::size_t i = 0; i < Angaben.size(); ++i) {
    const Angabe& angabe = Angaben[i];
    const std::string text = angabe.text(s, k);
    angaben_.at(i)->Zeigen(angabe.titel.toString() + u": "_s +
                               (text.empty() ? angabe.leer.toString() : QString::fromStdString(text)),
                           s.einstellungen.ToolTips);
  }
  schritt_ = NaechsterSchritt(s, k);
  Schreiben(*cmdWeiter, schritt_.text);
}

}  // namespace vesk
