#include "rechnen/Rechenbefehl.h"

#include <fstream>
#include <ostream>

#include "rechnen/Json.h"
#include "rechnen/Rechentabelle.h"
#include "rechnen/Stapel.h"

namespace vesk {

namespace {

constexpr const char* Hilfe =
    " --qrg MHZ (--pwr WATT | --abstand METER) [Optionen]\n"
    "\n"
    "Berechnet die Sicherheitsabstände einer Funkstelle, mit --abstand die größte zulässige Sendeleistung.\n"
    "Zahlen dürfen Komma oder Punkt tragen.\n"
    "\n"
    "  --qrg MHZ         Frequenz oder Amateurband in MHz (0,003 bis 300000)\n"
    "  --pwr WATT        Sendeleistung in Watt\n"
    "  --abstand METER   gegebener Sicherheitsabstand in Metern\n"
    "  --gewinn DBI      Antennengewinn in dBi (Vorgabe 0, auch negativ)\n"
    "  --daempfung DB    Verluste zwischen Sender und Antenne in dB (Vorgabe 0)\n"
    "  --winkel DB       Winkeldämpfung in dB (Vorgabe 0)\n"
    "  --faktor K        Faktor aus Sendeart und Sendezyklus, über 0 bis 1 (Vorgabe 1)\n"
    "  --typ AM|TV|GSM   Signaltyp für DIN VDE 0848 Teil 3-1 (Vorgabe AM)\n"
    "  --exakt           mit genau dieser Frequenz rechnen statt mit der ungünstigsten des Bandes\n"
    "  --stapel [DATEI]  jede Zeile einer Tabelle rechnen; ohne DATEI oder mit - die der Standardeingabe\n"
    "  --json            Ausgabe für Maschinen, im Stapel ein Objekt je Zeile\n"
    "  --help            diese Hilfe\n"
    "\n"
    "Die Tabelle des Stapels ist CSV. Ihre erste Zeile nennt die Spalten: qrg, pwr, abstand, gewinn, "
    "daempfung,\n"
    "winkel, faktor, typ, exakt (ja oder nein), in beliebiger Reihenfolge, getrennt durch Semikolon, Komma "
    "oder\n"
    "Tabulator. Was eine Zeile nicht nennt, gilt, wie es neben --stapel angegeben ist. Die Ausgabe ist eine\n"
    "Tabelle mit demselben Trennzeichen; ihre Spalte Zeile ist die Nummer der Zeile in der Eingabe. Trennt "
    "das\n"
    "Komma, so stehen Zahlen mit Punkt (mit Komma nur in Anführungszeichen), sonst wie in der ersten Zeile "
    "unter\n"
    "dem Kopf, wo keine ein Zeichen trägt, mit Komma. In einer Tabelle steht überall dasselbe "
    "Dezimalzeichen: Wo\n"
    "sonst Kommas stehen, wird 1.000 abgelehnt. Eine falsche Zeile wird gemeldet, die übrigen werden "
    "gerechnet.\n"
    "\n"
    "Rückgabewert: 0; 1 bei einem Fehler der Berechnung oder der Ausgabe oder einer falschen Zeile im "
    "Stapel; "
    "2 bei\nfalschen oder fehlenden Angaben.\n";

int EineRechnen(const Rechenaufruf& aufruf, std::string_view name, char dezimaltrenner,
                const Stroeme& stroeme) {
  const Rechnung rechnung(aufruf.auftrag, dezimaltrenner);
  if (aufruf.json) {
    Puffer puffer;
    Jsonschreiber(Jsonschreiber::Form::Eingerueckt).Schreiben(rechnung, 0, puffer);
    puffer.Ausgeben(stroeme.aus);
  } else {
    TabelleSchreiben(rechnung, dezimaltrenner, stroeme.aus);
  }
  if (!rechnung.ergebnis.fehler) return 0;
  stroeme.fehler << name << ": " << Fehlermeldung(*rechnung.ergebnis.fehler).text << '\n';
  return 1;
}

}  // namespace

std::string Rechenhilfe(std::string_view name) {
  return "Aufruf: " + std::string(name) + Hilfe;
}

int Rechnen(std::string_view name, std::span<const std::string> argumente, char dezimaltrenner,
            const Stroeme& stroeme) {
  const Rechenaufruf aufruf = RechenaufrufLesen(argumente);
  if (aufruf.hilfe) {
    stroeme.aus << Rechenhilfe(name);
    return 0;
  }
  if (!aufruf.stapel) return EineRechnen(aufruf, name, dezimaltrenner, stroeme);
  if (*aufruf.stapel == "-") return StapelRechnen(aufruf, dezimaltrenner, stroeme);
  std::ifstream datei(*aufruf.stapel, std::ios::binary);
  if (!datei) throw std::runtime_error("Die Datei " + *aufruf.stapel + " läßt sich nicht lesen.");
  return StapelRechnen(aufruf, dezimaltrenner, {datei, stroeme.aus, stroeme.fehler});
}

}  // namespace vesk
