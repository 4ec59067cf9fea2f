#include "app/Papierablauf.h"

#include <QDir>
#include <QStandardPaths>
#include <stdexcept>

#include "app/Pfadtext.h"
#include "persistence/Dateien.h"
#include "persistence/Rueckfragen.h"
#include "platform/Plattform.h"
#include "print/Pdf.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void Sagen(const Druckausgang& ausgang, Plattform& plattform) {
  if (const auto meldung = Druckmeldung(ausgang)) plattform.boxen.Zeigen(*meldung);
}

/// The title as a file's name: a callsign may hold what a file name cannot.
QString Dateiname(const Mappe& mappe) {
  QString name = mappe.titel;
  for (QChar& zeichen : name) {
    if (!zeichen.isPrint() || u"/\\:*?\"<>|"_s.contains(zeichen)) zeichen = u'-';
  }
  constexpr qsizetype Laengster = 100;  // characters; file systems allow 255 bytes
  return name.left(Laengster) + u".pdf"_s;
}

}  // namespace

void PdfSpeichern(const Mappe& mappe, Rueckfragen& rueckfragen, Plattform& plattform) {
  const QString abschnitt = u"Unterlagen"_s;
  const QString schluessel = u"Verzeichnis"_s;
  QString verzeichnis = plattform.speicher.Lesen(abschnitt, schluessel).value_or(QString());
  if (verzeichnis.isEmpty() || !QDir(verzeichnis).exists()) {
    verzeichnis = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  }
  const auto ziel = rueckfragen.ZumSpeichern({"PDF speichern", "PDF-Dokumente (*.pdf)", "pdf",
                                              AlsPfad(verzeichnis), Dateiname(mappe).toStdString()});
  if (!ziel) return;
  QByteArray pdf;
  try {
    pdf = Pdf(mappe, QDateTime::currentDateTime(), plattform.fortschritt.Beginnen(u"Das PDF entsteht …"_s));
  } catch (const std::runtime_error& grund) {
    plattform.boxen.Zeigen(Fehlermeldung(grund.what()));
  }
  if (pdf.isEmpty()) return;
  const std::string name = PfadZumZeigen(*ziel);
  if (const Fehlergrund grund = DateiSchreiben(*ziel, pdf.toStdString())) {
    plattform.boxen.Zeigen(
        Fehlermeldung("Die Datei " + name + " konnte nicht gespeichert werden.\n" + *grund));
    return;
  }
  plattform.speicher.Schreiben(abschnitt, schluessel, AlsText(ziel->parent_path()));
  const Antwort antwort = plattform.boxen.Zeigen(
      MitHilfe({"PDF speichern", "Gespeichert:\n" + name + "\n\nMöchten Sie die Datei jetzt ansehen?",
                Knoepfe::JaNein, Symbol::Frage},
               HilfePapiere));
  if (antwort == Antwort::Ja && !plattform.betrachter.Oeffnen(AlsText(*ziel))) {
    plattform.boxen.Zeigen(Fehlermeldung("Ihr System hat kein Programm, das PDF-Dateien zeigt."));
  }
}

void PapiereDrucken(const Mappe& mappe, Plattform& plattform) {
  Druckauftrag auftrag{mappe.titel, {}, [&](std::size_t seite, QPainter& maler, double jeMillimeter) {
                         SeiteMalen(mappe, seite, maler, jeMillimeter);
                       }};
  for (std::size_t i = 0; i < Seitenzahl(mappe); ++i) {
    auftrag.seiten.push_back(Seitenlayout(Seitenformat(mappe, i)));
  }
  const Fortschritt fortschritt = plattform.fortschritt.Beginnen(u"Die Seiten werden gedruckt …"_s);
  Sagen(plattform.drucker.Drucken(auftrag, fortschritt), plattform);
}

void DruckerEinrichten(Plattform& plattform) {
  Sagen(plattform.drucker.Einrichten(), plattform);
}

}  // namespace vesk
