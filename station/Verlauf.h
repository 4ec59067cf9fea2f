#pragma once
#include <deque>
#include <functional>
#include <vector>

#include "station/Station.h"

namespace vesk {

/// What the user has changed, step by step, for taking it back. A step is a change of something that the user
/// entered or chose; what follows from it (results, colours, marks) goes with it. Windows, switches of the
/// display, papers shown and the name of the file are no part of it. Another operator's file begins anew.
class Verlauf {
 public:
  static constexpr std::size_t MaxSchritte = 200;

  /// After an action. `feld`: the field that a character was typed into; what is typed there without
  /// interruption is one step.
  void Merken(const Station& vorher, const Station& jetzt, const void* feld = nullptr);
  /// After a field was left: what follows from its text belongs to the typing.
  void MerkenBeimVerlassen(const Station& vorher, const Station& jetzt);

  /// False when there is nothing to take back or to repeat.
  bool Zurueck(Station& s);
  bool Vor(Station& s);
  /// Every state kept follows a change of what lies outside the station.
  void Angleichen(const std::function<void(Station&)>& tun);
  bool ZurueckMoeglich() const { return !zurueck_.empty(); }
  bool VorMoeglich() const { return !vor_.empty(); }

 private:
  /// False when nothing has changed that a step could take back.
  bool Eintragen(const Station& vorher, const Station& jetzt, bool zumLetzten);

  std::deque<Station> zurueck_;  ///< before each step, the last one at the end
  std::vector<Station> vor_;     ///< after each step taken back
  const void* feld_ = nullptr;   ///< the last step was typed here and may go on
  bool unverlassen_ = false;     ///< the last step was typed into a field that has not been left yet
};

}  // namespace vesk
