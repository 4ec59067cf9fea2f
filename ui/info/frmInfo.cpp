#include "ui/info/frmInfo.h"

#include <QClipboard>
#include <QDir>
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

#include "engine/Version.h"
#include "station/Station.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Programmbild.h"

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

frmInfo::frmInfo(QWidget* eltern) : QDialog(eltern), lblDatei(Textlabel(u"lblDatei"_s, QString(), this)) {
  setObjectName(u"frmInfo"_s);
  setModal(true);
  setWindowTitle(u"Info über Vesk"_s);
  setProperty(HilfekontextEigenschaft, 4001);
  auto* spalte = new QVBoxLayout(this);
  KopfAnlegen(*spalte);
  SystemAnlegen(*spalte);
}

void frmInfo::KopfAnlegen(QVBoxLayout& spalte) {
  auto* lblBild = new QLabel(this);
  lblBild->setObjectName(u"lblBild"_s);
  lblBild->setPixmap(Programmbild(fontMetrics().height() * 4, devicePixelRatioF()));
  auto* lblName = Textlabel(u"lblName"_s, NameUndVersion(), this);
  QFont gross = lblName->font();
  gross.setPointSizeF(gross.pointSizeF() * 1.5);
  gross.setBold(true);
  lblName->setFont(gross);
  auto* lblZweck = Textlabel(
      u"lblZweck"_s,
      u"Berechnet die Sicherheitsabstände ortsfester Amateurfunkstellen nach Vfg 306/97 und DIN VDE 0848 "
      u"Teil 3-1 (Entwurf vom 11.11.98), für Personen mit und ohne Herzschrittmacher, und führt das "
      u"Datenblatt für den Antrag bei der Regulierungsbehörde."_s,
      this);
  // A small screen would else cut the wrapped text: the window's height is bounded before its width is known.
  const int textbreite = fontMetrics().averageCharWidth() * 64;
  lblZweck->setMinimumSize(textbreite, lblZweck->heightForWidth(textbreite));
  auto* lblGewaehr = Textlabel(u"lblGewaehr"_s, u"Alle Angaben ohne Gewähr"_s, this);
  QFont fett = lblGewaehr->font();
  fett.setBold(true);
  lblGewaehr->setFont(fett);

  auto* texte = new QVBoxLayout;
  for (QLabel* label : {lblName, lblZweck, lblGewaehr, lblDatei}) texte->addWidget(label);
  auto* kopf = new QHBoxLayout;
  kopf->addWidget(lblBild, 0, Qt::AlignTop);
  kopf->addLayout(texte, 1);
  spalte.addLayout(kopf);
}

void frmInfo::SystemAnlegen(QVBoxLayout& spalte) {
  auto* lblSystem = Textlabel(u"lblSystem"_s, u"Angaben für Fehlermeldungen:"_s, this);
  auto* txtSystem = new QPlainTextEdit(Systemangaben(*screen()), this);
  txtSystem->setObjectName(u"txtSystem"_s);
  txtSystem->setAccessibleName(u"Angaben für Fehlermeldungen"_s);
  txtSystem->setReadOnly(true);
  txtSystem->setTabChangesFocus(true);
  txtSystem->setFixedHeight(fontMetrics().lineSpacing() * 7);
  lblSystem->setBuddy(txtSystem);
  auto* cmdKopieren = new QPushButton(u"Angaben &kopieren"_s, this);
  cmdKopieren->setObjectName(u"cmdKopieren"_s);
  cmdKopieren->setAutoDefault(false);
  connect(cmdKopieren, &QPushButton::clicked, this,
          [txtSystem] { QGuiApplication::clipboard()->setText(txtSystem->toPlainText()); });
  auto* cmdOK = new QPushButton(u"&OK"_s, this);
  cmdOK->setObjectName(u"cmdOK"_s);
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  cmdOK->setFocus();

  spalte.addWidget(lblSystem);
  spalte.addWidget(txtSystem, 1);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(cmdKopieren);
  knoepfe->addStretch();
  knoepfe->addWidget(cmdOK);
  spalte.addLayout(knoepfe);
}

void frmInfo::Zeigen(const Station& station) {
  const QDir verzeichnis(QString::fromStdString(station.Arbeitsverzeichnis));
  const QString datei = verzeichnis.filePath(QString::fromStdString(station.UserDatei));
  Schreiben(*lblDatei, "Ihre Daten: " + QDir::toNativeSeparators(datei).toStdString());
}

}  // namespace vesk
