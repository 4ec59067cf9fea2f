#pragma once
#include <QStringList>
#include <optional>

#include "rechnen/Optionen.h"

namespace vesk {

/// What the command line has come to.
struct Aufruf {
  std::optional<int> rueckgabe;  ///< exit code of a call that wants no window
  QString verzeichnis = {};      ///< --verzeichnis; empty: not given
  QString datei = {};            ///< to be opened, absolute; empty: not given
};

/// The arguments of the process as texts; nothing, and a message, when one holds bytes that are none: they
/// must not name another file.
std::optional<QStringList> ArgumenteLesen(int anzahl, const char* const* argumente, std::ostream& fehler);

/// Does what needs no display: `rechnen …`, `drucken …`, help, version. Exit code: 0; 1 a fault of the
/// calculation (what was computed is printed), a file that cannot be read or written, nothing to print, or
/// the output could not be written; 2 wrong or missing input (nothing on the output).
Aufruf KommandozeileAusfuehren(const QStringList& argumente, char dezimaltrenner, const Stroeme& stroeme);

}  // namespace vesk
