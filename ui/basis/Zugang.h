#pragma once
#include <QAccessible>
#include <QHash>
#include <QTimer>
#include <QWidget>
#include <vector>

class QLineEdit;

/// What screen readers are told beyond what the toolkit tells them by itself.
namespace vesk {

/// For a control of a kind of our own; to be called in its constructor. One that is a button is pressed by a
/// space.
void ZugangsrolleSetzen(QWidget& control, QAccessible::Role rolle);

/// Says the results of a window when they change: "Sicherheitsabstand ohne HSM 1.99 Meter". The window that
/// is active says those of the others, too, all in one. Not to be seen.
class Ansage : public QWidget {
  Q_OBJECT
 public:
  explicit Ansage(QWidget* fenster);

  /// A field that holds a result, with its unit in brackets at the end of its name; those that count most
  /// first. While the user types in it nothing is said of it.
  void Beobachten(QLineEdit& feld);
  /// Results that stand beside a field are read out when it gets the focus.
  void Vorlesen(QWidget& feld, const QList<const QLineEdit*>& ergebnisse);

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  struct Beobachtet {
    QLineEdit* feld;
    bool neu = false;
  };
  void Melden(const QObject* feld);
  void Sammeln();
  void Sagen(const QStringList& texte);

  std::vector<Beobachtet> felder_;
  QHash<const QObject*, QList<const QLineEdit*>> daneben_;
  QStringList fremde_;  ///< results of other windows
  QTimer sammeln_;      ///< what changes together is said together
};

}  // namespace vesk
