#pragma once
#include <QGuiApplication>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <string>
#include <vector>

#include "fuzz/Kataloge.h"
#include "fuzz/Vorrat.h"
#include "print/Mappe.h"
#include "station/Optionen.h"
#include "station/Vorschau.h"
#include "tests/persistence/Muster.h"

/// What the fuzzers of the papers share: a device that checks what is painted, and a station to fill.
namespace vesk {

/// Takes a page and draws nothing: all of it must lie at places that are numbers, and its letters on the
/// sheet.
class Pruefgeraet : public QPaintDevice {
 public:
  static constexpr double JeMillimeter = 10;

  explicit Pruefgeraet(QSizeF blatt) : blatt_({0, 0}, blatt) {}
  QPaintEngine* paintEngine() const override { return &werk_; }

 protected:
  int metric(PaintDeviceMetric was) const override {
    switch (was) {
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return QPaintDevice::metric(was);
      case PdmWidth:
        return int(blatt_.width() * JeMillimeter);
      case PdmHeight:
        return int(blatt_.height() * JeMillimeter);
      default:
        return int(25.4 * JeMillimeter);
    }
  }

 private:
  class Werk : public QPaintEngine {
   public:
    explicit Werk(const QRectF& blatt) : QPaintEngine(AllFeatures), blatt_(blatt) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTextItem(const QPointF& punkt, const QTextItem& stueck) override {
      const QPointF anfang = Abbild().map(punkt) / JeMillimeter;
      const QPointF ende = Abbild().map(punkt + QPointF(stueck.width(), 0)) / JeMillimeter;
      constexpr double Spiel = 0.5;
      const QRectF erlaubt = blatt_.adjusted(-Spiel, -Spiel, Spiel, Spiel);
      Pruefen(erlaubt.contains(anfang) && erlaubt.contains(ende));
    }
    void drawPath(const QPainterPath& pfad) override { Ort(Abbild().mapRect(pfad.boundingRect())); }
    void drawPolygon(const QPointF* punkte, int zahl, PolygonDrawMode) override {
      for (int i = 0; i < zahl; ++i) Ort({punkte[i], punkte[i]});
    }
    void drawLines(const QLineF* linien, int zahl) override {
      for (int i = 0; i < zahl; ++i) Ort({linien[i].p1(), linien[i].p2()});
    }

   private:
    QTransform Abbild() const { return painter()->combinedTransform(); }
    static void Ort(const QRectF& r) {
      for (const double wert : {r.left(), r.top(), r.right(), r.bottom()}) Pruefen(std::isfinite(wert));
    }
    const QRectF& blatt_;
  };
  QRectF blatt_;
  mutable Werk werk_{blatt_};
};

inline void Malen(const Mappe& mappe, std::size_t seite, bool bild) {
  const QSizeF blatt = Blattgroesse(Seitenformat(mappe, seite));
  if (bild) {
    constexpr double JeMillimeter = 1;
    QImage pixel((blatt * JeMillimeter).toSize(), QImage::Format_RGB32);
    pixel.fill(Qt::white);
    QPainter maler(&pixel);
    SeiteMalen(mappe, seite, maler, JeMillimeter);
    return;
  }
  Pruefgeraet geraet(blatt);
  QPainter maler(&geraet);
  SeiteMalen(mappe, seite, maler, Pruefgeraet::JeMillimeter);
}

/// Every text of a station that a paper can show, in the order in which the bytes number them.
inline std::vector<std::string*> Texte(Station& s, Kataloge& k) {
  std::vector<std::string*> texte{&s.Fusszeile, &s.UserDatei, &s.winkel.datei, &s.winkel.herkunft};
  for (Planobjekt& objekt : s.lageplan.objekte) texte.push_back(&objekt.name);
  if (!s.lageplan.objekte.empty()) texte.push_back(&s.lageplan.bezugsname);
  for (const auto feld : Benutzerfelder) texte.push_back(&(s.benutzer.*feld));
  for (const auto text : Eingabetexte) texte.push_back(&(s.werte.*text));
  Winkelseite& w = s.winkel;
  for (std::string* text : {&w.antenne, &w.gewinn, &w.frequenz, &w.AntEinPWR, &w.massstab}) {
    texte.push_back(text);
  }
  for (std::string& text : k.kabel.liste) texte.push_back(&text);
  for (std::string& zelle : s.Zellen) texte.push_back(&zelle);
  for (Datenblattspalte& satz : s.Datenblattspalten) {
    for (std::string* text :
         {&satz.Modulationsfaktor, &satz.Zyklusfaktor, &satz.KabelLaenge, &satz.KabelIndex, &satz.Antenne,
          &satz.D100, &satz.Kabeldaempfung, &satz.Stecker, &satz.Gesamtdaempfung, &satz.QRG, &satz.Gewinn,
          &satz.Winkeldaempfung}) {
      texte.push_back(text);
    }
    for (std::string& text : satz.Winkel) texte.push_back(&text);
  }
  return texte;
}

/// A station with everything filled, but mostly only one column: each costs a page of formulas.
inline Station Grundlage(std::size_t spalten) {
  Station s = Musterstation();
  const auto leer = static_cast<std::ptrdiff_t>(spalten) * AnzahlZeilen;
  std::fill(s.Zellen.begin() + leer, s.Zellen.end(), std::string());
  return s;
}

/// The rest of the bytes: a line for each text, which begins with its place. Then the papers are made, and
/// one page is painted.
inline void Auslegen(Vorrat& vorrat, std::size_t laenge, Station& s, Kataloge& k, std::size_t seite,
                     bool bild) {
  const std::vector<std::string*> texte = Texte(s, k);
  while (!vorrat.Leer()) {
    const std::size_t stelle = vorrat.Wahl(256);
    *texte.at(stelle % texte.size()) = vorrat.Zeile();
  }
  const Mappe mappe = MappeBilden(s, k, AuftragAus(s, QDate(2026, 3, 4)));
  const std::size_t seiten = Seitenzahl(mappe);
  const bool darfFehlen = s.papiere.art == Papierart::Winkel || s.papiere.art == Papierart::Lageplan;
  Pruefen(seiten <= 60 + laenge / 8 && (seiten > 0 || darfFehlen));
  if (seiten > 0) Malen(mappe, seite % seiten, bild);
}

}  // namespace vesk

/// The toolkit keeps its fonts until the end.
extern "C" const char*
__asan_default_options() {  // NOLINT(bugprone-reserved-identifier): the sanitizer's name
  return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QGuiApplication anwendung(*argc, *argv);
  return 0;
}
