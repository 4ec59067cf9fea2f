#pragma once
#include <sstream>
#include <string>
#include <vector>

#include "rechnen/Rechenbefehl.h"

namespace vesk {

/// One call of `vesk rechnen`, and what came of it.
struct Rechenlauf {
  explicit Rechenlauf(const std::string& argumente, const std::string& eingabe = {}) {
    std::istringstream ein(eingabe);
    std::ostringstream ausgabe;
    Rufen(argumente, ein, ausgabe);
    aus = ausgabe.str();
  }
  Rechenlauf(const std::string& argumente, std::istream& ein, std::ostream& ausgabe) {
    Rufen(argumente, ein, ausgabe);
  }

  int rueckgabe = -1;
  std::string aus;
  std::string fehler;

 private:
  void Rufen(const std::string& argumente, std::istream& ein, std::ostream& ausgabe) {
    std::istringstream worte(argumente);
    std::vector<std::string> texte;
    for (std::string wort; worte >> wort;) texte.push_back(wort);
    std::ostringstream meldungen;
    const Stroeme stroeme{ein, ausgabe, meldungen};
    rueckgabe = BefehlAusfuehren("vesk rechnen", stroeme,
                                 [&] { return Rechnen("vesk rechnen", texte, ',', stroeme); });
    fehler = meldungen.str();
  }
};

}  // namespace vesk
