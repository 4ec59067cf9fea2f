#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <cmath>

#include "print/Planbild.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double MeisteBildpunkte = 16e6;

/// Why it cannot be shown; empty: `groesse` is that of the picture.
QString Pruefen(QImageReader& leser, const QFileInfo& datei, QSize& groesse) {
  if (!datei.exists()) return u"Die Datei gibt es nicht."_s;
  if (!datei.isFile()) return u"Das ist keine gewöhnliche Datei."_s;
  if (!datei.isReadable()) return u"Die Datei läßt sich nicht lesen."_s;
  const QByteArray format = leser.format();
  if (format != "png" && format != "jpeg") return u"Die Datei ist weder ein PNG- noch ein JPEG-Bild."_s;
  groesse = leser.size();
  if (groesse.isEmpty()) return u"Das Bild ist beschädigt."_s;
  if (std::max(groesse.width(), groesse.height()) > plangrenzen::Bildseite) {
    return u"Das Bild hat %1 × %2 Bildpunkte; erlaubt sind %3 auf jeder Seite."_s.arg(groesse.width())
        .arg(groesse.height())
        .arg(plangrenzen::Bildseite);
  }
  return {};
}

}  // namespace

QImage PlanhintergrundLaden(const Station& s, QString& grund) {
  grund.clear();
  if (!s.lageplan.hintergrund) return {};
  const QString name = QString::fromStdString(s.lageplan.hintergrund->datei);
  const QFileInfo datei(QDir(QString::fromStdString(s.Arbeitsverzeichnis)), name);
  QImageReader leser(datei.filePath());
  leser.setDecideFormatFromContent(true);
  QSize groesse;
  grund = Pruefen(leser, datei, groesse);
  QImage bild;
  if (grund.isEmpty()) {
    const double punkte = double(groesse.width()) * groesse.height();
    if (punkte > MeisteBildpunkte) leser.setScaledSize(groesse * std::sqrt(MeisteBildpunkte / punkte));
    bild = leser.read();
    if (bild.isNull()) grund = u"Das Bild ist beschädigt oder braucht zu viel Speicher."_s;
  }
  if (bild.isNull()) {
    grund = u"Das Hintergrundbild „%1“ kann nicht gezeigt werden. "_s.arg(name) + grund;
    return {};
  }
  bild.setDevicePixelRatio(double(bild.width()) / groesse.width());
  return bild;
}

}  // namespace vesk
