#include "ui/plan/Befundseite.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/basis/Auswahlliste.h"
#include "ui/basis/Feldhilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Each zone of an antenna that does not fit, and what would help it.
QString Abhilfen(const Station& s, std::size_t antenne) {
  const Planpruefung pruefung(s.lageplan);
  QStringList texte;
  for (const Zone& zone : ZonenBestimmen(s)) {
    if (zone.antenne != antenne) continue;
    if (Passend(pruefung, s.lageplan, zone)) continue;
    texte << u"%1: %2"_s.arg(QString::fromUtf8(Zonenname(zone.art)),
                             QString::fromStdString(Abhilfetext(AbhilfeSuchen(s, zone))));
  }
  return texte.join(u"\n\n"_s);
}

}  // namespace

Befundseite::Befundseite(QWidget* eltern)
    : QWidget(eltern),
      lblBefunde(new QLabel(this)),
      lstBefunde(new Auswahlliste(this)),
      cmdAbhilfe(new QPushButton(u"Was würde &helfen?"_s, this)),
      lblAbhilfe(new QLabel(this)) {
  lblBefunde->setObjectName(u"lblBefunde"_s);
  lstBefunde->setObjectName(u"lstBefunde"_s);
  lstBefunde->setAccessibleName(u"Was am Lageplan offen ist"_s);
  lstBefunde->setWordWrap(true);
  cmdAbhilfe->setObjectName(u"cmdAbhilfe"_s);
  cmdAbhilfe->setAutoDefault(false);
  lblAbhilfe->setObjectName(u"lblAbhilfe"_s);
  lblAbhilfe->setTextFormat(Qt::PlainText);
  lblAbhilfe->setWordWrap(true);
  lblAbhilfe->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(lblBefunde);
  spalte->addWidget(lstBefunde, 1);
  spalte->addWidget(cmdAbhilfe);
  spalte->addWidget(lblAbhilfe);
  connect(lstBefunde, &Auswahlliste::gewaehlt, this, &Befundseite::BefundGewaehlt);
  connect(lstBefunde, &QListWidget::currentRowChanged, this, &Befundseite::AbhilfeZeigen);
  connect(cmdAbhilfe, &QPushButton::clicked, this, [this] {
    const auto antenne = Antenne();
    if (!antenne) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString text = Abhilfen(station_, *antenne);
    QApplication::restoreOverrideCursor();
    lblAbhilfe->setText(text.isEmpty() ? u"Die Zonen dieser Antenne passen."_s : text);
    cmdAbhilfe->setAccessibleDescription(lblAbhilfe->text());
  });
  AbhilfeZeigen();
}

void Befundseite::Zeigen(const Station& s) {
  station_ = s;
  std::vector<Planbefund> neu = LageplanPruefen(s);
  if (neu != befunde_) {
    befunde_ = std::move(neu);
    const QSignalBlocker sperre(lstBefunde);
    lstBefunde->clear();
    for (const Planbefund& befund : befunde_) lstBefunde->addItem(QString::fromStdString(befund.text));
  }
  const bool leer = s.lageplan.objekte.empty();
  lblBefunde->setText(!befunde_.empty() ? u"Vor dem Einreichen offen: %1"_s.arg(befunde_.size())
                      : leer            ? u"Es gibt noch keinen Lageplan."_s
                                        : u"Geprüft: Es ist nichts offen."_s);
  AbhilfeZeigen();
}

void Befundseite::BefundGewaehlt(int zeile) {
  if (const auto objekt = befunde_.at(static_cast<std::size_t>(zeile)).objekt) Q_EMIT gewaehlt(*objekt);
}

std::optional<std::size_t> Befundseite::Antenne() const {
  const int zeile = lstBefunde->currentRow();
  if (zeile < 0) return std::nullopt;
  const auto objekt = befunde_.at(static_cast<std::size_t>(zeile)).objekt;
  const bool antenne = objekt && station_.lageplan.objekte.at(*objekt).art == Planart::Antenne;
  return antenne ? objekt : std::nullopt;
}

void Befundseite::AbhilfeZeigen() {
  const bool antenne = Antenne().has_value();
  if (!antenne && cmdAbhilfe->hasFocus()) lstBefunde->setFocus();
  Sperren(*cmdAbhilfe, antenne ? QString() : u"Wählen Sie einen Befund über die Zone einer Antenne."_s);
  if (!lblAbhilfe->text().isEmpty()) lblAbhilfe->clear();
}

}  // namespace vesk
