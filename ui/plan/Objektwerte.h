#pragma once
#include <QWidget>
#include <array>
#include <optional>

#include "station/Station.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace vesk {

class Ablauf;
class Planfeld;

/// What one object of the plan has beside its place, to be filled in.
class Objektwerte : public QWidget {
  Q_OBJECT
 public:
  Objektwerte(Ablauf& ablauf, QWidget* eltern);

  void Zeigen(const Station& s, const std::optional<std::size_t>& objekt);

 Q_SIGNALS:
  void hinweis(const QString& text);

 private:
  Planfeld* FeldAnlegen(const QString& name, const QString& zugang, double Planobjekt::*wert, double von,
                        double bis, const QString& einheit);
  QComboBox* AuswahlAnlegen(const QString& name, const QString& zugang,
                            void (*setzen)(Planobjekt&, int wahl));
  void AntenneAnlegen();
  void AntenneZeigen(const Station& s, const Planobjekt& antenne);
  void ArtenZeigen(Planart art);

  Ablauf& ablauf_;
  std::size_t objekt_ = 0;

  QFormLayout* zeilen_;
  QComboBox* cboObjektart;
  Planfeld* txtObjektname;
  Planfeld* txtHoehe;
  Planfeld* txtRadius;
  QComboBox* cboNutzung;
  QWidget* spaltenwahl_;
  std::array<QCheckBox*, AnzahlSpalten> chkSpalte{};
  QLabel* lblAntenne;
  QWidget* drehung_;
  QCheckBox* chkDrehbar = nullptr;
  Planfeld* txtVon = nullptr;
  Planfeld* txtBis = nullptr;
  QComboBox* cboEbene;
};

}  // namespace vesk
