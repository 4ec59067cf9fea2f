#include "print/Mappe.h"

#include <algorithm>

#include "print/Dokumente.h"
#include "station/Operator.h"
#include "station/Vorschau.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const Seite& SeiteVon(const Mappe& mappe, std::size_t seite) {
  for (const Dokument& dokument : mappe.dokumente) {
    if (seite < dokument.seiten.size()) return dokument.seiten[seite];
    seite -= dokument.seiten.size();
  }
  qFatal("no such page");
}

/// The user's part may be of any length and is shortened; the program's own line is always whole.
QStringList Fusszeilen(const QString& text, const Schrift& schrift, double breite) {
  constexpr qsizetype Hoechstens = 3;
  QStringList zeilen = Umbrechen(text.simplified(), schrift, breite, Hoechstens + 1);
  if (zeilen.size() <= Hoechstens) return zeilen;
  const qsizetype eigene = std::max<qsizetype>(0, text.lastIndexOf(u"Erstellt mit "_s));
  zeilen = Umbrechen(text.first(eigene).simplified(), schrift, breite, Hoechstens - 1);
  zeilen.last() = Umbrechen(zeilen.last(), schrift, breite - Textbreite(u" …"_s, schrift)).first() + u" …"_s;
  return zeilen + Umbrechen(text.sliced(eigene), schrift, breite);
}

void FusszeileMalen(Blatt& blatt, const QString& text, const QString& zaehlung, Blattformat format) {
  const Schrift Klein{7};
  const QRectF satz = Satzspiegel(format);
  const double linie = satz.bottom() + 4;
  blatt.Linie({satz.left(), linie}, {satz.right(), linie});
  double grund = linie + 1.2 + Oberlaenge(Klein);
  blatt.Text({satz.right(), grund}, zaehlung, Klein, Buendig::Rechts);
  const double breite = satz.width() - Textbreite(zaehlung, Klein) - 6;
  for (const QString& zeile : Fusszeilen(text, Klein, breite)) {
    blatt.Text({satz.left(), grund}, zeile, Klein);
    grund += Zeilenhoehe(Klein);
  }
}

std::vector<Winkelblatt> Winkelblaetter(const Station& s, bool alle) {
  std::vector<Winkelblatt> blaetter;
  const Winkelblatt seite = WinkelblattDerSeite(s);
  if (!seite.tabelle.sektoren.empty()) blaetter.push_back(seite);
  if (!alle && !blaetter.empty()) return blaetter;
  for (Winkelblatt& blatt : WinkelblaetterDerSpalten(s)) {
    // The angle page often shows the table of a column that it was loaded from.
    const auto gleich = [&](Winkelblatt andere) {
      andere.bezug = blatt.bezug;
      return andere == blatt;
    };
    if (!blaetter.empty() && gleich(blaetter.front())) blaetter.erase(blaetter.begin());
    blaetter.push_back(std::move(blatt));
  }
  return blaetter;
}

std::vector<Dokument> Winkeldokumente(const Station& s, const Papierauftrag& auftrag) {
  std::vector<Dokument> dokumente;
  for (const Winkelblatt& blatt : Winkelblaetter(s, auftrag.art != Papierart::Winkel)) {
    for (const Winkelkurve kurve : {Winkelkurve::OhneHSM, Winkelkurve::HSM306, Winkelkurve::HSMvde}) {
      if (auftrag.kurve && *auftrag.kurve != kurve) continue;
      Dokument dokument = Winkeldiagramm(blatt, kurve, auftrag.massstab);
      if (!dokument.seiten.empty()) dokumente.push_back(std::move(dokument));
    }
  }
  return dokumente;
}

/// Everything behind the application.
std::vector<Dokument> Unterlagen(const Station& s, const Kataloge& k, const Papierauftrag& auftrag) {
  std::vector<Dokument> alle{Benutzerblatt(s), Formblatt(s, k), FormblattRegTP(s)};
  if (!BenutzteSpalten(s).empty()) {
    alle.push_back(Stationsblockbild(s, k));
    alle.push_back(Rechenwege(s, k));
  }
  for (Dokument& dokument : Winkeldokumente(s, auftrag)) alle.push_back(std::move(dokument));
  if (!LageplanLeer(s.lageplan)) alle.push_back(Lageplandokument(s, auftrag.datum));
  return alle;
}

Inhalt InhaltVon(const std::vector<Dokument>& dokumente) {
  Inhalt inhalt;
  for (const Dokument& d : dokumente) inhalt.push_back({d.titel, d.seiten.size()});
  return inhalt;
}

std::vector<Dokument> Dokumente(const Station& s, const Kataloge& k, const Papierauftrag& auftrag) {
  switch (auftrag.art) {
    case Papierart::Antrag:
      return {Antrag(s, InhaltVon(Unterlagen(s, k, auftrag)))};
    case Papierart::Datenblatt:
      return {Formblatt(s, k)};
    case Papierart::RegTP:
      return {FormblattRegTP(s)};
    case Papierart::Benutzer:
      return {Benutzerblatt(s)};
    case Papierart::Winkel:
      return Winkeldokumente(s, auftrag);
    case Papierart::Rechenweg:
      return {Rechenwege(s, k)};
    case Papierart::Diagramme:
      return {Diagramme(s, k)};
    case Papierart::Lageplan:
      return {Lageplandokument(s, auftrag.datum)};
    case Papierart::Blockbild:
      return {Stationsblockbild(s, k)};
    case Papierart::Mappe:
      break;
  }
  std::vector<Dokument> alle = Unterlagen(s, k, auftrag);
  alle.insert(alle.begin(), Antrag(s, InhaltVon(alle)));
  alle.insert(alle.begin(), Deckblatt(s, k, InhaltVon(alle), auftrag.datum));
  return alle;
}

}  // namespace

std::size_t Seitenzahl(const Mappe& mappe) {
  std::size_t zahl = 0;
  for (const Dokument& dokument : mappe.dokumente) zahl += dokument.seiten.size();
  return zahl;
}

Blattformat Seitenformat(const Mappe& mappe, std::size_t seite) {
  return SeiteVon(mappe, seite).format;
}

void SeiteMalen(const Mappe& mappe, std::size_t seite, QPainter& maler, double jeMillimeter) {
  const Seite& diese = SeiteVon(mappe, seite);
  Blatt blatt(maler, jeMillimeter);
  diese.malen(blatt);
  FusszeileMalen(blatt, mappe.fusszeile, u"Seite %1 von %2"_s.arg(seite + 1).arg(Seitenzahl(mappe)),
                 diese.format);
}

Papierauftrag AuftragAus(const Station& s, const QDate& datum) {
  return {s.papiere.art, s.papiere.kurve, Papiermassstab(s), datum};
}

Mappe MappeBilden(const Station& s, const Kataloge& k, const Papierauftrag& auftrag) {
  Mappe mappe;
  mappe.rufzeichen = QString::fromStdString(s.benutzer.Rufzeichen).trimmed();
  mappe.fusszeile = QString::fromStdString(DruckFusszeile(s));
  mappe.datum = auftrag.datum;
  mappe.dokumente = Dokumente(s, k, auftrag);
  const QString name = mappe.dokumente.size() == 1 ? mappe.dokumente.front().titel : u"Unterlagen"_s;
  mappe.titel = mappe.rufzeichen.isEmpty() ? name : name + u" "_s + mappe.rufzeichen;
  return mappe;
}

}  // namespace vesk
