#pragma once
#include <functional>
#include <iosfwd>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vesk {

/// Wrong or missing input of the command line or of a table; what() is the German message.
class Eingabefehler : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Wertart { Keiner, Moeglich, Noetig };

struct Option {
  std::string_view name;  ///< without dashes; empty: what stands there without an option
  Wertart wert = Wertart::Noetig;
};

/// What was given, by the name of the option; empty where it has no value.
using Optionen = std::map<std::string, std::string, std::less<>>;

/// Reads the options `erlaubt` and --help (-h), with one dash or two, a value after = or as the next
/// argument: each at most once, and nothing beside them but one argument where that is allowed. Throws
/// Eingabefehler.
Optionen OptionenLesen(std::span<const Option> erlaubt, std::span<const std::string> argumente);

/// Empty when it was not given.
std::string Wert(const Optionen& optionen, std::string_view name);

/// What was typed, for a message: valid UTF-8 of at most 40 characters, without those that control a
/// terminal.
std::string Gekuerzt(std::string_view eingabe);

/// What a command reads from and writes to.
struct Stroeme {
  std::istream& ein;
  std::ostream& aus;
  std::ostream& fehler;
};

/// Runs a command and tells what goes wrong under its `name`. Returns the command's exit code; 1 when it
/// throws std::runtime_error or its output cannot be written, 2 when it throws Eingabefehler.
int BefehlAusfuehren(std::string_view name, const Stroeme& stroeme, const std::function<int()>& befehl);

}  // namespace vesk
