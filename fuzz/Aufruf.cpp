#include <sstream>
#include <vector>

#include "engine/Zahlen.h"
#include "fuzz/Vorrat.h"
#include "rechnen/Rechenauftrag.h"
#include "rechnen/Rechenbefehl.h"

namespace vesk {

namespace {

/// The options of a program with windows, which may stand beside one file.
constexpr Option Fensteroptionen[] = {
    {"verzeichnis"}, {"version", Wertart::Keiner}, {"art"}, {"nach", Wertart::Moeglich}, {""}};

/// What is read bears a name that is allowed, and a value where one is needed.
void OptionenPruefen(const std::vector<std::string>& argumente) {
  Optionen gelesen;
  try {
    gelesen = OptionenLesen(Fensteroptionen, argumente);
  } catch (const Eingabefehler& fehler) {
    Pruefen(*fehler.what() != 0);
    return;
  }
  Pruefen(gelesen.size() <= argumente.size());
  for (const auto& [name, wert] : gelesen) {
    const auto* const option = std::find_if(std::begin(Fensteroptionen), std::end(Fensteroptionen),
                                            [&, n = name](const Option& o) { return o.name == n; });
    Pruefen(option != std::end(Fensteroptionen) || name == "help");
    const Wertart art = name == "help" ? Wertart::Keiner : option->wert;
    Pruefen(art == Wertart::Moeglich || wert.empty() == (art == Wertart::Keiner));
  }
}

/// Whatever gets through can be calculated with.
void AuftragPruefen(const Rechenaufruf& aufruf) {
  const Rechenwerte& werte = aufruf.auftrag.werte;
  const auto zahl = [](const std::string& text) { return text.empty() ? 1 : Zahl(text); };
  Pruefen(zahl(werte.QRGText) > 0 && zahl(werte.PWRText) > 0);
  Pruefen(zahl(werte.GewinnText) <= 100);
  Pruefen(zahl(werte.DaempfungText) >= 0 && zahl(werte.WinkelDaempfungText) >= 0);
  Pruefen(Faktor(werte) > 0 && Faktor(werte) <= 1);
  Pruefen(werte.Grenzwerttyp >= GrenzwertAM && werte.Grenzwerttyp <= GrenzwertGSM);
  Pruefen(aufruf.hilfe || aufruf.stapel || !(werte.QRGText.empty() || werte.PWRText.empty()));
}

struct Antwort {
  int rueckgabe;
  std::string aus;
  std::string fehler;
};

Antwort Antworten(const std::vector<std::string>& argumente, const std::string& eingabe) {
  std::istringstream ein(eingabe);
  std::ostringstream aus;
  std::ostringstream fehler;
  const Stroeme stroeme{ein, aus, fehler};
  const int rueckgabe =
      BefehlAusfuehren("vesk", stroeme, [&] { return Rechnen("vesk", argumente, ',', stroeme); });
  return {rueckgabe, aus.str(), fehler.str()};
}

/// A batch from a file is not run: nothing here reads the disk.
bool VonDerPlatte(const std::vector<std::string>& argumente) {
  try {
    const Rechenaufruf aufruf = RechenaufrufLesen(argumente);
    AuftragPruefen(aufruf);
    return aufruf.stapel && *aufruf.stapel != "-";
  } catch (const Eingabefehler&) {
    return false;
  }
}

/// Wrong input writes nothing but the reason; otherwise something is written, and the same as JSON.
void AntwortPruefen(std::vector<std::string> argumente, const std::string& eingabe) {
  const Antwort antwort = Antworten(argumente, eingabe);
  Pruefen(antwort.rueckgabe >= 0 && antwort.rueckgabe <= 2);
  Pruefen(antwort.rueckgabe != 2 || (antwort.aus.empty() && !antwort.fehler.empty()));
  Pruefen(antwort.rueckgabe != 0 || antwort.fehler.empty());
  argumente.insert(argumente.begin(), "--json");
  const Antwort json = Antworten(argumente, eingabe);
  // It stood there already, and twice is wrong.
  if (antwort.aus.starts_with('{') || json.rueckgabe == 2) return;
  Pruefen(json.rueckgabe == antwort.rueckgabe);
}

}  // namespace

}  // namespace vesk

/// Arguments, a line each; behind an empty one follows what stands on the standard input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  std::vector<std::string> argumente;
  while (!vorrat.Leer()) {
    std::string zeile = vorrat.Zeile();
    if (zeile.empty()) break;
    argumente.push_back(std::move(zeile));
  }
  OptionenPruefen(argumente);
  Pruefen(!Gekuerzt(vorrat.Rest()).empty() || vorrat.Leer());
  if (!VonDerPlatte(argumente)) AntwortPruefen(argumente, std::string(vorrat.Rest()));
  return 0;
}
