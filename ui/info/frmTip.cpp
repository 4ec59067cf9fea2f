#include "ui/info/frmTip.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>
#include <utility>

#include "platform/Plattform.h"
#include "ui/basis/Feldhilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {

frmTip::frmTip(Benutzerspeicher& speicher, std::vector<std::string> tips, QWidget* eltern)
    : QDialog(eltern),
      speicher_(speicher),
      tips_(std::move(tips)),
      txtTip(new QPlainTextEdit(this)),
      chkTipsBeimStart(new QCheckBox(u"Tips beim &Start anzeigen"_s, this)),
      cmdNaechsterTip(new QPushButton(u"&Nächster Tip"_s, this)) {
  setObjectName(u"frmTip"_s);
  setWindowTitle(u"Tip des Tages"_s);
  setProperty(HilfekontextEigenschaft, 4001);
  Aufbauen();

  chkTipsBeimStart->setChecked(
      speicher_.Lesen(u"Options"_s, u"Show Tips at Startup"_s).value_or(u"1"_s).toInt() == 1);
  connect(chkTipsBeimStart, &QCheckBox::clicked, this, [this](bool an) {
    speicher_.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, an ? u"1"_s : u"0"_s);
  });
  connect(cmdNaechsterTip, &QPushButton::clicked, this, &frmTip::NaechsterTip);
  naechster_ = speicher_.Lesen(u"Options"_s, u"Next Tip"_s).value_or(QString()).toUInt();
}

void frmTip::showEvent(QShowEvent* ereignis) {
  if (!ereignis->spontaneous()) NaechsterTip();
  QDialog::showEvent(ereignis);
}

void frmTip::Aufbauen() {
  auto* lblTitel = new QLabel(u"Wußten Sie schon …"_s, this);
  lblTitel->setObjectName(u"lblTitel"_s);
  lblTitel->setBuddy(txtTip);
  QFont fett = lblTitel->font();
  fett.setBold(true);
  lblTitel->setFont(fett);
  txtTip->setObjectName(u"txtTip"_s);
  txtTip->setAccessibleName(u"Tip"_s);
  txtTip->setReadOnly(true);
  txtTip->setTabChangesFocus(true);
  const QFontMetrics mass = fontMetrics();
  txtTip->setMinimumSize(mass.averageCharWidth() * 56, mass.lineSpacing() * 7);
  chkTipsBeimStart->setObjectName(u"chkTipsBeimStart"_s);
  cmdNaechsterTip->setObjectName(u"cmdNaechsterTip"_s);
  cmdNaechsterTip->setAutoDefault(false);
  auto* cmdOK = new QPushButton(u"&OK"_s, this);
  cmdOK->setObjectName(u"cmdOK"_s);
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(chkTipsBeimStart);
  knoepfe->addStretch();
  knoepfe->addWidget(cmdNaechsterTip);
  knoepfe->addWidget(cmdOK);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(lblTitel);
  spalte->addWidget(txtTip, 1);
  spalte->addLayout(knoepfe);
  cmdOK->setFocus();
  resize(minimumSizeHint());
}

void frmTip::NaechsterTip() {
  Sperren(*cmdNaechsterTip, tips_.size() > 1 ? QString() : u"Es gibt keinen weiteren Tip."_s);
  if (tips_.empty()) {
    txtTip->setPlainText(u"Keine Tips gefunden."_s);
    return;
  }
  const std::size_t nummer = naechster_ % tips_.size();
  txtTip->setPlainText(QString::fromStdString(tips_[nummer]));
  naechster_ = (nummer + 1) % tips_.size();
  speicher_.Schreiben(u"Options"_s, u"Next Tip"_s, QString::number(naechster_));
}

}  // namespace vesk
