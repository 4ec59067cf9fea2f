#include "ui/info/frmHilfe.h"

#include <QAction>
#include <QDesktopServices>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/Drucker.h"
#include "platform/Plattform.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Menue.h"
#include "ui/info/Hilfebuch.h"
#include "ui/info/Seitenanzeige.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int Seitenrolle = Qt::UserRole;

}  // namespace

frmHilfe::frmHilfe(Hilfebuch& buch, Meldungsboxen& boxen, Drucker& drucker, QWidget* eltern)
    : QMainWindow(eltern),
      buch_(buch),
      boxen_(boxen),
      drucker_(drucker),
      tabLinks(new QTabWidget(this)),
      treInhalt(new QTreeWidget(this)),
      txtSuche(new QLineEdit(this)),
      lstFundstellen(new QListWidget(this)),
      anzSeite(new Seitenanzeige(buch, this)) {
  setObjectName(u"frmHilfe"_s);
  setWindowTitle(u"Hilfe"_s);
  MenuesAufbauen();
  AnsichtAufbauen();
  connect(anzSeite, &QTextBrowser::sourceChanged, this, &frmHilfe::SeiteGewechselt);
  connect(anzSeite, &QTextBrowser::anchorClicked, this, &frmHilfe::Aufschlagen);
}

void frmHilfe::Drucken() {
  const Druckausgang ausgang = drucker_.TextDrucken(*anzSeite->Druckfassung(), windowTitle());
  if (const auto meldung = Druckmeldung(ausgang)) boxen_.Zeigen(*meldung);
}

void frmHilfe::MenuesAufbauen() {
  const auto eintrag = [this](QMenu* menue, const QString& name, const QString& text,
                              const QKeySequence& taste, auto tun) {
    QAction* aktion = menue->addAction(text);
    aktion->setObjectName(name);
    aktion->setShortcut(taste);
    connect(aktion, &QAction::triggered, this, tun);
    return aktion;
  };
  const auto menue = [this](const QString& titel) {
    auto* neu = new Fenstermenue(titel, this);
    menuBar()->addMenu(neu);
    return neu;
  };
  QMenu* datei = menue(u"&Datei"_s);
  QAction* drucken =
      eintrag(datei, u"mnuDrucken"_s, u"Seite &drucken …"_s, QKeySequence::Print, [this] { Drucken(); });
  datei->addSeparator();
  eintrag(datei, u"mnuSchliessen"_s, u"&Schließen"_s, Qt::Key_Escape, [this] { close(); });

  QMenu* gehen = menue(u"&Gehe zu"_s);
  QAction* zurueck =
      eintrag(gehen, u"mnuZurueck"_s, u"&Zurück"_s, Qt::ALT | Qt::Key_Left, [this] { anzSeite->backward(); });
  QAction* vor =
      eintrag(gehen, u"mnuVor"_s, u"&Vor"_s, Qt::ALT | Qt::Key_Right, [this] { anzSeite->forward(); });
  QAction* anfang = eintrag(gehen, u"mnuAnfang"_s, u"&Anfang des Handbuchs"_s, Qt::ALT | Qt::Key_Home,
                            [this] { Zeigen(u"start.html"_s); });
  gehen->addSeparator();
  eintrag(gehen, u"mnuSuchen"_s, u"&Suchen"_s, QKeySequence::Find, [this] {
    tabLinks->setCurrentIndex(1);
    txtSuche->setFocus(Qt::ShortcutFocusReason);
    txtSuche->selectAll();
  });
  eintrag(gehen, u"mnuWeitersuchen"_s, u"&Nächste Fundstelle in der Seite"_s, Qt::Key_F3,
          [this] { anzSeite->NaechsteMarkierung(); });

  QMenu* ansicht = menue(u"&Ansicht"_s);
  eintrag(ansicht, u"mnuGroesser"_s, u"Schrift &größer"_s, QKeySequence::ZoomIn,
          [this] { anzSeite->zoomIn(); });
  eintrag(ansicht, u"mnuKleiner"_s, u"Schrift &kleiner"_s, QKeySequence::ZoomOut,
          [this] { anzSeite->zoomOut(); });
  QMenu* hilfe = menue(u"&Hilfe"_s);
  eintrag(hilfe, u"mnuHilfeBenutzen"_s, u"Hilfe &benutzen"_s, Qt::Key_F1,
          [this] { Zeigen(u"hilfe-benutzen.html"_s); });

  const auto erlauben = [](QAction* aktion, const QString& grund) {
    return [=](bool an) {
      aktion->setEnabled(an);
      aktion->setToolTip(an ? QString() : grund);
    };
  };
  const auto zurueckErlauben = erlauben(zurueck, u"Davor ist keine Seite gezeigt worden."_s);
  const auto vorErlauben = erlauben(vor, u"Danach ist keine Seite gezeigt worden."_s);
  zurueckErlauben(false);
  vorErlauben(false);
  connect(anzSeite, &QTextBrowser::backwardAvailable, zurueck, zurueckErlauben);
  connect(anzSeite, &QTextBrowser::forwardAvailable, vor, vorErlauben);
  zurueck->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  vor->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
  anfang->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
  anfang->setIconText(u"Anfang"_s);
  drucken->setIconText(u"Drucken"_s);
  auto* leiste = addToolBar(u"Werkzeugleiste"_s);
  leiste->setObjectName(u"tlbHilfe"_s);
  leiste->setMovable(false);
  leiste->setContextMenuPolicy(Qt::PreventContextMenu);
  leiste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  leiste->addActions({zurueck, vor, anfang, drucken});
}

void frmHilfe::AnsichtAufbauen() {
  tabLinks->setObjectName(u"tabLinks"_s);
  tabLinks->addTab(InhaltAufbauen(), u"&Inhalt"_s);
  tabLinks->addTab(SucheAufbauen(), u"&Suchen"_s);
  anzSeite->setObjectName(u"anzSeite"_s);
  anzSeite->setAccessibleName(u"Hilfeseite"_s);

  auto* teiler = new QSplitter(this);
  teiler->addWidget(tabLinks);
  teiler->addWidget(anzSeite);
  teiler->setStretchFactor(1, 1);
  teiler->setChildrenCollapsible(false);
  setCentralWidget(teiler);

  const QFontMetrics mass = fontMetrics();
  anzSeite->document()->setDocumentMargin(mass.height());
  const auto links = [this, inhalt = static_cast<const QAbstractItemView*>(treInhalt)] {
    return inhalt->sizeHintForColumn(0) + 2 * fontMetrics().height();  // and its scroll bar
  };
  const int rechts = mass.averageCharWidth() * 110;
  const QSize platz = screen()->availableSize() * 9 / 10;
  resize(QSize(links() + rechts, mass.height() * 44).boundedTo(platz));
  const int hoechstens = width() * 2 / 5;
  for (const qreal faktor : {0.9, 0.8, 0.7, 0.6}) {
    if (links() > hoechstens) treInhalt->setFont(Vergroessert(font(), faktor));
  }
  const int breite = std::min(links(), hoechstens);
  teiler->setSizes({breite, width() - breite});
}

QWidget* frmHilfe::InhaltAufbauen() {
  treInhalt->setObjectName(u"treInhalt"_s);
  treInhalt->setAccessibleName(u"Inhalt des Handbuchs"_s);
  treInhalt->setHeaderHidden(true);
  treInhalt->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  treInhalt->setIndentation(2 * treInhalt->fontMetrics().averageCharWidth());
  QList<QTreeWidgetItem*> pfad;
  for (const Hilfeseite& seite : buch_.Inhalt()) {
    const int ebene = std::min(seite.ebene, static_cast<int>(pfad.size()));
    pfad.resize(ebene);
    auto* eintrag = pfad.isEmpty() ? new QTreeWidgetItem(treInhalt) : new QTreeWidgetItem(pfad.constLast());
    eintrag->setText(0, seite.titel);
    eintrag->setToolTip(0, seite.titel);
    eintrag->setData(0, Seitenrolle, seite.name);
    pfad.append(eintrag);
  }
  treInhalt->expandAll();
  connect(treInhalt, &QTreeWidget::itemActivated, this, &frmHilfe::EintragGewaehlt);
  connect(treInhalt, &QTreeWidget::itemClicked, this, &frmHilfe::EintragGewaehlt);
  return treInhalt;
}

QWidget* frmHilfe::SucheAufbauen() {
  auto* seite = new QWidget(this);
  auto* label = new QLabel(u"Such&begriff:"_s, seite);
  auto* cmdSuchen = new QPushButton(u"&Finden"_s, seite);
  auto* lblFundstellen = new QLabel(u"F&undstellen:"_s, seite);
  label->setObjectName(u"lblSuche"_s);
  label->setBuddy(txtSuche);
  txtSuche->setObjectName(u"txtSuche"_s);
  txtSuche->setAccessibleName(u"Suchbegriff"_s);
  cmdSuchen->setObjectName(u"cmdSuchen"_s);
  lblFundstellen->setObjectName(u"lblFundstellen"_s);
  lblFundstellen->setBuddy(lstFundstellen);
  lstFundstellen->setObjectName(u"lstFundstellen"_s);
  lstFundstellen->setAccessibleName(u"Fundstellen"_s);
  lstFundstellen->setWordWrap(true);
  lstFundstellen->setAlternatingRowColors(true);

  auto* zeile = new QHBoxLayout;
  zeile->addWidget(txtSuche);
  zeile->addWidget(cmdSuchen);
  auto* spalte = new QVBoxLayout(seite);
  spalte->addWidget(label);
  spalte->addLayout(zeile);
  spalte->addWidget(lblFundstellen);
  spalte->addWidget(lstFundstellen, 1);

  connect(txtSuche, &QLineEdit::returnPressed, this, &frmHilfe::Suchen);
  connect(cmdSuchen, &QPushButton::clicked, this, &frmHilfe::Suchen);
  connect(lstFundstellen, &QListWidget::itemActivated, this, &frmHilfe::FundstelleZeigen);
  connect(lstFundstellen, &QListWidget::itemClicked, this, &frmHilfe::FundstelleZeigen);
  return seite;
}

QString frmHilfe::AktuelleSeite() const {
  return Seitenname(anzSeite->source());
}

void frmHilfe::Zeigen(const QString& seite) {
  suchworte_.clear();
  Aufschlagen(Seitenadresse(seite));
}

void frmHilfe::Aufschlagen(const QUrl& ziel) {
  if (ziel.scheme() != u"hilfe"_s) {
    QDesktopServices::openUrl(ziel);
    return;
  }
  if (!buch_.Html(Seitenname(ziel))) {
    boxen_.Zeigen(Fehlermeldung("Hilfedatei nicht gefunden: " + Seitenname(ziel).toStdString()));
    return;
  }
  anzSeite->setSource(ziel);
  anzSeite->setFocus(Qt::OtherFocusReason);
}

void frmHilfe::SeiteGewechselt(const QUrl& adresse) {
  // The browser's own source() still names the page before.
  const QString name = Seitenname(adresse);
  const QString seite = name.startsWith(u"kontext-"_s) ? u"kontext.html"_s : name;
  setWindowTitle(u"Hilfe – "_s + anzSeite->documentTitle());
  for (QTreeWidgetItemIterator i(treInhalt); *i != nullptr; ++i) {
    if ((*i)->data(0, Seitenrolle).toString() == seite) treInhalt->setCurrentItem(*i);
  }
  anzSeite->Hervorheben(suchworte_);
}

void frmHilfe::EintragGewaehlt(QTreeWidgetItem* eintrag) {
  const QString seite = eintrag->data(0, Seitenrolle).toString();
  // A click both clicks and, on some desktops, activates.
  if (seite != AktuelleSeite()) Zeigen(seite);
}

void frmHilfe::Suchen() {
  lstFundstellen->clear();
  for (const Fundstelle& fundstelle : buch_.Suchen(txtSuche->text())) {
    auto* eintrag = new QListWidgetItem(fundstelle.titel + u'\n' + fundstelle.auszug, lstFundstellen);
    eintrag->setData(Seitenrolle, fundstelle.seite);
  }
  if (lstFundstellen->count() == 0) {
    auto* eintrag = new QListWidgetItem(u"Nichts gefunden."_s, lstFundstellen);
    eintrag->setFlags(Qt::NoItemFlags);
    return;
  }
  lstFundstellen->setCurrentRow(0);
  lstFundstellen->setFocus(Qt::OtherFocusReason);
}

void frmHilfe::FundstelleZeigen(QListWidgetItem* fundstelle) {
  const QString seite = fundstelle->data(Seitenrolle).toString();
  if (seite.isEmpty()) return;
  suchworte_ = txtSuche->text();
  if (seite == AktuelleSeite()) {
    anzSeite->Hervorheben(suchworte_);
  } else {
    Aufschlagen(Seitenadresse(seite));
  }
  lstFundstellen->setFocus(Qt::OtherFocusReason);
}

}  // namespace vesk
