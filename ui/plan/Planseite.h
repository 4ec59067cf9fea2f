#pragma once
#include <QWidget>
#include <optional>
#include <vector>

#include "station/Station.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace vesk {

class Ablauf;
class Planfeld;

/// What holds for the plan as a whole: north, reference point, paper, background.
class Planseite : public QWidget {
  Q_OBJECT
 public:
  Planseite(Ablauf& ablauf, QWidget* eltern);

  void Zeigen(const Station& s);
  /// Why the background cannot be shown; empty: it can.
  void BildgrundZeigen(const QString& grund);

 Q_SIGNALS:
  void hinweis(const QString& text);

 private:
  void BezugAnlegen(QFormLayout& zeilen);
  void PapierAnlegen(QFormLayout& zeilen);
  void HintergrundAnlegen(QFormLayout& zeilen);
  QWidget* Felderreihe(std::size_t erstes, std::size_t anzahl);

  Ablauf& ablauf_;
  std::vector<Planfeld*> felder_;  ///< in the order of their table
  Planfeld* txtBezugsname = nullptr;
  Planfeld* txtGeo = nullptr;
  QCheckBox* chkSumme = nullptr;
  QComboBox* cboPlanformat = nullptr;
  QComboBox* cboPlanmassstab = nullptr;
  QLabel* lblHintergrund = nullptr;
  QPushButton* cmdHintergrundEntfernen = nullptr;
};

}  // namespace vesk
