#pragma once
#include <QHash>
#include <QObject>
#include <QWidget>

#include "platform/Plattform.h"

class QKeyEvent;

namespace vesk {

/// Tells a key that is held down from one that is pressed anew. X11 sends a release and a press of the same
/// instant for each repetition, and the toolkit does not mark them all.
class Tastenuhr : public QObject {
 public:
  bool Wiederholt(const QKeyEvent& druck) const;

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  QHash<int, quint64> losgelassen_;  ///< time stamps by keys
};

/// Leaves every dialog that stands open as by its button to cancel; a question gets no answer. False: there
/// was none.
bool DialogeAbbrechen();

class QtMeldungsboxen : public Meldungsboxen {
 public:
  QtMeldungsboxen();
  /// Leads back to the window that was active before, also after several boxes in a row.
  Antwort Zeigen(const Hinweis& box) override;

 private:
  Tastenuhr uhr_;
};

class QtDateidialoge : public Dateidialoge {
 public:
  std::optional<QString> Oeffnen(const Dialogwahl& wahl) override;
  std::optional<QString> Speichern(const Dialogwahl& wahl) override;
};

class QtBenutzerspeicher : public Benutzerspeicher {
 public:
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override;
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override;
};

class QtBetrachter : public Betrachter {
 public:
  bool Oeffnen(const QString& datei) override;
};

class QtFortschrittsanzeige : public Fortschrittsanzeige {
 public:
  Fortschritt Beginnen(const QString& titel) override;
};

class QtSignalton : public Signalton {
 public:
  void Piep() override;
};

}  // namespace vesk
