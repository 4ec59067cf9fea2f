#include "platform/Druckerlader.h"

#include <QLibrary>

namespace vesk {

std::optional<Hinweis> Druckmeldung(const Druckausgang& ausgang) {
  switch (ausgang.art) {
    case Druckausgang::KeinDrucker:
      return MitHilfe(
          {"Drucken",
           "Es ist kein Drucker eingerichtet.\nSpeichern Sie die Seiten als PDF und drucken Sie sie an "
           "einem anderen Rechner, oder richten Sie in den Einstellungen Ihres Systems einen Drucker ein."},
          HilfePapiere);
    case Druckausgang::Gescheitert:
      return MitHilfe({"Drucken", ausgang.grund + "\nEs ist nichts oder nicht alles gedruckt."},
                      HilfePapiere);
    case Druckausgang::Gedruckt:
    case Druckausgang::Abgebrochen:
      break;
  }
  return std::nullopt;
}

Druckausgang Druckerlader::Mit(const std::function<Druckausgang(Drucker&)>& tun) {
  if (!drucker_) {
    const QFunctionPointer funktion =
        QLibrary(QString::fromLatin1(DruckerBibliothek)).resolve(DruckeranlegerName);
    if (funktion == nullptr) {
      return {Druckausgang::Gescheitert,
              std::string("Ein Teil des Programms fehlt: ") + DruckerBibliothek + "."};
    }
    drucker_.reset(reinterpret_cast<Druckeranleger*>(funktion)());
  }
  return tun(*drucker_);
}

Druckausgang Druckerlader::Einrichten() {
  return Mit([](Drucker& drucker) { return drucker.Einrichten(); });
}

Druckausgang Druckerlader::Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) {
  return Mit([&](Drucker& drucker) { return drucker.Drucken(auftrag, fortschritt); });
}

Druckausgang Druckerlader::TextDrucken(const QTextDocument& dokument, const QString& titel) {
  return Mit([&](Drucker& drucker) { return drucker.TextDrucken(dokument, titel); });
}

}  // namespace vesk
