#pragma once
#include <QPageLayout>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/Hinweise.h"

class QPainter;
class QTextDocument;

namespace vesk {

/// Told before each step of a long work: how many are done, of how many. False: the user wants to end it.
using Fortschritt = std::function<bool(std::size_t fertig, std::size_t von)>;

/// Pages for the printer, by number from 0, each painted on a whole sheet with so many units to the
/// millimetre from its upper left corner.
struct Druckauftrag {
  QString titel;
  std::vector<QPageLayout> seiten;
  std::function<void(std::size_t seite, QPainter& maler, double jeMillimeter)> malen;
};

struct Druckausgang {
  enum Art { Gedruckt, Abgebrochen, KeinDrucker, Gescheitert };

  Druckausgang(Art wie, std::string warum = {}) : art(wie), grund(std::move(warum)) {}

  Art art;
  std::string grund;  ///< of `Gescheitert`: a sentence that names the printer or the file
};
/// What the user has to be told of it.
std::optional<Hinweis> Druckmeldung(const Druckausgang& ausgang);

/// Paper. The printer and its settings are chosen by the user and stay until the program ends.
class Drucker {
 public:
  virtual ~Drucker() = default;
  /// Lets the user choose, without printing.
  virtual Druckausgang Einrichten() = 0;
  virtual Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) = 0;
  /// Flowing text; `titel` names the print job.
  virtual Druckausgang TextDrucken(const QTextDocument& dokument, const QString& titel) = 0;
};

}  // namespace vesk
