#include "fuzz/affe/Pruefung.h"

#include <QtWidgets>

#include "engine/Ausgabe.h"
#include "station/Spalten.h"
#include "ui/basis/Dezimaltrenner.h"

using namespace Qt::StringLiterals;

namespace vesk::affe {

namespace {

QWidget* Fenster(const QString& name) {
  const QWidgetList fenster = QApplication::topLevelWidgets();
  const auto gefunden =
      std::find_if(fenster.begin(), fenster.end(), [&](const QWidget* w) { return w->objectName() == name; });
  return gefunden == fenster.end() ? nullptr : *gefunden;
}

QString Text(const QWidget& fenster, QLatin1StringView name) {
  const auto* control = fenster.findChild<QWidget*>(name);
  return control == nullptr ? u"fehlt"_s : control->property("text").toString();
}

bool Veraltet(const QWidget& fenster, const QString& name) {
  const auto* control = fenster.findChild<QWidget*>(name);
  return control != nullptr && control->property("Veraltet").toBool();
}

QString Hauptfenster(const QWidget& fenster, const Station& station, int& aktuell) {
  const QString gezeigt = Text(fenster, "txtAusgabe"_L1);
  if (gezeigt.isEmpty() || Veraltet(fenster, u"txtAusgabe"_s)) {
    const bool kopierbar = fenster.findChild<QPushButton*>(u"cmdCopy"_s)->isEnabled();
    return kopierbar && !gezeigt.isEmpty() ? u"Ein veraltetes Ergebnis ist kopierbar."_s : QString();
  }
  static constexpr std::array Eingaben = {"txtQRG"_L1, "txtPWR"_L1, "txtGewinn"_L1, "txtDaempfung"_L1,
                                          "txtWinkelDaempfung"_L1};
  Rechenwerte werte = station.werte;
  for (std::size_t i = 0; i < Eingabetexte.size(); ++i) {
    werte.*Eingabetexte[i] = Text(fenster, Eingaben[i]).toStdString();
  }
  const bool abstand = Text(fenster, "lblPWR"_L1) == u"Sendeleistung [W]";
  const Rechenart art{abstand ? Modus::Abstand : Modus::Leistung,
                      fenster.findChild<QAction*>(u"mnuAFu"_s)->isChecked()};
  const Feldtexte texte = Ausgabetexte(Berechnen(werte, art), Dezimaltrenner(QLocale::system()));
  for (std::size_t i = 0; i <= static_cast<std::size_t>(Feld::Fernfeld); ++i) {
    const std::string feld = Text(fenster, QLatin1StringView(Feldnamen[i])).toStdString();
    if (feld != texte[Feld(i)].value_or(feld)) {
      return u"%1 zeigt %2 statt %3."_s.arg(QLatin1StringView(Feldnamen[i]), QString::fromStdString(feld),
                                            QString::fromStdString(*texte[Feld(i)]));
    }
  }
  ++aktuell;
  return {};
}

QString Datenblatt(const QWidget& fenster, const Station& station) {
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
      const QString name = u"txtA_%1"_s.arg((spalte - 1) * AnzahlZeilen + zeile - 1);
      const QString soll = QString::fromStdString(Zelle(station, spalte, Zeile(zeile)));
      const QString ist = Text(fenster, QLatin1StringView(name.toLatin1()));
      if (ist != soll) return u"%1 zeigt \"%2\", die Station sagt \"%3\"."_s.arg(name, ist, soll);
      if (zeile == 10 && Veraltet(fenster, name) != SpalteVeraltet(station, spalte)) {
        return name + u" ist falsch als veraltet gekennzeichnet."_s;
      }
    }
  }
  return {};
}

}  // namespace

QString Pruefen(const Station& station, int& aktuell) {
  const QWidget* haupt = Fenster(u"frmVesk"_s);
  QString fehler = haupt == nullptr ? u"Das Hauptfenster fehlt."_s : Hauptfenster(*haupt, station, aktuell);
  const QWidget* blatt = Fenster(u"frmDatenblatt"_s);
  if (fehler.isEmpty() && blatt != nullptr) fehler = Datenblatt(*blatt, station);
  return fehler;
}

}  // namespace vesk::affe
