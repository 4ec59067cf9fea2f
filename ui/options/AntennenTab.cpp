#include "AntennenTab.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "Auswahlliste.h"
#include "Dateien.h"
#include "Meldung.h"
#include "OptionenUmgebung.h"
#include "Spaltensatz.h"
#include "Zahlen.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

Antennenkatalog KatalogLesen(const std::string& verzeichnis) {
  const Gelesen datei = DateiLesen(std::filesystem::path(verzeichnis) / "Antennen.txt");
  switch (datei.status) {
    case Lesestatus::Gelesen:
      return AntennenLaden(datei.bytes);
    case Lesestatus::Fehlt:
      return {};
    case Lesestatus::Fehler:
      break;
  }
  return AntennenUnlesbar();
}

/// The line with the maker in its place.
QString MitHersteller(QString zeile, const std::string& hersteller) {
  const QString name = QString::fromStdString(hersteller).left(HerstellerSpalten);
  return zeile.replace(0, name.size(), name);
}

}  // namespace

void AntennenTab::Laden() {
  lblAntDaten->setText(
      u"Antennendaten ohne Gewähr. "
      "Die Daten be- ruhen auf Herstelleran- gaben und Anzeigen."_s);
  rhmAntennen->setTitle(QString::fromStdString(Antennenkopf()));
  katalog_ = KatalogLesen(zustand_.ProgrammVerzeichnis);
  suche_.emplace(katalog_.Antennen);
  for (const std::string& zeile : katalog_.zeilen) {
    zeilen_ << QString::fromStdString(zeile);
    auto* eintrag = new QListWidgetItem(zeilen_.last());
    eintrag->setData(Qt::UserRole, int(zeilen_.size()) - 1);
    LstAntennen->addItem(eintrag);
  }
  LstAntennen->setCurrentRow(-1);
  ListeEingrenzen();
  if (!katalog_.Meldung.empty()) {
    Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(katalog_.Meldung, "Hinweis"));
  }
  if (katalog_.fehler) Zeigen(plattform_.boxen, zustand_.werte, Fehlermeldung(*katalog_.fehler));
}

void AntennenTab::ListeEingrenzen() {
  if (!suche_) return;
  const std::vector<bool> treffer = suche_->Treffer(txtSuche->text().toStdString());
  const std::string* gruppe = nullptr;
  int anzahl = 0;
  for (int i = 0; i < LstAntennen->count(); ++i) {
    const auto k = std::size_t(i);
    const bool zeigen = treffer[k];
    if (LstAntennen->isRowHidden(i) == zeigen) LstAntennen->setRowHidden(i, !zeigen);
    if (!zeigen) continue;
    ++anzahl;
    // The line that names the maker may be hidden; the first of its group that is left names it then.
    const std::string& hersteller = katalog_.Antennen[k].hersteller;
    const bool neueGruppe = gruppe == nullptr || *gruppe != hersteller;
    gruppe = &hersteller;
    const QString zeile = neueGruppe ? MitHersteller(zeilen_.at(i), hersteller) : zeilen_.at(i);
    if (LstAntennen->item(i)->text() != zeile) LstAntennen->item(i)->setText(zeile);
  }
  // A pending layout would scroll by the places that the lines had before.
  LstAntennen->doItemsLayout();
  const int gewaehlt = LstAntennen->currentRow();
  if (gewaehlt >= 0 && treffer[std::size_t(gewaehlt)]) LstAntennen->scrollToItem(LstAntennen->item(gewaehlt));
  lblTreffer->setText(u"%1 von %2"_s.arg(anzahl).arg(LstAntennen->count()));
}

void AntennenTab::ErsteWaehlen() {
  for (int i = 0; i < LstAntennen->count(); ++i) {
    if (LstAntennen->isRowHidden(i)) continue;
    LstAntennen->setCurrentRow(i);
    LstAntennen->setFocus(Qt::OtherFocusReason);
    AntenneGewaehlt(i);
    return;
  }
}

void AntennenTab::AntenneGewaehlt(int zeile) {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    Rechenwerte& werte = zustand_.werte;
    AntennenIndex = static_cast<std::int16_t>(LstAntennen->item(zeile)->data(Qt::UserRole).toInt());
    const Antenne& antenne = katalog_.Antennen.at(std::size_t(AntennenIndex));
    List1->clear();
    werte.Pruefergebnis = false;
    cmdAntenne->setEnabled(true);
    gewinn_.reset();

    const Antennenwahl wahl = AntenneWaehlen(antenne, werte.QRGText);
    for (const std::string& band : wahl.zeilen) List1->addItem(QString::fromStdString(band));
    List1->setCurrentRow(wahl.markiert);
    gewinn_ = wahl.gewinn;
    if (wahl.gewinn) werte.GewinnText = *wahl.gewinn;
    werte.Pruefergebnis = wahl.Passt();
    if (!wahl.Passt()) return;
    const QString name = QString::fromStdString(antenne.hersteller + ' ' + antenne.typ).trimmed();
    Q_EMIT antenneGewaehlt(name, QString::fromStdString(*wahl.gewinn), QString::fromStdString(werte.QRGText));
  });
}

void AntennenTab::AntenneNehmen() {
  Abgefangen(plattform_.boxen, zustand_.werte, [&] {
    // A button that is disabled hands its focus on to anywhere.
    LstAntennen->setFocus(Qt::OtherFocusReason);
    cmdAntenne->setEnabled(false);
    // The shared flag may have been set by a calculation since; without a gain there is nothing to take.
    if (zustand_.werte.Pruefergebnis && gewinn_ && AntennenIndex >= 0) {
      Uebernehmen(katalog_.Antennen.at(std::size_t(AntennenIndex)));
    } else if (Zahl(zustand_.werte.QRGText) > 0) {
      Zeigen(plattform_.boxen, zustand_.werte,
             Fehlermeldung("Die Antenne paßt nicht zur Frequenzvorgabe.\nBitte eine andere Antenne wählen!",
                           "Fehler"));
    }
  });
}

void AntennenTab::Uebernehmen(const Antenne& antenne) {
  Rechenwerte& werte = zustand_.werte;
  const QString gewinn = QString::fromStdString(*gewinn_);
  lblAntenne->setText(QString::fromStdString(antenne.typ));
  umgebung_.HauptgewinnSetzen(gewinn);
  werte.GewinnText = *gewinn_;
  if (werte.Spalte == 0 || umgebung_.OptionenBeruecksichtigen()) {
    SatzAendern(zustand_, werte.Spalte, [&](Datenblattspalte& satz) {
      satz.Antenne = antenne.typ;
      satz.Gewinn = *gewinn_;
    });
    if (werte.Spalte != 0) {
      umgebung_.ZelleSetzen(werte.Spalte, ZeileGewinn, gewinn);
      umgebung_.ZelleSetzen(werte.Spalte, ZeileAntenne, lblAntenne->text());
    }
  }
  Neurechnen(zustand_, umgebung_);
}

void AntennenTab::SatzLaden(const Datenblattspalte& satz) {
  lblAntenne->setText(QString::fromStdString(satz.Antenne));
}

void AntennenTab::SatzSchreiben(Datenblattspalte& satz) const {
  satz.Antenne = lblAntenne->text().toStdString();
}

bool AntennenTab::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (objekt == txtSuche && ereignis->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(ereignis)->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Down:
        ErsteWaehlen();
        return true;
      case Qt::Key_Escape:
        txtSuche->clear();
        return true;
      default:
        break;
    }
  }
  return QWidget::eventFilter(objekt, ereignis);
}

}  // namespace vesk
