#pragma once
#include <QStringList>
#include <stdexcept>

#include "platform/Buehne.h"

/// A desktop where the only user is the manual's example.
namespace vesk::bilder {

/// Says yes to the notes that the chapter announces; any other one is a fault of the chapter.
class Boxen : public Meldungsboxen {
 public:
  Antwort Zeigen(const Hinweis& box) override {
    const QString titel = QString::fromStdString(box.titel);
    if (!angekuendigt.contains(titel)) throw std::runtime_error(box.titel + ": " + box.text);
    return box.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Ja;
  }
  QStringList angekuendigt;
};

class Dialoge : public Dateidialoge {
 public:
  std::optional<QString> Oeffnen(const Dialogwahl&) override { return std::nullopt; }
  std::optional<QString> Speichern(const Dialogwahl&) override { return std::nullopt; }
};

class KeineHilfe : public Hilfe {
 public:
  void Aufrufen(const QString&, Hilfebefehl, int) override {}
};

/// A field that refuses what the chapter types.
class Ton : public Signalton {
 public:
  void Piep() override { throw std::runtime_error("Eine Eingabe wird abgelehnt."); }
};

class KeinDrucker : public Drucker {
 public:
  Druckausgang Einrichten() override { return Druckausgang::Abgebrochen; }
  Druckausgang Drucken(const Druckauftrag&, const Fortschritt&) override { return Druckausgang::Abgebrochen; }
  Druckausgang TextDrucken(const QTextDocument&, const QString&) override {
    return Druckausgang::Abgebrochen;
  }
};

class KeinBetrachter : public Betrachter {
 public:
  bool Oeffnen(const QString&) override { return false; }
};

class OhneAnzeige : public Fortschrittsanzeige {
 public:
  Fortschritt Beginnen(const QString&) override {
    return [](std::size_t, std::size_t) { return true; };
  }
};

using Buehne = vesk::Buehne<Boxen, Dialoge, KeineHilfe, Ton, KeinDrucker, KeinBetrachter, OhneAnzeige>;

}  // namespace vesk::bilder
