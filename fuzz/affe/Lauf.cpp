#include "fuzz/affe/Lauf.h"

#include <QCoreApplication>
#include <QDir>

#include "app/Programm.h"
#include "fuzz/affe/Affe.h"
#include "fuzz/affe/Buehne.h"
#include "fuzz/affe/Pruefung.h"
#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Pfade.h"
#include "persistence/UserDatei.h"
#include "persistence/Winkeldatei.h"
#include "station/Lageplanhandlungen.h"
#include "station/Winkel.h"

using namespace Qt::StringLiterals;

namespace vesk::affe {

namespace {

/// What a program that died had in its user's data, plan or angle table and not in their files.
using Nachlass = std::optional<std::string>;

std::string Daten(const Station& s) {
  const std::string winkel = WinkelUngesichert(s) ? WinkelSchreiben(WinkeldatenDerSeite(s)) : "";
  return UserDateiSchreiben(s) + LageplanBytes(s.lageplan) + winkel;
}

/// Whether the station's own files hold all of it: a file that was only opened needs no copy.
bool InDenDateien(const Station& s) {
  const std::filesystem::path datei = PfadAusUtf8(s.Arbeitsverzeichnis) / PfadAusUtf8(s.UserDatei);
  const Gelesen plan = DateiLesen(Lageplanpfad(datei), grenzen::Lageplan);
  const bool planDort =
      plan.status == Lesestatus::Fehlt ? LageplanLeer(s.lageplan) : plan.bytes == LageplanBytes(s.lageplan);
  return !s.neuesRufzeichen && planDort &&
         DateiLesen(datei, grenzen::UserDatei).bytes == UserDateiSchreiben(s);
}

/// Somebody draws something.
void Zeichnen(Zufall& zufall, Programm& programm, Lageplan plan) {
  Planobjekt objekt;
  objekt.art = static_cast<Planart>(zufall(AnzahlPlanarten));
  objekt.name = "Nr. " + std::to_string(plan.objekte.size());
  const std::size_t ecken = Artzeile(objekt.art).umriss ? 3 + zufall(4) : 1;
  for (std::size_t i = 0; i < ecken; ++i) {
    objekt.punkte.push_back({static_cast<double>(zufall(400)) / 10, static_cast<double>(zufall(400)) / 10});
  }
  objekt.spalten = zufall(1U << AnzahlSpalten);
  plan.objekte.push_back(objekt);
  programm.Tun(Mit(LageplanSetzen, plan));
}

/// One start of the program up to its end, its death, or the last event.
QString EinProgramm(Zufall& zufall, Ordner& ordner, Buehne& buehne, int ereignisse, Nachlass& nachlass,
                    Zaehler& zaehler) {
  const Verzeichnisse verzeichnisse{ordner.Pfad(), QStringLiteral(VESK_DATEN)};
  MitgelieferteKopieren(verzeichnisse, buehne.speicher);
  Station station;
  Programm programm(station, buehne.plattform, verzeichnisse);
  bool beendet = false;
  QObject::connect(&programm, &Programm::beendet, &programm, [&] { beendet = true; });
  buehne.boxen.zurueckholen = nachlass.has_value();
  programm.Starten();
  if (nachlass && Daten(station) != *nachlass) return u"Was vor dem Tod getippt war, fehlt."_s;
  nachlass.reset();
  ++zaehler.programme;
  if (!beendet && zufall.Einmal(2)) Zeichnen(zufall, programm, station.lageplan);
  Affe affe(zufall, ordner);
  const int ende = zaehler.ereignisse + 20 + static_cast<int>(zufall(200));
  while (!beendet && zaehler.ereignisse < ereignisse) {
    if (zaehler.ereignisse >= ende) {
      const bool tod = zufall.Einmal(3);
      Schreiben(tod ? u"Tod"_s : u"Ende"_s);
      if (tod) {
        programm.RettungSichern();
        const bool daten = station.UserGeaendert && !InDenDateien(station);
        if (daten || WinkelUngesichert(station)) nachlass = Daten(station);
        return {};
      }
      programm.Hauptfenster().close();
      if (beendet) return {};
    }
    affe.Handeln();
    QCoreApplication::processEvents();
    ++zaehler.ereignisse;
    if (const QString fehler = Pruefen(station, zaehler.aktuell); !fehler.isEmpty()) return fehler;
  }
  return {};
}

}  // namespace

QString Laufen(unsigned saat, int ereignisse, Zaehler& zaehler) {
  Zufall zufall(saat);
  Ordner ordner(zufall);
  QDir().mkpath(ordner.Pfad());
  Buehne buehne(zufall, ordner);
  Nachlass nachlass;
  while (zaehler.ereignisse < ereignisse) {
    Schreiben(u"Start"_s);
    if (const QString fehler = EinProgramm(zufall, ordner, buehne, ereignisse, nachlass, zaehler);
        !fehler.isEmpty())
      return fehler;
    if (!nachlass) ordner.Beschaedigen();
  }
  return {};
}

}  // namespace vesk::affe
