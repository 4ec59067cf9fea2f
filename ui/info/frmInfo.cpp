#include "frmInfo.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QVBoxLayout>

#include "Feldhilfe.h"
#include "Programmbild.h"
#include "Version.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QString NameUndVersion() {
  return QString::fromUtf8(Produktname.data(), Produktname.size()) + u" Version "_s +
         QString::fromStdString(VersionLang());
}

QString Systemangaben(const QScreen& bildschirm) {
  const QSize groesse = bildschirm.size();
  return NameUndVersion() + u"\nQt "_s + QString::fromLatin1(qVersion()) + u" (übersetzt mit "_s +
         QString::fromLatin1(QT_VERSION_STR) + u")\n"_s + QSysInfo::prettyProductName() + u", "_s +
         QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion() + u", "_s +
         QSysInfo::currentCpuArchitecture() + u"\nAnzeige: "_s + QGuiApplication::platformName() +
         u", %1 × %2, Faktor %3"_s.arg(groesse.width())
             .arg(groesse.height())
             .arg(bildschirm.devicePixelRatio()) +
         u"\nSprache: "_s + QLocale::system().name();
}

QLabel* Textlabel(const QString& name, const QString& text, QWidget* eltern) {
  auto* label = new QLabel(text, eltern);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

frmInfo::frmInfo(QWidget* eltern)
    : QDialog(eltern),
      lblBild(new QLabel(this)),
      lblName(Textlabel(u"lblName"_s, NameUndVersion(), this)),
      lblZweck(Textlabel(
          u"lblZweck"_s,
          u"Berechnet die Sicherheitsabstände ortsfester Amateurfunkstellen nach Vfg 306/97 und DIN VDE 0848 "
          u"Teil 3-1 (Entwurf vom 11.11.98), für Personen mit und ohne Herzschrittmacher, und führt das "
          u"Datenblatt für den Antrag bei der Regulierungsbehörde."_s,
          this)),
      lblGewaehr(Textlabel(u"lblGewaehr"_s, u"Alle Angaben ohne Gewähr"_s, this)),
      lblSystem(Textlabel(u"lblSystem"_s, u"Angaben für Fehlermeldungen:"_s, this)),
      txtSystem(new QPlainTextEdit(this)),
      cmdKopieren(new QPushButton(u"Angaben &kopieren"_s, this)),
      cmdOK(new QPushButton(u"&OK"_s, this)) {
  setObjectName(u"frmInfo"_s);
  setWindowTitle(u"Info über Vesk"_s);
  setProperty(HilfekontextEigenschaft, 4001);
  Aufbauen();
  connect(cmdKopieren, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(txtSystem->toPlainText()); });
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmInfo::Aufbauen() {
  lblBild->setObjectName(u"lblBild"_s);
  lblBild->setPixmap(Programmbild(fontMetrics().height() * 4, devicePixelRatioF()));
  QFont gross = lblName->font();
  gross.setPointSizeF(gross.pointSizeF() * 1.5);
  gross.setBold(true);
  lblName->setFont(gross);
  QFont fett = lblGewaehr->font();
  fett.setBold(true);
  lblGewaehr->setFont(fett);

  txtSystem->setObjectName(u"txtSystem"_s);
  txtSystem->setAccessibleName(u"Angaben für Fehlermeldungen"_s);
  txtSystem->setReadOnly(true);
  txtSystem->setTabChangesFocus(true);
  txtSystem->setPlainText(Systemangaben(*screen()));
  lblSystem->setBuddy(txtSystem);
  const QFontMetrics mass = fontMetrics();
  txtSystem->setFixedHeight(mass.lineSpacing() * 7);
  // A small screen would else cut the wrapped text: the window's height is bounded before its width is known.
  const int textbreite = mass.averageCharWidth() * 64;
  lblZweck->setMinimumSize(textbreite, lblZweck->heightForWidth(textbreite));
  cmdKopieren->setObjectName(u"cmdKopieren"_s);
  cmdKopieren->setAutoDefault(false);
  cmdOK->setObjectName(u"cmdOK"_s);
  cmdOK->setDefault(true);

  auto* kopf = new QVBoxLayout;
  kopf->addWidget(lblName);
  kopf->addWidget(lblZweck);
  kopf->addWidget(lblGewaehr);
  auto* oben = new QHBoxLayout;
  oben->addWidget(lblBild, 0, Qt::AlignTop);
  oben->addLayout(kopf, 1);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(cmdKopieren);
  knoepfe->addStretch();
  knoepfe->addWidget(cmdOK);
  auto* spalte = new QVBoxLayout(this);
  spalte->addLayout(oben);
  spalte->addWidget(lblSystem);
  spalte->addWidget(txtSystem, 1);
  spalte->addLayout(knoepfe);
  cmdOK->setFocus();
}

}  // namespace vesk
