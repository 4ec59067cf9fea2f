#include "rechnen/Optionen.h"

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>

namespace vesk {

namespace {

constexpr Option Hilfe = {"help", Wertart::Keiner};

/// What can be wrong, what is told first before the rest: a mistyped name shall not hide behind the value
/// that it seems to be.
enum Fehlgriff { Unbekannt, Doppelt, OhneWert, MitWert, Uebrig, Anzahl };

class Leser {
 public:
  explicit Leser(std::span<const Option> erlaubt) : erlaubt_(erlaubt) {}

  /// Reads the first of the arguments, and the next when that is its value; returns those behind.
  std::span<const std::string> Lesen(std::span<const std::string> argumente) {
    std::string_view name = argumente.front();
    argumente = argumente.subspan(1);
    name.remove_prefix(name.starts_with("--") ? 2 : 1);
    std::optional<std::string> wert;
    if (const std::size_t gleich = name.find('='); gleich != std::string_view::npos) {
      wert = name.substr(gleich + 1);
      name = name.substr(0, gleich);
    }
    const Option* const option = name.empty() ? nullptr : Finden(name);
    if (option == nullptr) {
      Melden(Unbekannt, "Unbekannte Option: --" + std::string(name));
      return argumente;
    }
    if (wert && option->wert == Wertart::Keiner)
      Melden(MitWert, "Nur diese Optionen haben einen Wert:" + Namen());
    if (!wert && !argumente.empty() && NimmtNaechstes(*option, argumente.front())) {
      wert = argumente.front();
      argumente = argumente.subspan(1);
    }
    Eintragen(*option, wert);
    return argumente;
  }

  void Uebriges(const std::string& argument) {
    const bool erlaubt = Finden("") != nullptr && !argument.empty();
    if (!erlaubt || !gegeben_.emplace("", argument).second) Melden(Uebrig, "Unerwartete Angabe: " + argument);
  }

  Optionen Ergebnis() {
    for (const auto& fehler : fehler_) {
      if (fehler) throw Eingabefehler(*fehler);
    }
    return std::move(gegeben_);
  }

  static bool IstOption(std::string_view argument) { return argument.size() > 1 && argument.front() == '-'; }

 private:
  const Option* Finden(std::string_view name) const {
    if (name == "h" || name == Hilfe.name) return &Hilfe;
    const auto option = std::find_if(erlaubt_.begin(), erlaubt_.end(),
                                     [&](const Option& erlaubte) { return erlaubte.name == name; });
    return option != erlaubt_.end() ? &*option : nullptr;
  }

  static bool NimmtNaechstes(const Option& option, std::string_view naechstes) {
    return option.wert == Wertart::Noetig || (option.wert == Wertart::Moeglich && !IstOption(naechstes));
  }

  void Eintragen(const Option& option, const std::optional<std::string>& wert) {
    const std::string name(option.name);
    if (!gegeben_.emplace(name, wert.value_or("")).second) {
      Melden(Doppelt, "Die Option --" + name + " darf nur einmal stehen.");
    }
    if (option.wert == Wertart::Keiner || (option.wert == Wertart::Moeglich && !wert)) return;
    if (!wert || wert->empty()) Melden(OhneWert, "Der Option --" + name + " fehlt ihr Wert.");
  }

  std::string Namen() const {
    std::string namen;
    for (const Option& option : erlaubt_) {
      if (option.wert == Wertart::Keiner || option.name.empty()) continue;
      namen += (namen.empty() ? " --" : ", --") + std::string(option.name);
    }
    return namen;
  }

  void Melden(Fehlgriff fehlgriff, const std::string& text) {
    if (!fehler_.at(fehlgriff)) fehler_.at(fehlgriff) = text;
  }

  std::span<const Option> erlaubt_;
  Optionen gegeben_;
  std::array<std::optional<std::string>, Anzahl> fehler_;
};

/// Length of the UTF-8 character at the head of a text that is not empty; 0: the head is none.
std::size_t Zeichenlaenge(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(i < text.size() ? text[i] : 0); };
  const unsigned char erstes = byte(0);
  if (erstes < 0x80) return 1;
  const std::size_t laenge = erstes >= 0xF0 ? 4 : erstes >= 0xE0 ? 3 : 2;
  // Neither too long a form, nor a surrogate, nor beyond U+10FFFF.
  const unsigned char zweites = byte(1);
  if (erstes < 0xC2 || erstes > 0xF4 || (erstes == 0xE0 && zweites < 0xA0) ||
      (erstes == 0xED && zweites > 0x9F) || (erstes == 0xF0 && zweites < 0x90) ||
      (erstes == 0xF4 && zweites > 0x8F)) {
    return 0;
  }
  for (std::size_t i = 1; i < laenge; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return 0;
  }
  return laenge;
}

}  // namespace

Optionen OptionenLesen(std::span<const Option> erlaubt, std::span<const std::string> argumente) {
  Leser leser(erlaubt);
  bool nurUebriges = false;
  while (!argumente.empty()) {
    const std::string& argument = argumente.front();
    if (!nurUebriges && argument != "--" && Leser::IstOption(argument)) {
      argumente = leser.Lesen(argumente);
      continue;
    }
    if (nurUebriges || argument != "--") leser.Uebriges(argument);
    nurUebriges |= argument == "--";
    argumente = argumente.subspan(1);
  }
  return leser.Ergebnis();
}

std::string Wert(const Optionen& optionen, std::string_view name) {
  const auto gefunden = optionen.find(name);
  return gefunden != optionen.end() ? gefunden->second : "";
}

std::string Gekuerzt(std::string_view eingabe) {
  constexpr int Hoechstens = 40;
  constexpr int Gezeigt = 37;
  std::string text;
  std::size_t gezeigt = 0;
  int anzahl = 0;
  while (!eingabe.empty()) {
    if (++anzahl > Hoechstens) return text.substr(0, gezeigt) + "...";
    const std::size_t laenge = Zeichenlaenge(eingabe);
    const auto erstes = static_cast<unsigned char>(eingabe.front());
    const bool zeigbar = laenge > 0 && (erstes >= 0x20 || erstes == '\t') && erstes != 0x7F;
    text += zeigbar ? eingabe.substr(0, laenge) : "\uFFFD";
    eingabe.remove_prefix(std::max<std::size_t>(laenge, 1));
    if (anzahl == Gezeigt) gezeigt = text.size();
  }
  return text;
}

int BefehlAusfuehren(std::string_view name, const Stroeme& stroeme, const std::function<int()>& befehl) {
  int rueckgabe = 0;
  try {
    rueckgabe = befehl();
  } catch (const Eingabefehler& eingabe) {
    stroeme.fehler << name << ": " << eingabe.what() << "\nMehr dazu: " << name << " --help\n";
    return 2;
  } catch (const std::runtime_error& grund) {
    stroeme.fehler << name << ": " << grund.what() << '\n';
    rueckgabe = 1;
  }
  if (stroeme.aus.flush()) return rueckgabe;
  stroeme.fehler << name << ": Die Ausgabe ließ sich nicht schreiben.\n";
  return 1;
}

}  // namespace vesk
