#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

#include "print/Dokumente.h"
#include "print/Lageplantabelle.h"
#include "print/Planrahmen.h"
#include "print/Satz.h"
#include "station/Passung.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double Feldbreite = 84;  // of the title block, mm
constexpr double Pfeilbreite = 16;
constexpr double Abstand = 3;
constexpr double Textrand = 6;  // round what is drawn, for the letters at its edge
constexpr Schrift Klein{7};

struct Papierwunsch {
  Blattformat format;
  int massstab;
};

/// The page of the plan: where its parts stand, and what they say.
struct Planseite {
  std::shared_ptr<const Station> s;
  Planbild bild;
  QStringList anmerkungen;
  Legende legende;
  Schriftfeld feld;
  Papierwunsch papier{Blattformat::Hoch, 0};

  double Fusshoehe(double breite) const {
    const auto zeilen = static_cast<double>(Umbrechen(anmerkungen.join(u' '), Klein, breite).size());
    const double felder = std::max(Legendenhoehe(legende), Balkenhoehe + Schriftfeldhoehe(feld));
    return Abstand + felder + Abstand + zeilen * Zeilenhoehe(Klein);
  }
  QRectF Rahmen(Blattformat format) const {
    const QRectF satz = Satzspiegel(format);
    return satz.adjusted(0, Seitenkopfhoehe, 0, -Fusshoehe(satz.width()));
  }
};

QRectF OhneRand(const QRectF& rahmen) {
  return rahmen.adjusted(Textrand, Textrand, -Textrand, -Textrand);
}

std::array<Blattformat, 2> Formate(const Lageplan& plan) {
  if (plan.format == Planformat::A3) return {Blattformat::HochA3, Blattformat::QuerA3};
  return {Blattformat::Hoch, Blattformat::Quer};
}

/// The way of holding the sheet that gives the larger scale.
Papierwunsch Einrichten(const Planseite& seite) {
  const Lageplan& plan = seite.bild.plan;
  const QSizeF meter = Planausdehnung(seite.bild).size();
  Papierwunsch beste{Blattformat::Hoch, 0};
  for (const Blattformat format : Formate(plan)) {
    const int n = Planmassstab(meter, OhneRand(seite.Rahmen(format)).size(), plan.massstab);
    if (beste.massstab == 0 || n < beste.massstab) beste = {format, n};
  }
  return beste;
}

QString Massstabstext(int massstab) {
  return u"1:"_s + QString::number(massstab);
}

QStringList Anmerkungen(const Station& s, const Planbild& bild) {
  QStringList saetze{u"Ebenes Gelände angenommen."_s, u"Höhe einer Antenne: ihre Unterkante über Grund."_s};
  const auto& zonen = bild.zonen;
  const auto& objekte = bild.plan.objekte;
  if (!zonen.empty()) {
    saetze.append(u"Die Zonen zeigen den größten Abstand in jeder Höhe, über alle Spalten der Antenne."_s);
  }
  if (std::any_of(zonen.begin(), zonen.end(), [&](const Bildzone& zone) {
        return zone.antenne && objekte.at(*zone.antenne).ebene != Winkelebene::Keine;
      })) {
    saetze.append(u"Winkeltabellen: symmetrische Fortsetzung zur anderen Seite und nach hinten."_s);
  }
  if (std::any_of(zonen.begin(), zonen.end(), [](const Bildzone& zone) { return zone.veraltet; })) {
    saetze.append(u"„veraltet“: Die Abstände im Datenblatt gehören nicht zu den Angaben der Spalte."_s);
  }
  if (zonen.empty()) saetze.append(u"Für keine Antenne läßt sich ein Sicherheitsabstand berechnen."_s);
  if (s.lageplan.geo) {
    saetze.append(u"Bezugspunkt (WGS 84): %1° N, %2° O."_s.arg(s.lageplan.geo->breite, 0, 'f', 6)
                      .arg(s.lageplan.geo->laenge, 0, 'f', 6));
  }
  return saetze;
}

/// What is said of a wish that does not fit takes room itself.
void MassstabWaehlen(Planseite& seite) {
  const int gewuenscht = seite.bild.plan.massstab;
  seite.papier = Einrichten(seite);
  if (gewuenscht == 0 || seite.papier.massstab == gewuenscht) return;
  const auto satz = [&] {
    return u"Der Maßstab %1 paßt nicht auf das Blatt; gezeichnet ist %2."_s.arg(
        Massstabstext(gewuenscht), Massstabstext(seite.papier.massstab));
  };
  seite.anmerkungen.prepend(satz());
  seite.papier = Einrichten(seite);
  seite.anmerkungen.front() = satz();
}

Planschichten AllesAusserRaster() {
  Planschichten schichten;
  schichten.set();
  schichten.reset(static_cast<std::size_t>(Planschicht::Raster));
  return schichten;
}

/// Draws inside a frame, and the frame.
template <typename Zeichnung>
void ImRahmen(Blatt& blatt, const QRectF& rahmen, Zeichnung zeichnung) {
  QPainter& maler = blatt.Maler();
  maler.save();
  maler.setClipRect(QRectF(rahmen.topLeft() * Blatt::Einheit, rahmen.size() * Blatt::Einheit));
  zeichnung(maler);
  maler.restore();
  blatt.Rahmen(rahmen, 0.25);
}

void PlanseiteMalen(Blatt& blatt, const Planseite& seite) {
  const Blattformat format = seite.papier.format;
  Seitenkopf(blatt, format, u"Lageplan"_s, Papiertext(seite.s->benutzer.Rufzeichen));
  const QRectF rahmen = seite.Rahmen(format);
  QString grund;
  const QImage hintergrund = PlanhintergrundLaden(*seite.s, grund);
  ImRahmen(blatt, rahmen, [&](QPainter& maler) {
    PlanMalen(maler, seite.bild, Papierabbildung(Planausdehnung(seite.bild), rahmen, seite.papier.massstab),
              AllesAusserRaster(), {}, hintergrund);
  });
  if (!grund.isEmpty()) {
    const QStringList zeilen = Umbrechen(grund, Klein, rahmen.width() - 2, 2);
    const double hoehe = Zeilenhoehe(Klein) * static_cast<double>(zeilen.size());
    blatt.Absatz({rahmen.left() + 1, rahmen.bottom() - hoehe - 0.5}, rahmen.width(), zeilen.join(u'\n'),
                 Klein);
  }
  const double oben = rahmen.bottom() + Abstand;
  const double links = rahmen.right() - Feldbreite;
  LegendeMalen(blatt, {rahmen.left(), oben, links - Pfeilbreite - rahmen.left(), 0}, seite.legende);
  NordpfeilMalen(blatt, {links - Pfeilbreite / 2, oben + Nordpfeilhoehe / 2}, seite.bild.plan.nord);
  MassstabsbalkenMalen(blatt, {links + 2, oben}, seite.papier.massstab);
  const QRectF feld(links, oben + Balkenhoehe, Feldbreite, 0);
  SchriftfeldMalen(blatt, feld, seite.feld);
  const double unten =
      oben + std::max(Legendenhoehe(seite.legende), Balkenhoehe + Schriftfeldhoehe(seite.feld));
  blatt.Absatz({rahmen.left(), unten + Abstand}, rahmen.width(), seite.anmerkungen.join(u' '), Klein);
}

/// The direction in which a zone goes farthest beyond the controlled area; none: none does.
std::optional<double> SchlimmsteRichtung(const Planbild& bild) {
  const Lageplan& plan = bild.plan;
  const Planpruefung pruefung(plan);
  if (pruefung.bereich.leer()) return std::nullopt;
  double weiteste = Passungstoleranz;
  std::optional<double> richtung;
  for (const Bildzone& zone : bild.zonen) {
    // All together are seen from one of them.
    const std::size_t antenne = zone.antenne.value_or(bild.zonen.front().antenne.value_or(0));
    const Punkt mast = plan.objekte.at(antenne).punkte.front();
    for (const Umriss& umriss : zone.umrisse) {
      for (const Punkt& p : pruefung.bereich.Ausserhalb(umriss)) {
        const double ueber = pruefung.bereich.Abstand(p);
        if (ueber <= weiteste) continue;
        weiteste = ueber;
        richtung = std::round(Azimut(plan, {p.x - mast.x, p.y - mast.y}));
      }
    }
  }
  return richtung;
}

/// Two views of a page that share one scale, no larger than the plan's.
struct Seitenblatt {
  std::shared_ptr<const Station> s;
  std::array<double, 2> nachRechts;
  Blattformat format;
  int massstab;
};

std::array<QRectF, 2> Ansichtsrahmen(Blattformat format) {
  constexpr double Titelhoehe = 7;
  QRectF satz = Satzspiegel(format).adjusted(0, Seitenkopfhoehe, 0, -Balkenhoehe - Abstand);
  const double hoehe = satz.height() / 2 - Titelhoehe;
  satz.setHeight(hoehe);
  return {satz.translated(0, Titelhoehe), satz.translated(0, 2 * Titelhoehe + hoehe)};
}

/// Below the ground the names of the directions need room, above it those of the antennas.
QRectF Ansichtsplatz(const QRectF& rahmen) {
  constexpr double Unten = 12;
  return rahmen.adjusted(Textrand, Textrand, -Textrand, -Unten);
}

void SeitenblattMalen(Blatt& blatt, const Seitenblatt& seite) {
  Seitenkopf(blatt, seite.format, u"Seitenansichten zum Lageplan"_s,
             Papiertext(seite.s->benutzer.Rufzeichen));
  const auto rahmen = Ansichtsrahmen(seite.format);
  for (std::size_t i = 0; i < rahmen.size(); ++i) {
    const QRectF& dieser = rahmen.at(i);
    const double nachRechts = seite.nachRechts.at(i);
    const double blick = Vollkreis(nachRechts - 90);
    const QString titel = u"Blick nach %1 (%2°), Maßstab %3"_s.arg(
        QString::fromLatin1(Himmelsrichtung(blick)), QString::number(blick), Massstabstext(seite.massstab));
    blatt.Text(dieser.topLeft() - QPointF(0, 2), titel, {.punkt = 9, .fett = true});
    const QRectF platz = Ansichtsplatz(dieser);
    QRectF meter = Seitenausdehnung(*seite.s, nachRechts);
    // The ground at the lower edge, whatever the height needs.
    meter.setHeight(platz.height() * seite.massstab / 1000);
    ImRahmen(blatt, dieser, [&](QPainter& maler) {
      SeitenansichtMalen(maler, *seite.s, nachRechts, Papierabbildung(meter, platz, seite.massstab),
                         AllesAusserRaster());
    });
  }
  const double unten = rahmen.back().bottom() + Abstand;
  MassstabsbalkenMalen(blatt, {rahmen.back().left() + 2, unten}, seite.massstab);
  QString anmerkung = u"Ebenes Gelände angenommen. Gebäude in ihrer ganzen Ausdehnung längs der Ansicht."_s;
  if (seite.s->lageplan.summe) anmerkung += u" Zonen einzeln, nicht alle Antennen zugleich."_s;
  blatt.Text({rahmen.back().right(), unten + 4.5}, anmerkung, Klein, Buendig::Rechts);
}

Seitenblatt AnsichtenEinrichten(const std::shared_ptr<const Station>& s, double richtung, int planmassstab) {
  Seitenblatt seite{
      s, {Vollkreis(richtung), Vollkreis(richtung + 90)}, Formate(s->lageplan)[0], planmassstab};
  const auto rahmen = Ansichtsrahmen(seite.format);
  for (std::size_t i = 0; i < rahmen.size(); ++i) {
    const QSizeF meter = Seitenausdehnung(*s, seite.nachRechts.at(i)).size();
    seite.massstab = Planmassstab(meter, Ansichtsplatz(rahmen.at(i)).size(), seite.massstab);
  }
  return seite;
}

Schriftfeld Angaben(const Station& s, int massstab, const QDate& datum, std::size_t seiten) {
  return {{u"Rufzeichen"_s, Papiertext(s.benutzer.Rufzeichen)},
          {u"Name"_s, Papiertext(s.benutzer.Name)},
          {u"Standort"_s, Papiertext(s.benutzer.Standort)},
          {u"Datum"_s, datum.toString(u"dd.MM.yyyy"_s)},
          {u"Maßstab"_s, Massstabstext(massstab)},
          {u"Blatt"_s, u"1 von %1"_s.arg(seiten)}};
}

}  // namespace

Dokument Lageplandokument(const Station& s, const QDate& datum) {
  Dokument dokument{u"Lageplan"_s, {}};
  if (LageplanLeer(s.lageplan)) return dokument;
  const auto station = std::make_shared<const Station>(s);
  auto seite = std::make_shared<Planseite>();
  seite->s = station;
  seite->bild = PlanbildVon(s);
  seite->anmerkungen = Anmerkungen(s, seite->bild);
  seite->legende = LegendeVon(seite->bild);
  seite->feld = Angaben(s, 0, datum, 0);
  MassstabWaehlen(*seite);
  const int massstab = seite->papier.massstab;
  const std::vector<Zone> zonen = ZonenBestimmen(s);
  if (const auto richtung = SchlimmsteRichtung(seite->bild)) {
    const Seitenblatt ansichten = AnsichtenEinrichten(station, *richtung, massstab);
    dokument.seiten.push_back({ansichten.format, [=](Blatt& blatt) { SeitenblattMalen(blatt, ansichten); }});
  }
  for (Seite& weitere : Lageplantabelle(s, zonen)) dokument.seiten.push_back(std::move(weitere));
  seite->feld = Angaben(s, massstab, datum, dokument.seiten.size() + 1);
  dokument.seiten.insert(dokument.seiten.begin(),
                         {seite->papier.format, [=](Blatt& blatt) { PlanseiteMalen(blatt, *seite); }});
  return dokument;
}

}  // namespace vesk
