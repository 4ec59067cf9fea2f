#pragma once
#include <QWidget>

#include "station/Handlung.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace vesk {

class Ablauf;
class Anzeigeliste;
class Auswahlliste;

/// Antennas of the catalogue with their gains; the one that fits the frequency can be taken.
class AntennenTab : public QWidget {
 public:
  AntennenTab(Ablauf& ablauf, const Kataloge& kataloge);

  void Zeigen(const Station& s);

 private:
  void Bauen();
  void Anordnen();
  void ListenBemessen();
  void Verbinden();
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  /// Shows the entries that match the search field.
  void ListeEingrenzen();
  void ErsteWaehlen();
  void Waehlen(int zeile);

  Ablauf& ablauf_;
  const Antennenkatalog& katalog_;
  const Antennensuche suche_;

  QLineEdit* txtSuche;
  QLabel* lblTreffer;
  Auswahlliste* LstAntennen;
  Anzeigeliste* List1;
  QLabel* lblGewaehlt;
  QLabel* lblAntenne;
  QPushButton* cmdAntenne;
};

}  // namespace vesk
