#include "ui/bands/frmBaender.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "print/Kurven.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/charts/Kurvenblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// Columns of the table.
constexpr int Band = 0;
constexpr int Frequenz = 1;
constexpr int Grenzwert = 4;
constexpr int Nahfeld = 5;
constexpr int ErstesErgebnis = 6;
constexpr int Hinweisspalte = 9;
constexpr std::size_t Spaltenzahl = 10;

constexpr std::array<const char16_t*, Spaltenzahl> Koepfe = {
    u"Band",         u"Frequenz\n[MHz]", u"Gewinn\n[dBi]", u"Verluste\n[dB]", u"Grenzwert\n[V/m]",
    u"Nahfeld\n[m]", u"ohne HSM\n[m]",   u"HSM VDE\n[m]",  u"HSM 306\n[m]",   u"Hinweis"};

constexpr Feldhilfe Tooltips[] = {
    {u"tblBaender", u"Leertaste kreuzt ein Band an, Enter kopiert die angekreuzten Bänder"},
    {u"cmdAlle", u"Kreuzt alle Bänder an, die sich berechnen lassen"},
    {u"cmdKeine", u"Nimmt alle Kreuze zurück"},
    {u"cmdBaenderKopieren", u"Jedes angekreuzte Band in die nächste freie Spalte des Datenblatts"},
};

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

std::array<QString, Spaltenzahl> Zellen(const Bandzeile& zeile) {
  const auto zahl = [&](Feld feld) {
    const std::string wert = zeile.texte[feld].value_or("");
    return wert.empty() ? u"–"_s : Text(wert);
  };
  return {QString::fromLatin1(zeile.band->name),
          Text(zeile.frequenz),
          Text(zeile.gewinn),
          Text(zeile.verluste),
          zahl(Feld::GrenzwertOhneHSM),
          zahl(Feld::Nahfeld),
          zahl(Feld::AusgabeOhneHSM),
          zahl(Feld::AusgabeHSMvde),
          zahl(Feld::AusgabeHSM306),
          Text(zeile.hinweis)};
}

/// What is not in the table, or has no room there.
QString Zeilentext(const Bandzeile& zeile) {
  QString text = QString::fromLatin1(zeile.band->name) + u", "_s + Text(zeile.frequenz) + u" MHz: "_s;
  const auto angabe = [&](Feld feld, const QString& name, const QString& einheit) {
    const std::string wert = zeile.texte[feld].value_or("");
    if (!wert.empty()) text += name + u' ' + Text(wert) + einheit;
  };
  angabe(Feld::GrenzwertOhneHSM, u"Grenzwert ohne HSM"_s, u" V/m"_s);
  angabe(Feld::GrenzwertHSMvde, u", HSM VDE"_s, u" V/m"_s);
  angabe(Feld::GrenzwertHSM306, u", HSM 306"_s, u" V/m"_s);
  angabe(Feld::Nahfeld, u". Nahfeld"_s, u" m. "_s);
  return text + Text(zeile.hinweis);
}

}  // namespace

frmBaender::frmBaender(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern)
    : QDialog(eltern, Qt::Window),
      ablauf_(ablauf),
      kataloge_(kataloge),
      lblGrundlage(new QLabel(this)),
      lblHinweis(new QLabel(this)),
      lblAnzahl(new QLabel(this)),
      tblBaender(new QTableWidget(this)),
      imgBaender(new Kurvenblick(this)),
      imgGross(new Kurvenblick(this)) {
  setObjectName(u"frmBaender"_s);
  setWindowTitle(u"Alle Bänder"_s);
  setProperty(HilfekontextEigenschaft, 6001);
  lblGrundlage->setObjectName(u"lblGrundlage"_s);
  lblGrundlage->setWordWrap(true);
  lblHinweis->setObjectName(u"lblHinweis"_s);
  lblHinweis->setWordWrap(true);
  lblAnzahl->setObjectName(u"lblAnzahl"_s);
  imgBaender->setObjectName(u"imgBaender"_s);
  imgGross->setObjectName(u"imgGross"_s);
  for (Kurvenblick* bild : {imgBaender, imgGross}) bild->setAccessibleName(u"Diagramm aller Bänder"_s);
  TabelleAnlegen();

  auto* tabelle = new QWidget(this);
  auto* untereinander = new QVBoxLayout(tabelle);
  untereinander->setContentsMargins(0, 0, 0, 0);
  untereinander->addWidget(tblBaender, 5);
  untereinander->addWidget(lblHinweis);
  untereinander->addWidget(imgBaender, 4);
  auto* karten = new QTabWidget(this);
  karten->setObjectName(u"SSTab1"_s);
  karten->addTab(tabelle, u"&Tabelle"_s);
  karten->addTab(imgGross, u"&Diagramm"_s);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(lblGrundlage);
  spalte->addWidget(karten, 1);
  spalte->addWidget(KnoepfeAnlegen());
  const QSize platz = screen()->availableSize();
  resize(QSize(1000, 820).boundedTo({platz.width() * 19 / 20, platz.height() * 7 / 8}));
  tblBaender->setFocus();
}

void frmBaender::TabelleAnlegen() {
  tblBaender->setObjectName(u"tblBaender"_s);
  tblBaender->setAccessibleName(u"Alle Bänder"_s);
  tblBaender->setRowCount(static_cast<int>(Amateurbaender().size()));
  tblBaender->setColumnCount(static_cast<int>(Spaltenzahl));
  for (int zeile = 0; zeile < tblBaender->rowCount(); ++zeile) {
    for (int i = 0; i < tblBaender->columnCount(); ++i) {
      auto* zelle = new QTableWidgetItem;
      const bool zahl = i != Band && i != Hinweisspalte;
      // On the ground of the table a box without a tick would not be seen in a dark theme.
      if (i == Band) zelle->setBackground(palette().window());
      zelle->setTextAlignment((zahl ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
      tblBaender->setItem(zeile, i, zelle);
    }
  }
  tblBaender->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblBaender->setSelectionMode(QAbstractItemView::SingleSelection);
  tblBaender->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblBaender->setTabKeyNavigation(false);
  tblBaender->setWordWrap(false);
  tblBaender->verticalHeader()->hide();
  tblBaender->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
  tblBaender->verticalHeader()->setMinimumSectionSize(fontMetrics().height());
  QHeaderView* kopf = tblBaender->horizontalHeader();
  kopf->setSectionResizeMode(QHeaderView::ResizeToContents);
  kopf->setSectionResizeMode(Hinweisspalte, QHeaderView::Stretch);
  kopf->setMinimumSectionSize(fontMetrics().averageCharWidth() * 6);
  kopf->setHighlightSections(false);
  tblBaender->installEventFilter(this);
  tblBaender->setCurrentCell(0, Band);
  connect(tblBaender, &QTableWidget::currentCellChanged, this, &frmBaender::HinweisZeigen);
  connect(tblBaender, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* zelle) {
    if (zelle->column() == Band) Umschalten(zelle->row());
  });
}

QWidget* frmBaender::KnoepfeAnlegen() {
  auto* leiste = new QWidget(this);
  auto* reihe = new QHBoxLayout(leiste);
  reihe->setContentsMargins(0, 0, 0, 0);
  const auto knopf = [&](const QString& name, const QString& text, auto tun) {
    auto* neu = new QPushButton(text, leiste);
    neu->setObjectName(name);
    neu->setAutoDefault(false);
    connect(neu, &QPushButton::clicked, this, tun);
    return neu;
  };
  reihe->addWidget(knopf(u"cmdAlle"_s, u"&Alle"_s, [this] {
    ablauf_.Tun(Mit(BaenderAnkreuzen, KopierbareBaender(zeilen_, Baenderwahl().set())));
  }));
  reihe->addWidget(
      knopf(u"cmdKeine"_s, u"&Keine"_s, [this] { ablauf_.Tun(Mit(BaenderAnkreuzen, Baenderwahl())); }));
  reihe->addWidget(lblAnzahl, 1);
  cmdBaenderKopieren = knopf(u"cmdBaenderKopieren"_s, u"In &Spalten kopieren"_s, [this] {
    ablauf_.Tun([](Station& s, const Kataloge& k) { return BaenderKopieren(s, k, s.schaubilder.baender); });
  });
  cmdBaenderKopieren->setDefault(true);
  reihe->addWidget(cmdBaenderKopieren);
  return leiste;
}

void frmBaender::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
  if (!s.fenster.baender) return gezeigt_.reset();
  if (gezeigt_ == s) return;
  gezeigt_ = s;
  zeilen_ = AlleBaender(s, kataloge_);
  Schreiben(*lblGrundlage, Bandgrundlage(s, kataloge_));
  TabelleZeigen(s);
  HinweisZeigen();
  AnzahlZeigen(s);
  const Baenderbild bild = BaenderbildVon(s, zeilen_);
  for (Kurvenblick* blick : {imgBaender, imgGross}) {
    blick->Zeigen([bild](Blatt& blatt, const QRectF& flaeche,
                         const Bildfarben& farben) { BaenderbildMalen(blatt, flaeche, bild, farben); },
                  u"Die Tabelle nennt die Werte. "_s + Bildtext(bild.abstaende));
  }
}

void frmBaender::TabelleZeigen(const Station& s) {
  const QSignalBlocker sperre(tblBaender);
  QStringList koepfe;
  for (const char16_t* kopf : Koepfe) koepfe << QString::fromUtf16(kopf);
  if (s.modus == Modus::Leistung) {
    for (int i = ErstesErgebnis; i < Hinweisspalte; ++i) koepfe[i].replace(u"[m]"_s, u"[W]"_s);
  }
  tblBaender->setHorizontalHeaderLabels(koepfe);
  for (int i = 0; i < tblBaender->rowCount(); ++i) {
    const Bandzeile& zeile = zeilen_.at(static_cast<std::size_t>(i));
    const auto texte = Zellen(zeile);
    for (int spalte = 0; spalte < tblBaender->columnCount(); ++spalte) {
      QTableWidgetItem& zelle = *tblBaender->item(i, spalte);
      zelle.setText(texte.at(static_cast<std::size_t>(spalte)));
      zelle.setForeground(
          palette().brush(zeile.rechenbar ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    }
    const bool an = s.schaubilder.baender.test(static_cast<std::size_t>(i));
    const QVariant kreuz = an ? Qt::Checked : Qt::Unchecked;
    tblBaender->item(i, Band)->setData(Qt::CheckStateRole, zeile.rechenbar ? kreuz : QVariant());
  }
}

void frmBaender::AnzahlZeigen(const Station& s) {
  const auto zahl = static_cast<int>(KopierbareBaender(zeilen_, s.schaubilder.baender).count());
  const int frei = FreieSpalten(s);
  QString text =
      u"%1 angekreuzt, %2 %3 frei"_s.arg(zahl).arg(frei).arg(frei == 1 ? u"Spalte"_s : u"Spalten"_s);
  Schreiben(*lblAnzahl, text.toStdString());
  const bool moeglich = zahl > 0 && zahl <= frei;
  // Disabling it would send the focus anywhere.
  if (!moeglich && focusWidget() == cmdBaenderKopieren) tblBaender->setFocus();
  const QString grund =
      zahl > 0 ? u"Es sind mehr Bänder angekreuzt als Spalten frei."_s : u"Es ist kein Band angekreuzt."_s;
  Sperren(*cmdBaenderKopieren, moeglich ? QString() : grund);
}

void frmBaender::HinweisZeigen() {
  const int zeile = tblBaender->currentRow();
  if (zeilen_.empty() || zeile < 0) return;
  Schreiben(*lblHinweis, Zeilentext(zeilen_.at(static_cast<std::size_t>(zeile))).toStdString());
}

void frmBaender::Umschalten(int zeile) {
  const auto band = static_cast<std::size_t>(zeile);
  if (!zeilen_.at(band).rechenbar) return;
  ablauf_.Tun([band](Station& s, const Kataloge& k) {
    return BandAnkreuzen(s, k, band, !s.schaubilder.baender.test(band));
  });
}

bool frmBaender::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (objekt == tblBaender && ereignis->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(ereignis)->key()) {
      case Qt::Key_Space:
        Umschalten(tblBaender->currentRow());
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
        cmdBaenderKopieren->click();
        return true;
      default:
        break;
    }
  }
  return QDialog::eventFilter(objekt, ereignis);
}

/// In a low window the table needs the room, for the chart has a page of its own; in a narrow one the
/// distances need it, for the line below the table tells the rest.
void frmBaender::resizeEvent(QResizeEvent* ereignis) {
  QDialog::resizeEvent(ereignis);
  constexpr int Zeilen = 35;
  constexpr int Zeichen = 115;
  imgBaender->setVisible(height() > Zeilen * fontMetrics().height());
  const bool schmal = width() < Zeichen * fontMetrics().averageCharWidth();
  for (const int spalte : {Frequenz, Grenzwert, Nahfeld}) {
    tblBaender->setColumnHidden(spalte, schmal);
  }
  // What is told of the next row shall not push the table up and down.
  lblHinweis->setMinimumHeight((schmal ? 2 : 1) * fontMetrics().lineSpacing());
}

void frmBaender::reject() {
  ablauf_.Tun(BaenderSchliessen);
}

}  // namespace vesk
