#pragma once
#include <QWidget>
#include <optional>

#include "station/Passung.h"

class QLabel;
class QPushButton;

namespace vesk {

class Auswahlliste;

/// What of the plan is open, and what would help.
class Befundseite : public QWidget {
  Q_OBJECT
 public:
  explicit Befundseite(QWidget* eltern);

  void Zeigen(const Station& s);

 Q_SIGNALS:
  /// The object that a finding is about.
  void gewaehlt(std::size_t objekt);

 private:
  void BefundGewaehlt(int zeile);
  /// That the chosen finding is about.
  std::optional<std::size_t> Antenne() const;
  void AbhilfeZeigen();

  Station station_;
  std::vector<Planbefund> befunde_;

  QLabel* lblBefunde;
  Auswahlliste* lstBefunde;
  QPushButton* cmdAbhilfe;
  QLabel* lblAbhilfe;
};

}  // namespace vesk
