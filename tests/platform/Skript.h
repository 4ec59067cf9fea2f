#pragma once
#include <gtest/gtest.h>

#include <QMap>
#include <QPair>
#include <QStringList>
#include <deque>
#include <utility>
#include <vector>

#include "Plattform.h"

/// Scripted platform: answers from lists that the test fills, records what was shown, and fails the test on
/// a prompt that it was not told of. Nothing here ever opens a window.
namespace vesk::skript {

class Boxen : public Meldungsboxen {
 public:
  /// The next box must bear `titel` and contain `teil`; it is answered with `antwort`.
  void Erwarten(const QString& titel, const QString& teil, Antwort antwort = Antwort::OK) {
    erwartet_.push_back({titel, teil, antwort});
  }
  Antwort Zeigen(const Box& box) override {
    gezeigt.push_back(box);
    if (alleErlaubt) return box.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Nein;
    if (erwartet_.empty()) {
      ADD_FAILURE() << "Unerwartete Box \"" << box.titel.toStdString() << "\": " << box.text.toStdString();
      return box.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Nein;
    }
    const Erwartung naechste = erwartet_.front();
    erwartet_.pop_front();
    EXPECT_EQ(box.titel.toStdString(), naechste.titel.toStdString());
    EXPECT_TRUE(box.text.contains(naechste.teil)) << box.text.toStdString() << "\nenthält nicht\n"
                                                  << naechste.teil.toStdString();
    EXPECT_EQ(box.knoepfe == Knoepfe::OK, naechste.antwort == Antwort::OK) << box.text.toStdString();
    return naechste.antwort;
  }
  /// Fails the test when an expected box was not shown.
  void AllesGezeigt() {
    EXPECT_TRUE(erwartet_.empty()) << erwartet_.size() << " erwartete Box(en) fehlen, zuerst \""
                                   << (erwartet_.empty() ? "" : erwartet_.front().titel.toStdString())
                                   << "\"";
    erwartet_.clear();
  }

  std::vector<Box> gezeigt;
  bool alleErlaubt = false;  ///< any box is answered, Nein to a question

 private:
  struct Erwartung {
    QString titel;
    QString teil;
    Antwort antwort;
  };
  std::deque<Erwartung> erwartet_;
};

class Dialoge : public Dateidialoge {
 public:
  /// The next dialog answers `pfad`; no value: cancelled.
  void Antworten(std::optional<QString> pfad) { antworten_.push_back(std::move(pfad)); }
  std::optional<QString> Oeffnen(const Dateiwahl& wahl) override { return Naechste(wahl); }
  std::optional<QString> Speichern(const Dateiwahl& wahl) override { return Naechste(wahl); }

  std::vector<Dateiwahl> gezeigt;
  bool alleErlaubt = false;  ///< any dialog is cancelled

 private:
  std::optional<QString> Naechste(const Dateiwahl& wahl) {
    gezeigt.push_back(wahl);
    if (alleErlaubt) return std::nullopt;
    if (antworten_.empty()) {
      ADD_FAILURE() << "Unerwarteter Dateidialog \"" << wahl.titel.toStdString() << '"';
      return std::nullopt;
    }
    auto antwort = antworten_.front();
    antworten_.pop_front();
    return antwort;
  }
  std::deque<std::optional<QString>> antworten_;
};

class Hilfeaufrufe : public Hilfe {
 public:
  struct Aufruf {
    QString datei;
    Hilfebefehl befehl;
    int kontext;
  };
  void Aufrufen(const QString& datei, Hilfebefehl befehl, int kontext) override {
    aufrufe.push_back({datei, befehl, kontext});
  }
  std::vector<Aufruf> aufrufe;
};

class Speicher : public Benutzerspeicher {
 public:
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override {
    const auto wert = werte.constFind({abschnitt, schluessel});
    return wert == werte.constEnd() ? std::nullopt : std::optional<QString>(*wert);
  }
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override {
    werte.insert({abschnitt, schluessel}, wert);
  }
  QMap<QPair<QString, QString>, QString> werte;
};

class Ton : public Signalton {
 public:
  void Piep() override { ++anzahl; }
  int anzahl = 0;
};

/// One of each, bundled as the windows take it.
struct Buehne {
  ~Buehne() { boxen.AllesGezeigt(); }
  Boxen boxen;
  Dialoge dialoge;
  Hilfeaufrufe hilfe;
  Speicher speicher;
  Ton ton;
  Plattform plattform{boxen, dialoge, hilfe, speicher, ton};
};

}  // namespace vesk::skript
