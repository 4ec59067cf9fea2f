#pragma once
#include <QString>

#include "Laufzeitfehler.h"
#include "Plattform.h"
#include "Rechenwerte.h"

namespace vesk {

/// Shows a box and keeps the code of its answer in the record, as every box of the program does.
Antwort BoxZeigen(Meldungsboxen& boxen, Rechenwerte& werte, const Box& box);

/// The common error box. Without a title it bears the program's own.
void Fehlerbox(Meldungsboxen& boxen, Rechenwerte& werte, const QString& meldung,
               const QString& titel = QString());

/// Runs the handler of a user's event: a run-time error ends it, is shown, and the program goes on.
template <typename Tun>
void Abgefangen(Meldungsboxen& boxen, Rechenwerte& werte, Tun tun) {
  try {
    tun();
  } catch (const Laufzeitfehler& fehler) {
    Fehlerbox(boxen, werte, QString::fromUtf8(fehler.what()));
  }
}

}  // namespace vesk
