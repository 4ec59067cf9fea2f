#pragma once
#include "Plattform.h"

namespace vesk {

class QtMeldungsboxen : public Meldungsboxen {
 public:
  Antwort Zeigen(const Box& box) override;
};

class QtDateidialoge : public Dateidialoge {
 public:
  std::optional<QString> Oeffnen(const Dateiwahl& wahl) override;
  std::optional<QString> Speichern(const Dateiwahl& wahl) override;
};

class QtBenutzerspeicher : public Benutzerspeicher {
 public:
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override;
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override;
};

class QtSignalton : public Signalton {
 public:
  void Piep() override;
};

}  // namespace vesk
