#pragma once
#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/Hinweise.h"

namespace vesk {

/// Answers boxes from a list. One that was not expected fails the test, and so does one that does not come.
class Boxfolge {
 public:
  ~Boxfolge() { AllesGezeigt(); }
  /// The next box must bear `titel` and contain `teil`.
  void Erwarten(const std::string& titel, const std::string& teil, Antwort antwort = Antwort::OK) {
    erwartet_.push_back({titel, teil, antwort});
  }
  Antwort Beantworten(const Hinweis& box) {
    gezeigt.push_back(box);
    // What cannot be taken back is not done by an Enter too many.
    for (const char* ende : {"löschen?", "verwerfen?", "überschreiben?", "beenden?", "laden?"}) {
      EXPECT_TRUE(!box.text.ends_with(ende) || box.vorgabe == Antwort::Nein) << box.text;
    }
    const Antwort ohne = box.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Nein;
    if (alleErlaubt) return ohne;
    EXPECT_FALSE(erwartet_.empty()) << "unexpected: " << box.titel << ": " << box.text;
    if (erwartet_.empty()) return ohne;
    const auto [titel, teil, antwort] = erwartet_.front();
    erwartet_.pop_front();
    EXPECT_EQ(box.titel, titel) << box.text;
    EXPECT_NE(box.text.find(teil), std::string::npos) << box.text << "\nlacks\n" << teil;
    EXPECT_EQ(box.knoepfe == Knoepfe::OK, antwort == Antwort::OK) << box.text;
    return antwort;
  }
  void AllesGezeigt() {
    for (const auto& box : erwartet_) ADD_FAILURE() << "did not come: " << box.titel << ": " << box.teil;
    erwartet_.clear();
  }

  std::vector<Hinweis> gezeigt;
  bool alleErlaubt = false;  ///< any box is answered, Nein to a question

 private:
  struct Erwartung {
    std::string titel;
    std::string teil;
    Antwort antwort;
  };
  std::deque<Erwartung> erwartet_;
};

/// The same for dialogs that choose a file; no value: cancelled.
template <typename Wahl, typename Pfad>
class Wahlfolge {
 public:
  ~Wahlfolge() { EXPECT_TRUE(antworten_.empty()) << "a file was not asked for"; }
  void Antworten(std::optional<Pfad> pfad) { antworten_.push_back(std::move(pfad)); }
  std::optional<Pfad> Waehlen(const Wahl& wahl) {
    gezeigt.push_back(wahl);
    if (antworten_.empty()) {
      EXPECT_TRUE(alleErlaubt) << "unexpected file dialog";
      return std::nullopt;
    }
    std::optional<Pfad> pfad = std::move(antworten_.front());
    antworten_.pop_front();
    return pfad;
  }

  std::vector<Wahl> gezeigt;
  bool alleErlaubt = false;  ///< any dialog is cancelled

 private:
  std::deque<std::optional<Pfad>> antworten_;
};

}  // namespace vesk
