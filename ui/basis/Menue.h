#pragma once
#include <QMenu>
#include <QStringView>
#include <span>

#include "ui/basis/Ablauf.h"

class QMenuBar;

namespace vesk {

/// One row of a window's menu table; one that does nothing and says no reason is a separator.
struct Menueeintrag {
  QStringView name{};
  QStringView beschriftung{};
  void (*tun)(Ablauf&) = nullptr;
  QStringView gesperrt{};  ///< why the entry cannot be used: its tooltip
  bool schalter = false;   ///< bears a check mark
  QStringView taste{};     ///< shown beside the entry; what it does stands with the keys of all windows
};

/// For the table: an entry that stands for one command, or for one action on the station.
template <Befehl befehl>
void Befehlend(Ablauf& ablauf) {
  ablauf.Befehlen(befehl);
}
template <auto handlung>
void Tuend(Ablauf& ablauf) {
  ablauf.Tun(handlung);
}

/// Menu whose access keys act at once, also where several texts claim the same letter: the first entry has
/// it, a later one is shown with the first letter of its text that nobody claims. A disabled entry says why
/// (its tooltip) when it is reached, and so does the title of a menu that is disabled as a whole.
class Fenstermenue : public QMenu {
  Q_OBJECT
 public:
  Fenstermenue(const QString& titel, QWidget* eltern);

  /// The text that an entry is shown with.
  QString Gezeigt(const QAction& eintrag) const;

 protected:
  void initStyleOption(QStyleOptionMenuItem* option, const QAction* aktion) const override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  void showEvent(QShowEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  void Begruenden();
};

/// At the end of the menu.
void EintraegeAnlegen(QMenu& menue, std::span<const Menueeintrag> eintraege, Ablauf& ablauf);
/// A menu of this name at the end of the bar.
Fenstermenue& MenueAnlegen(QMenuBar& leiste, const QString& name, const QString& titel,
                           std::span<const Menueeintrag> eintraege, Ablauf& ablauf);

}  // namespace vesk
