#pragma once
#include <QLineEdit>
#include <functional>
#include <optional>

namespace vesk {

class Ablauf;

/// What a text in a field stands for.
struct Deutung {
  std::optional<QString> wert;  ///< as the field shows it when nobody edits it; none: nothing
  QString grund{};              ///< why not, a German sentence
};
using Deuter = std::function<Deutung(const QString&)>;

/// A number with comma or point.
Deuter ZahlVon(double von, double bis, const QString& einheit);
/// Any text that a plan can hold.
Deuter Plantext();
/// Latitude and longitude, or nothing at all.
Deuter Geoort();

/// Input field of the plan. What is typed counts at once. A text that means nothing stands there in red until
/// it is mended or the field is left; meanwhile, and after that, the value from before counts.
class Planfeld : public QLineEdit {
  Q_OBJECT
 public:
  Planfeld(Ablauf& ablauf, const QString& name, const QString& zugang, Deuter deuter, QWidget* eltern);

  /// The value that counts, as `Deutung` has it.
  void Zeigen(const QString& wert);
  bool Unklar() const;

 Q_SIGNALS:
  void eingegeben(const QString& wert);
  /// Why the text means nothing; empty: it does.
  void beanstandet(const QString& grund);

 protected:
  void focusInEvent(QFocusEvent* ereignis) override;
  void focusOutEvent(QFocusEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;

 private:
  void Deuten(const QString& text);
  void Gelten(const QString& wert);
  /// Shows the value that counts instead of what is typed.
  void Glaetten();

  Ablauf& ablauf_;
  Deuter deuter_;
  QString wert_;    ///< that counts
  QString vorher_;  ///< counted when the user came
};

/// A number as the fields show it.
QString Zahltext(double zahl);
/// Of a text that a field for numbers has taken.
double Zahlwert(const QString& wert);

}  // namespace vesk
