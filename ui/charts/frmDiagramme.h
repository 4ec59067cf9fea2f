#pragma once
#include <QDialog>
#include <optional>

#include "print/Kurvenbild.h"
#include "station/Handlung.h"

class QLabel;
class QListWidget;

namespace vesk {

class Ablauf;
class Auswahlliste;
class Kurvenblick;

/// The charts of the station, one at a time.
class frmDiagramme : public QDialog {
  Q_OBJECT
 public:
  frmDiagramme(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern = nullptr);

  void Zeigen(const Station& s);
  void reject() override;

 private:
  QWidget* WahlAnlegen();
  void KabelZeigen(const Station& s);

  Ablauf& ablauf_;
  const Kataloge& kataloge_;
  std::optional<bool> tooltips_;    ///< as shown
  std::optional<Station> gezeigt_;  ///< while open
  std::optional<Kurvenbild> bild_;

  Auswahlliste* lstDiagramme;
  QLabel* lblKabel;
  QListWidget* lstKabel;
  Kurvenblick* imgDiagramm;
};

}  // namespace vesk
