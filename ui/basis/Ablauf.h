#pragma once
#include <functional>

#include "station/Handlung.h"
#include "station/Papiere.h"

class QObject;
class QString;

namespace vesk {

/// What the user asks of the program beyond the station.
enum class Befehl {
  DateiLaden,
  DateiSpeichern,
  DateiSpeichernUnter,
  AenderungenVerwerfen,
  UserNeu,
  Rueckgaengig,
  Wiederholen,
  BenutzerVerborgen,
  Beenden,
  OptionenZeigen,
  DatenblattZeigen,
  BenutzerZeigen,
  LeistungsumrechnungZeigen,
  BaenderZeigen,
  DiagrammeZeigen,
  LageplanZeigen,
  TipZeigen,
  InfoZeigen,
  Handbuch,
  HilfeBenutzen,
  WinkelLaden,
  WinkelSpeichern,
  WinkelSpeichernUnter,
  GeojsonEinlesen,
  HintergrundWaehlen,
  PdfSpeichern,
  PapiereDrucken,
  DruckerEinrichten,
};

/// The loop as a window sees it: it tells what the user did and is shown the station afterwards.
class Ablauf {
 public:
  virtual ~Ablauf() = default;
  /// Changes the station, shows it in every window, then says what is to be said.
  virtual void Tun(const Handlung& handlung) = 0;
  /// The same for a character typed into a field: what is typed there is taken back together.
  virtual void TunBeimTippen(const QObject& feld, const Handlung& handlung) = 0;
  /// The same for a field that is being left: nothing is said before the mouse has been let go.
  virtual void TunBeimVerlassen(const Handlung& handlung) = 0;
  virtual void Befehlen(Befehl befehl) = 0;
  /// Opens a user's file, an angle table or a catalogue, each by its name.
  virtual void DateiOeffnen(const QString& pfad) = 0;
  /// Shows the place that a finding on the papers is about, and puts the cursor there.
  virtual void Hinzeigen(const Papierort& ort) = 0;
};

/// An action with its arguments: Mit(EingabeGetippt, feld, text).
template <typename Tun, typename... Werte>
Handlung Mit(Tun tun, Werte... werte) {
  return [=](Station& s, const Kataloge& k) { return tun(s, k, werte...); };
}

}  // namespace vesk
