#include "print/Pdf.h"

#include <QBuffer>
#include <QLibrary>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

#include "engine/Version.h"
#include "print/Pdfabschluss.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int Aufloesung = 1200;  // dots per inch
constexpr double JeMillimeter = Aufloesung / 25.4;

bool SeitenSchreiben(const Mappe& mappe, QIODevice& ziel,
                     const std::function<bool(std::size_t, std::size_t)>& fortschritt) {
  QPdfWriter schreiber(&ziel);
  schreiber.setResolution(Aufloesung);
  schreiber.setPageLayout(Seitenlayout(Seitenformat(mappe, 0)));
  QPainter maler(&schreiber);
  const std::size_t anzahl = Seitenzahl(mappe);
  for (std::size_t i = 0; i < anzahl; ++i) {
    if (fortschritt && !fortschritt(i, anzahl)) return false;
    if (i > 0) {
      schreiber.setPageLayout(Seitenlayout(Seitenformat(mappe, i)));
      schreiber.newPage();
    }
    SeiteMalen(mappe, i, maler, JeMillimeter);
  }
  return true;
}

Pdfangaben Angaben(const Mappe& mappe, const QDateTime& zeit) {
  Pdfangaben angaben{mappe.titel.toStdString(),
                     mappe.rufzeichen.toStdString(),
                     std::string(Produktname) + " " + VersionLang(),
                     zeit.toUTC().toString(u"'D:'yyyyMMddHHmmss'Z'"_s).toStdString(),
                     {}};
  std::size_t seite = 0;
  for (const Dokument& dokument : mappe.dokumente) {
    angaben.lesezeichen.push_back({dokument.titel.toStdString(), seite});
    seite += dokument.seiten.size();
  }
  return angaben;
}

Pdfabschluss& Abschluss() {
  QLibrary bibliothek(QString::fromLatin1(PdfabschlussBibliothek));
  bibliothek.setLoadHints(QLibrary::ResolveAllSymbolsHint);
  const QFunctionPointer funktion = bibliothek.resolve(PdfabschlussName);
  if (funktion == nullptr) {
    throw std::runtime_error(std::string("Ein Teil des Programms fehlt: ") + PdfabschlussBibliothek + ".");
  }
  return *reinterpret_cast<Pdfabschluss*>(funktion);
}

}  // namespace

QByteArray Pdf(const Mappe& mappe, const QDateTime& zeit,
               const std::function<bool(std::size_t, std::size_t)>& fortschritt) {
  if (Seitenzahl(mappe) == 0) return {};
  QByteArray roh;
  QBuffer puffer(&roh);
  puffer.open(QIODevice::WriteOnly);
  if (!SeitenSchreiben(mappe, puffer, fortschritt)) return {};

  std::string fertig;
  Abschluss()(roh.toStdString(), Angaben(mappe, zeit), fertig);
  return QByteArray::fromStdString(fertig);
}

}  // namespace vesk
