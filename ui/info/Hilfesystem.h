#pragma once
#include <memory>

#include "platform/Plattform.h"
#include "ui/info/Hilfebuch.h"

namespace vesk {

class Drucker;
class frmHilfe;

/// Answers help calls with the program's own help window. Neither the pages nor the window exist before the
/// first call.
class Hilfesystem : public Hilfe {
 public:
  /// `verzeichnis`: where the help pages lie.
  Hilfesystem(const QString& verzeichnis, Meldungsboxen& boxen, Drucker& drucker);
  ~Hilfesystem() override;

  void Aufrufen(const QString& datei, Hilfebefehl befehl, int kontext) override;
  /// The window; nullptr before the first call.
  frmHilfe* Fenster() const { return fenster_.get(); }

 private:
  void Zeigen(const QString& seite);

  Hilfebuch buch_;
  Meldungsboxen& boxen_;
  Drucker& drucker_;
  std::unique_ptr<frmHilfe> fenster_;
};

}  // namespace vesk
