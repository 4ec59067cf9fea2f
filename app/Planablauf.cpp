#include "app/Planablauf.h"

#include <QImage>
#include <QString>

#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Pfade.h"
#include "print/Planbild.h"
#include "station/Lageplanhandlungen.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* TitelGeojson = "GeoJSON einlesen";
constexpr const char* TitelHintergrund = "Hintergrundbild wählen";

/// From the directory of the user's file, so that both can move together; a picture elsewhere by its full
/// path.
std::string Bildpfad(const Station& s, const fs::path& bild) {
  const fs::path hier = bild.lexically_relative(PfadAusUtf8(s.Arbeitsverzeichnis));
  return PfadAlsUtf8(hier.empty() || *hier.begin() == ".." ? bild : hier);
}

}  // namespace

Meldungen GeojsonEinlesen(Station& s, const Kataloge& k, Rueckfragen& rueckfragen) {
  const auto pfad = rueckfragen.ZumOeffnen(
      {TitelGeojson, "GeoJSON (*.geojson *.json)", "geojson", PfadAusUtf8(s.Arbeitsverzeichnis)});
  if (!pfad) return {};
  const std::string name = PfadAlsUtf8(pfad->filename());
  const Gelesen datei = DateiLesen(*pfad, grenzen::Geojson);
  if (const Fehlergrund grund = WarumOhneInhalt(name, datei)) return {{Fehlermeldung(*grund)}};
  const Geojsonlesung gelesen = GeojsonLesen(datei.bytes, s.lageplan);
  if (!gelesen.fehler.empty()) {
    return {{Fehlermeldung("Die Datei " + name + " konnte nicht eingelesen werden.\n" + gelesen.fehler)}};
  }
  Lageplan plan = s.lageplan;
  plan.objekte.insert(plan.objekte.end(), gelesen.objekte.begin(), gelesen.objekte.end());
  if (gelesen.geo) plan.geo = gelesen.geo;
  Meldungen meldungen = LageplanSetzen(s, k, plan);
  if (meldungen.empty() && !gelesen.hinweis.empty()) meldungen.push_back({{TitelGeojson, gelesen.hinweis}});
  return meldungen;
}

Meldungen HintergrundWaehlen(Station& s, const Kataloge& k, Rueckfragen& rueckfragen) {
  constexpr double Breite = 100;  // m
  const auto pfad = rueckfragen.ZumOeffnen(
      {TitelHintergrund, "Bilder (*.png *.jpg *.jpeg)", "png", PfadAusUtf8(s.Arbeitsverzeichnis)});
  if (!pfad) return {};
  Station dann = s;
  Hintergrund& neu = dann.lageplan.hintergrund.emplace();
  neu.datei = Bildpfad(s, *pfad);
  QString grund;
  const QImage bild = PlanhintergrundLaden(dann, grund);
  if (bild.isNull()) return {{Fehlermeldung(grund.toStdString())}};
  const QSizeF groesse = bild.deviceIndependentSize();
  neu.bildpunkte = {Punkt{0, groesse.height()}, Punkt{groesse.width(), groesse.height()}};
  neu.abstand = Breite;
  neu.ort = s.lageplan.bezug;
  Meldungen meldungen = LageplanSetzen(s, k, dann.lageplan);
  if (!meldungen.empty()) return meldungen;
  return {{{.titel = TitelHintergrund,
            .text = "Das Bild liegt jetzt mit einer Breite von 100 m auf dem Plan.\nMit dem Werkzeug \"Karte "
                    "eichen\" klicken Sie zwei Punkte des Bilds an und tippen ihren Abstand."}}};
}

}  // namespace vesk
