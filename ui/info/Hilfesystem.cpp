#include "ui/info/Hilfesystem.h"

#include "ui/basis/Modalfolge.h"
#include "ui/info/frmHilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {

Hilfesystem::Hilfesystem(const QString& verzeichnis, Meldungsboxen& boxen, Drucker& drucker)
    : buch_(verzeichnis), boxen_(boxen), drucker_(drucker) {}

Hilfesystem::~Hilfesystem() = default;

void Hilfesystem::Aufrufen(const QString& datei, Hilfebefehl befehl, int kontext) {
  if (befehl == Hilfebefehl::Beenden) {
    if (fenster_) fenster_->close();
    return;
  }
  if (!buch_.Vorhanden(datei)) {
    boxen_.Zeigen(Fehlermeldung("Hilfedatei nicht gefunden: " + datei.toStdString()));
    return;
  }
  switch (befehl) {
    case Hilfebefehl::Kontext:
      Zeigen(buch_.Kontextseite(kontext));
      break;
    case Hilfebefehl::HilfeBenutzen:
      Zeigen(u"hilfe-benutzen.html"_s);
      break;
    case Hilfebefehl::Inhalt:
    case Hilfebefehl::Beenden:
      Zeigen(u"start.html"_s);
      break;
  }
}

void Hilfesystem::Zeigen(const QString& seite) {
  if (!fenster_) fenster_ = std::make_unique<frmHilfe>(buch_, boxen_, drucker_);
  if (buch_.Html(seite)) {
    ZuModalemFenster(*fenster_);
    fenster_->show();
    fenster_->raise();
    fenster_->activateWindow();
  }
  fenster_->Zeigen(seite);
}

}  // namespace vesk
