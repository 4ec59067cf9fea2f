#pragma once
#include <map>

#include "app/Programm.h"
#include "platform/Plattform.h"

/// A desktop without a screen: boxes are read and agreed to, dialogs name the file that is set.
namespace vesk::ausfall {

struct Boxen : Meldungsboxen {
  Antwort Zeigen(const Hinweis& box) override {
    texte.push_back(box.text);
    if (box.knoepfe == Knoepfe::OK) return Antwort::OK;
    const bool verloren = box.text.ends_with("beenden?") || box.text.ends_with("andere Datei laden?");
    return verloren ? Antwort::Nein : Antwort::Ja;
  }
  std::vector<std::string> texte;
};

struct Dialoge : Dateidialoge {
  std::optional<QString> Oeffnen(const Dialogwahl&) override { return wahl; }
  std::optional<QString> Speichern(const Dialogwahl&) override { return wahl; }
  QString wahl;
};

struct Speicher : Benutzerspeicher {
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override {
    const auto wert = werte.find(abschnitt + u'/' + schluessel);
    if (wert == werte.end()) return std::nullopt;
    return wert->second;
  }
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override {
    werte[abschnitt + u'/' + schluessel] = wert;
  }
  std::map<QString, QString> werte = {{QStringLiteral("Options/Show Tips at Startup"), QStringLiteral("0")}};
};

struct Stumm : Hilfe, Signalton, Betrachter, Fortschrittsanzeige, Drucker {
  void Aufrufen(const QString&, Hilfebefehl, int) override {}
  void Piep() override {}
  bool Oeffnen(const QString&) override { return true; }
  Fortschritt Beginnen(const QString&) override {
    return [](std::size_t, std::size_t) { return true; };
  }
  Druckausgang Einrichten() override { return Druckausgang::Gedruckt; }
  Druckausgang Drucken(const Druckauftrag&, const Fortschritt&) override { return Druckausgang::Gedruckt; }
  Druckausgang TextDrucken(const QTextDocument&, const QString&) override { return Druckausgang::Gedruckt; }
};

/// The whole program on a directory.
struct Lauf {
  explicit Lauf(const QString& verzeichnis)
      : plattform{boxen, dialoge, stumm, speicher, stumm, stumm, stumm, stumm},
        programm(station, plattform, {verzeichnis, {}}) {}
  /// What its user types: everything that a file of any kind holds of it.
  void Tippen(const std::string& text) {
    programm.Tun([&](Station& s, const Kataloge&) {
      s.benutzer.Name = text;
      s.winkel.antenne = text;
      s.lageplan.bezugsname = text;
      s.Datenblattspalten[0].Winkel.fill("3");
      s.UserGeaendert = s.winkel.bearbeitet = true;
      return Meldungen{};
    });
  }

  Boxen boxen;
  Dialoge dialoge;
  Speicher speicher;
  Stumm stumm;
  Plattform plattform;
  Station station;
  Programm programm;
};

}  // namespace vesk::ausfall
