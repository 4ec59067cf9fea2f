#pragma once
#include <QMainWindow>
#include <array>

#include "engine/Ausgabe.h"
#include "station/Station.h"
#include "ui/basis/Zahlenfeld.h"

class QAction;
class QLabel;
class QListWidget;
class QPushButton;

namespace vesk {

class Ablauf;
class Ansage;
class Klicklabel;
class Statuszeile;
struct Kataloge;

/// The first fields of Feld are output fields, the others stand elsewhere.
inline constexpr std::size_t AnzahlAusgaben = static_cast<std::size_t>(Feld::Fernfeld) + 1;

/// Main window: inputs, outputs, the two mode switches and the menus.
class frmVesk : public QMainWindow {
  Q_OBJECT
 public:
  frmVesk(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton);

  void Zeigen(const Station& s);
  void VerlaufZeigen(bool zurueck, bool vor);
  void QrgFokussieren();

 Q_SIGNALS:
  /// The window has been painted; what comes with it can follow.
  void gemalt();

 protected:
  void closeEvent(QCloseEvent* ereignis) override;
  void paintEvent(QPaintEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  QWidget* ModusAnlegen();
  QWidget* EingabenAnlegen(Signalton& ton);
  QWidget* AusgabenAnlegen();
  void EreignisseVerbinden();
  void TastenVerbinden();

  void ModusZeigen(const Station& s);
  void SchalterZeigen(const Station& s);
  void TooltipsZeigen(const Station& s);
  void EingabenZeigen(const Station& s);
  void AusgabenZeigen(const Station& s);
  void KopierknopfZeigen(const Station& s);

  QAction& Aktion(const char* name) const;
  QLineEdit& Ausgabe(Feld feld) const { return *ausgaben_.at(static_cast<std::size_t>(feld)); }
  Zahlenfeld& Eingabe(Eingabefeld feld) const { return *eingaben_.at(static_cast<std::size_t>(feld)); }

  Ablauf& ablauf_;
  const Kataloge& kataloge_;
  std::vector<std::string> zuletzt_;                         ///< as shown
  std::array<Zahlenfeld*, Eingabetexte.size()> eingaben_{};  ///< by Eingabefeld
  std::array<QLineEdit*, AnzahlAusgaben> ausgaben_{};        ///< by Feld
  std::array<QLabel*, 3> koepfe_{};                          ///< from Feld::KopfOhneHSM
  Klicklabel *lblModus = nullptr, *lblQRG = nullptr;
  QLabel *lblPWR = nullptr, *lblSicherheit = nullptr, *lblStrahlung = nullptr, *lblHinweis = nullptr;
  QPushButton *cmdBerechnen = nullptr, *cmdCopy = nullptr;
  QListWidget* List1 = nullptr;
  Statuszeile* status_ = nullptr;
  Ansage* ansage_ = nullptr;
};

}  // namespace vesk
