#pragma once
#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/Berechnung.h"
#include "engine/Rechenwerte.h"
#include "station/Datenblattspalte.h"
#include "station/Kabelkatalog.h"
#include "station/Lageplan.h"
#include "station/Papierwahl.h"
#include "station/Schaubildwahl.h"
#include "station/Sektoren.h"
#include "station/Sendeart.h"

namespace vesk {

/// The operator's personal data, in the order of the file. UTF-8.
struct Benutzer {
  std::string Name;
  std::string Strasse;
  std::string Ort;
  std::string Telefon;
  std::string Telefax;
  std::string Rufzeichen;
  std::string Klasse;
  std::string Standort;

  bool operator==(const Benutzer&) const = default;
};

inline constexpr std::array Benutzerfelder = {
    &Benutzer::Name,    &Benutzer::Strasse,    &Benutzer::Ort,    &Benutzer::Telefon,
    &Benutzer::Telefax, &Benutzer::Rufzeichen, &Benutzer::Klasse, &Benutzer::Standort,
};

/// The four stored switches and the notes that the user does not want to see again in this run.
struct Einstellungen {
  bool ToolTips = true;
  bool AFu = true;
  bool Fenster = false;
  bool Meldungen = true;

  bool HSMHinweisAus = false;      ///< message flag 0, not stored
  bool NahfeldHinweisAus = false;  ///< message flag 1, not stored
  bool FaktorMeldungAus = false;   ///< not stored

  bool operator==(const Einstellungen&) const = default;
};

/// The five inputs of the main window.
inline constexpr std::array Eingabetexte = {
    &Rechenwerte::QRGText,
    &Rechenwerte::PWRText,
    &Rechenwerte::GewinnText,
    &Rechenwerte::DaempfungText,
    &Rechenwerte::WinkelDaempfungText,
};

/// Fields whose leaving means something; the first five in the order of Eingabetexte.
enum class Eingabefeld { QRG, PWR, Gewinn, Daempfung, Winkel, KabelQRG, Rufzeichen };

/// Everything that the figures of one calculation depend on.
struct Recheneingabe {
  std::array<std::string, Eingabetexte.size()> texte;
  Modus modus = Modus::Abstand;
  bool afu = true;
  float faktor = 1;
  std::int16_t grenzwerttyp = GrenzwertAM;

  bool operator==(const Recheneingabe&) const = default;
};

/// The figures of a calculation with the inputs that they were computed from.
struct Ergebnis {
  Recheneingabe eingabe;
  Rechenergebnis zahlen;
  bool kopiert = false;  ///< stands in the data sheet; once is enough

  bool operator==(const Ergebnis&) const = default;
};

/// Background that the last input check left on an input.
enum class Pruefmarke { Keine, Gut, Fehlt };

/// Background of the fields of a pacemaker limit, which a clearing does not touch.
enum class Blockfarbe { Start, Berechnet, Grau };

/// Background of a column's distance without pacemaker: none, full power, a factor below 1.
enum class Toenung { Keine, Blass, Kraeftig };

/// What the losses of the cable tab depend on: entry of the list, frequency, length, loss per 100 m,
/// connectors.
using Kabeleingaben = std::array<std::string, 5>;

/// What the sheet shows of a column beside its texts.
struct Spaltenfarben {
  Toenung ohneHSM = Toenung::Blass;
  bool hsm = true;           ///< rows 11 and 12 are tinted
  bool rueckwaerts = false;  ///< computed from its distance: in teal

  bool operator==(const Spaltenfarben&) const = default;
};

/// Inputs of the sector table with everything else that its figures depend on.
struct Winkeleingabe {
  Sektoreingabe sektoren;
  std::string frequenz;  ///< MHz
  bool afu = true;
  std::int16_t grenzwerttyp = GrenzwertAM;

  bool operator==(const Winkeleingabe&) const = default;
};

struct Winkelergebnis {
  Winkeleingabe eingabe;
  Sektortabelle tabelle;

  bool operator==(const Winkelergebnis&) const = default;
};

/// The angle page. Its nine attenuations are those of the working record.
struct Winkelseite {
  std::string antenne;
  std::string gewinn;     ///< dBi
  std::string frequenz;   ///< MHz
  std::string AntEinPWR;  ///< W
  std::string massstab;   ///< 1 : n of the printed diagram
  std::optional<Winkelergebnis> ergebnis;
  bool EIRPausRechnung = false;  ///< the first EIRP is that of the central calculation, which came later

  std::string datei;          ///< path that the table is saved to; empty: none yet
  std::string herkunft;       ///< where a table without a file comes from
  bool dateiGelesen = false;  ///< the file holds this table or an earlier state of it
  bool bearbeitet = false;    ///< the user has changed the table since it was read or saved
  bool kopfGetippt = false;   ///< and gain or frequency, which are not the central calculation's then

  bool operator==(const Winkelseite&) const = default;
};

/// Which windows the user has open beside the main window.
struct Fensterlage {
  bool optionen = false;
  bool datenblatt = false;
  bool benutzer = false;
  bool vorschau = false;
  int vorschauRufe = 0;     ///< how often the user has asked for it: open already, it comes to the front
  bool dateimenue = false;  ///< the main window's entries for the data sheet's file can be used
  bool baender = false;
  bool diagramme = false;
  bool lageplan = false;

  bool operator==(const Fensterlage&) const = default;
};

/// All that the program knows. A value: windows show it, the functions beside it are what the user can do.
/// Texts are UTF-8.
struct Station {
  Rechenwerte werte;
  Modus modus = Modus::Abstand;
  bool modusGewechselt = false;  ///< at least once: the captions of the start are gone
  Einstellungen einstellungen;
  std::optional<Eingabefeld> inArbeit;       ///< the user is in this field and has not left it yet
  std::string beimBetreten;                  ///< its text then
  std::string frequenzUebergeben;            ///< the frequency that cable and result have followed last
  std::optional<Ergebnis> ergebnis;          ///< what the output fields show
  std::optional<Auswertefrequenzen> koepfe;  ///< of the column heads while there is no result
  std::string StrahlungTitel = "Strahlungsleistung EIRP [W]";
  Pruefmarke markeQRG = Pruefmarke::Keine;
  Pruefmarke markePWR = Pruefmarke::Keine;
  Blockfarbe farbe306 = Blockfarbe::Start;
  Blockfarbe farbeVDE = Blockfarbe::Start;
  bool leerKopierbar = false;  ///< the sheet was to be cleared; without a result its inputs may be copied

  /// Switching a mode writes its tooltips also while tooltips are off.
  bool modustipsVomSchalter = false;
  bool afutipVomSchalter = false;

  bool OptionenBeruecksichtigen = true;
  std::array<std::string, AnzahlZellen> Zellen;
  /// 0 is the working record: what the options window shows. 1 to 7 belong to the columns.
  std::array<Datenblattspalte, AnzahlSpalten + 1> Datenblattspalten;
  std::array<Spaltenfarben, AnzahlSpalten> spaltenfarben;
  std::bitset<AnzahlZellen> rot;  ///< cells whose input is missing

  Sendeartkreuze kreuze{};        ///< ticked operating modes
  std::string SelectedModes;      ///< their abbreviations, or row 5 of the column shown
  int zyklus = AnzahlZyklen - 1;  ///< selected cycle; -1: none
  D100Farbe farbeD100 = D100Farbe::Unveraendert;
  Kabeleingaben kabelstand;      ///< what the losses of the cable tab were computed from
  bool verlusteGetippt = false;  ///< the loss was typed in the main window since the cable tab passed one on
  int AntennenIndex = -1;        ///< chosen entry of the catalogue
  bool antenneNehmbar = false;
  Winkelseite winkel;

  Benutzer benutzer;
  std::array<Pruefmarke, Benutzerfelder.size()> benutzermarken{};
  std::string klasseEntschieden;  ///< callsign that the class was decided for, or that came with it
  Lageplan lageplan;
  Fensterlage fenster;
  Papierwahl papiere;
  Schaubildwahl schaubilder;

  bool UserGeaendert = false;
  bool neuesRufzeichen = false;  ///< the data are a callsign's that has no file yet; the file is another's
  bool ohneDatei = false;        ///< there is no file of this name yet
  bool ohneRettung = false;      ///< a crash would lose what is not saved: no copy of it can be kept
  bool titelGesetzt = false;
  std::string Fusszeile;               ///< user's text before the program's own footer of the printouts
  std::string UserDatei = "user.dat";  ///< bare name
  std::string UserVerzeichnis;         ///< shown in the title of the data sheet
  std::string ProgrammVerzeichnis;
  std::string Arbeitsverzeichnis;           ///< where the file is written
  std::vector<std::string> zuletztBenutzt;  ///< full paths of the user's files, the last one first

  bool operator==(const Station&) const = default;
};

/// Cell of a column (1 to 7).
inline std::size_t Zellenindex(int spalte, Zeile zeile) {
  return static_cast<std::size_t>((spalte - 1) * AnzahlZeilen + zeile - 1);
}
inline const std::string& Zelle(const Station& s, int spalte, Zeile zeile) {
  return s.Zellen.at(Zellenindex(spalte, zeile));
}

}  // namespace vesk
