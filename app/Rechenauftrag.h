#pragma once
#include <QStringList>
#include <stdexcept>

#include "engine/Berechnung.h"

class QCommandLineParser;

namespace vesk {

/// What `vesk rechnen` was asked to calculate. The texts in `werte` carry a decimal point.
struct Rechenauftrag {
  Rechenwerte werte;
  Rechenart art;
  bool json = false;
  bool hilfe = false;
};

/// Wrong or missing input of the command line; what() is the German message.
class Eingabefehler : public std::runtime_error {
 public:
  explicit Eingabefehler(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// Reads options with and without a value, and --help: each at most once, and nothing beside them. Throws
/// Eingabefehler.
void OptionenLesen(QCommandLineParser& leser, const QStringList& mitWert, const QStringList& ohneWert,
                   const QStringList& argumente);

/// Reads the arguments after "rechnen". Throws Eingabefehler.
Rechenauftrag RechenauftragLesen(const QStringList& argumente);

}  // namespace vesk
