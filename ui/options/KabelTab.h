#pragma once
#include <QWidget>
#include <array>

#include "station/Optionen.h"

class QLabel;
class QPushButton;

namespace vesk {

class Ablauf;
class Ansage;
class Auswahlliste;
class Signalton;
class Zahlenfeld;

/// Loss between transmitter and antenna: that of a cable from the catalogue over its length, plus connectors.
class KabelTab : public QWidget {
 public:
  KabelTab(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton);

  void Zeigen(const Station& s);

 private:
  void Bauen(Signalton& ton);
  void Anordnen();
  void Verbinden(Ablauf& ablauf);
  Zahlenfeld* FeldVon(Kabelfeld feld) const { return felder_.at(static_cast<std::size_t>(feld)); }

  const Kataloge& kataloge_;
  Auswahlliste* lstKabel;
  std::array<QLabel*, Kabeltexte.size()> beschriftungen_;
  std::array<Zahlenfeld*, Kabeltexte.size()> felder_;
  QPushButton* cmdGleich;
  QLabel* lblKabelhinweis;
  Ansage* ansage_;
};

}  // namespace vesk
