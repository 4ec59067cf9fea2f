#pragma once
#include <QMainWindow>

class QAction;
class QMenu;
class QTabWidget;

namespace vesk {

class OptionenUmgebung;
class AntennenTab;
class Feldtexte;
class KabelTab;
class SendeartTab;
class WinkelTab;
struct Plattform;
struct Zustand;

/// The options window: a frame around four tabs that know neither it nor each other.
///
/// A tab is a widget of its own,
///
///     class KabelTab : public QWidget {            // likewise AntennenTab, WinkelTab
///      public:
///       KabelTab(Zustand&, Plattform&, OptionenUmgebung&, QWidget* eltern = nullptr);
///       void Laden();                                    // its part of the window's load
///       void SatzLaden(const Datenblattspalte& satz);    // record -> controls
///       void SatzSchreiben(Datenblattspalte& satz) const;  // controls -> record
///
/// - The constructor builds the controls with their fixed captions and does nothing else: no box, no file.
/// - Laden() runs once, from frmOptions::Laden(), in the order SendeartTab::Laden(), Kabel,
///   SendeartTab::Vorbelegen(), Antennen, Winkel. It reads the catalogue and may show boxes. Of the angle
///   tab it sets the file name "Winkel.ang" and txtWDaempfung_0 to "0".
/// - SatzLaden() fills the tab's fields from a column's record; no handler runs, nothing is calculated, no
///   record is written. SatzSchreiben() is its inverse and touches the tab's own positions only.
/// - A tab sits in a scroll area, so it needs a layout but no care for small screens. Focus order within the
///   tab is its own. Access keys D and F belong to the menu bar.
/// - A tab reacts to its user, writes records with FeldSetzen (Spaltensatz.h), catches run-time errors with
///   Abgefangen (Meldung.h) and ends a change with Neurechnen (OptionenUmgebung.h).
/// - What one tab has for another is a signal; this window connects it: AntennenTab::antenneGewaehlt(name,
///   gewinn, mhz) to a slot of WinkelTab.
/// - The menu entries belong to this window and call the angle tab's slots WinkelOeffnen() (mnuWinkelLaden),
///   WinkelSpeichern(), WinkelSpeichernUnter(), TabelleLoeschen() (mnuWDelete, asks), Beispiel().
class frmOptions : public QMainWindow {
  Q_OBJECT
 public:
  frmOptions(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern = nullptr);

  /// The window's load: catalogues, first selections, working record. Once, before the window is used.
  void Laden();
  /// Cycle without reduction and both factors 1.0, as at the start of the program.
  void Startfaktoren();

  /// Shows the record of the current column in all tabs; with column 0 the working record.
  void SatzLaden();
  /// Brings the working record in line with what the tabs show, so that a copy of it holds the options that
  /// were calculated with.
  void ArbeitssatzAuffrischen();

  /// The main window's frequency was changed: the cable loss follows it. Throws Laufzeitfehler.
  void HauptfrequenzUebernehmen(const QString& text);
  /// The main window's power field was left.
  void AntEinPWRSetzen(const QString& text);
  /// A calculation of the main window has texts for the angle tab.
  void RechnungZeigen(const Feldtexte& texte);

  /// Abbreviations of the ticked modes (txtSelectedModes), for the data sheet.
  QString GewaehlteSendearten() const;

 protected:
  void closeEvent(QCloseEvent* ereignis) override;

 private:
  void MenueBauen();
  QAction* Eintrag(const QString& name, const QString& text);
  /// An entry without action; its tooltip says why.
  void Gesperrt(const QString& name, const QString& text, const QString& grund);
  /// The file menu belongs to the angle tab alone.
  void ReiterGewechselt(int reiter);

  Zustand& zustand_;
  OptionenUmgebung& umgebung_;

  QTabWidget* SSTab1;
  SendeartTab* sendeart_;
  KabelTab* kabel_;
  AntennenTab* antennen_;
  WinkelTab* winkel_;
  QMenu* mnuDatei;
};

}  // namespace vesk
