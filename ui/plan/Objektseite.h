#pragma once
#include <QWidget>
#include <optional>

#include "station/Planbearbeitung.h"
#include "station/Station.h"

class QComboBox;
class QPushButton;
class QTableWidget;

namespace vesk {

class Ablauf;
class Objektwerte;

/// The objects of the plan as a table, and of the chosen one all points and values.
class Objektseite : public QWidget {
  Q_OBJECT
 public:
  Objektseite(Ablauf& ablauf, QWidget* eltern);

  void Zeigen(const Station& s, const std::optional<Planstelle>& wahl);

 Q_SIGNALS:
  void gewaehlt(const std::optional<vesk::Planstelle>& stelle);
  void hinweis(const QString& text);
  void loeschen();
  void eckeEinfuegen();

 private:
  QWidget* LeisteAnlegen();
  void ObjekteAnlegen();
  void PunkteAnlegen();
  void ObjekteZeigen(const Lageplan& plan);
  void PunkteZeigen(const Lageplan& plan);
  void Hinzufuegen();

  Ablauf& ablauf_;
  std::optional<Planstelle> wahl_;  ///< as shown

  QComboBox* cboNeu = nullptr;
  QPushButton* cmdObjektLoeschen = nullptr;
  QTableWidget* tblObjekte;
  Objektwerte* werte_;
  QTableWidget* tblPunkte;
  QPushButton* cmdEckeEinfuegen = nullptr;
  QPushButton* cmdEckeLoeschen = nullptr;
};

}  // namespace vesk
