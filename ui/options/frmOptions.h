#pragma once
#include <QMainWindow>
#include <optional>

class QAction;
class QTabWidget;

namespace vesk {

class Ablauf;
class AntennenTab;
class KabelTab;
class SendeartTab;
class Signalton;
class WinkelTab;
struct Kataloge;
struct Station;

/// The options window: a frame around four tabs that know neither it nor each other.
class frmOptions : public QMainWindow {
  Q_OBJECT
 public:
  frmOptions(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton, QWidget* eltern = nullptr);

  void Zeigen(const Station& s);
  /// Puts the cursor into the angle table.
  void Hinzeigen();

 protected:
  void closeEvent(QCloseEvent* ereignis) override;

 private:
  Ablauf& ablauf_;
  std::optional<bool> tooltips_;  ///< as they have been written
  SendeartTab* sendeart_;
  KabelTab* kabel_;
  AntennenTab* antennen_;
  WinkelTab* winkel_;
  QTabWidget* SSTab1;
  QAction* mnuWHSM306;
  QAction* mnuWHSMvde;
};

}  // namespace vesk
