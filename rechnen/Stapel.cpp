#include "rechnen/Stapel.h"

#include <algorithm>
#include <optional>
#include <variant>

#include "rechnen/Csv.h"
#include "rechnen/Json.h"
#include "rechnen/Zeilenleser.h"

namespace vesk {

namespace {

constexpr std::size_t Blockgroesse = std::size_t{64} * 1024;

std::string_view Text(const Zeilenleser::Zeile& zeile) {
  return {zeile.text.data(), zeile.text.size()};
}

bool IstLeer(const Zeilenleser::Zeile& zeile) {
  return !zeile.zuLang && Text(zeile).find_first_not_of(" \t") == std::string_view::npos;
}

void LaengePruefen(const Zeilenleser::Zeile& zeile) {
  if (zeile.zuLang) throw Eingabefehler("Die Zeile ist länger als 64 KiB.");
}

/// What the first line says.
struct Kopf {
  char trenner = ';';
  std::vector<Angabe> spalten;
};

char TrennerDes(std::string_view kopf) {
  for (const char trenner : {';', '\t', ','}) {
    if (kopf.find(trenner) != std::string_view::npos) return trenner;
  }
  return ';';
}

Angabe SpalteZu(std::string_view name) {
  std::string klein(name.substr(name.starts_with("--") ? 2 : 0));
  for (char& z : klein) {
    if (z >= 'A' && z <= 'Z') z = static_cast<char>(z - 'A' + 'a');
  }
  const auto gefunden = std::find(Angabenamen.begin(), Angabenamen.end(), klein);
  if (gefunden != Angabenamen.end()) return static_cast<Angabe>(gefunden - Angabenamen.begin());
  std::string moeglich;
  for (const std::string_view moeglicher : Angabenamen)
    moeglich.append(moeglich.empty() ? "" : ", ").append(moeglicher);
  throw Eingabefehler("Unbekannte Spalte: „" + Gekuerzt(name) + "“ (möglich sind " + moeglich + ").");
}

/// Throws Eingabefehler.
Kopf KopfLesen(const Zeilenleser::Zeile& zeile, const Rechenwerte& vorgabe) {
  LaengePruefen(zeile);
  Kopf kopf{TrennerDes(Text(zeile)), {}};
  std::vector<std::string_view> namen;
  CsvZerlegen(zeile.text, kopf.trenner, namen);
  const auto hat = [&](Angabe angabe) {
    return std::find(kopf.spalten.begin(), kopf.spalten.end(), angabe) != kopf.spalten.end();
  };
  for (const std::string_view name : namen) {
    const Angabe spalte = SpalteZu(name);
    if (hat(spalte)) throw Eingabefehler("Die Spalte " + Gekuerzt(name) + " darf nur einmal stehen.");
    kopf.spalten.push_back(spalte);
  }
  if (vorgabe.QRGText.empty() && !hat(Angabe::QRG)) throw Eingabefehler("Die Spalte qrg fehlt.");
  if (vorgabe.PWRText.empty() && !hat(Angabe::PWR) && !hat(Angabe::Abstand)) {
    throw Eingabefehler("Die Spalte pwr oder abstand fehlt.");
  }
  return kopf;
}

/// A comma that separates cells leaves numbers the point. Otherwise the numbers of the first row tell.
char Dezimaltrenner(char trenner, std::string_view ersteZeile) {
  const bool punkt =
      ersteZeile.find(',') == std::string_view::npos && ersteZeile.find('.') != std::string_view::npos;
  return trenner == ',' || punkt ? '.' : ',';
}

class Stapel {
 public:
  Stapel(const Rechenaufruf& aufruf, char dezimaltrenner, const Stroeme& stroeme)
      : vorgabe_(aufruf.auftrag), trenner_(dezimaltrenner), stroeme_(stroeme) {
    if (aufruf.json) schreiber_.emplace<Jsonschreiber>(Jsonschreiber::Form::EineZeile);
  }

  void Annehmen(Zeilenleser::Zeile zeile) {
    if (zeile.nummer == 1 && Text(zeile).starts_with("\xEF\xBB\xBF")) zeile.text = zeile.text.subspan(3);
    if (IstLeer(zeile)) return;
    if (kopf_.spalten.empty()) {
      KopfAnnehmen(zeile);
    } else {
      ZeileAnnehmen(zeile);
    }
    if (aus_.Inhalt().size() >= Blockgroesse) Ausgeben();
  }

  /// False: it cannot be written.
  bool Ausgeben() {
    fehler_.Ausgeben(stroeme_.fehler);
    aus_.Ausgeben(stroeme_.aus);
    return static_cast<bool>(stroeme_.aus.flush());
  }

  int Beenden() {
    if (!Ausgeben()) return 1;
    if (kopf_.spalten.empty()) throw Eingabefehler("Die Kopfzeile mit den Namen der Spalten fehlt.");
    return alleGut_ ? 0 : 1;
  }

 private:
  void KopfAnnehmen(const Zeilenleser::Zeile& zeile) {
    kopf_ = KopfLesen(zeile, vorgabe_.werte);
    if (std::holds_alternative<std::monostate>(schreiber_))
      Csvschreiber(kopf_.trenner, '.').KopfSchreiben(aus_);
  }

  void ZeileAnnehmen(const Zeilenleser::Zeile& zeile) {
    if (std::holds_alternative<std::monostate>(schreiber_)) {
      trenner_ = Dezimaltrenner(kopf_.trenner, Text(zeile));
      schreiber_.emplace<Csvschreiber>(kopf_.trenner, trenner_);
    }
    try {
      Rechnen(zeile.nummer, AuftragLesen(zeile));
    } catch (const Eingabefehler& warum) {
      FehlerMelden(zeile.nummer, warum.what());
      Schreiben([&](auto& schreiber) { schreiber.Ablehnen(warum.what(), zeile.nummer, aus_); });
    }
  }

  Rechenauftrag AuftragLesen(const Zeilenleser::Zeile& zeile) {
    LaengePruefen(zeile);
    CsvZerlegen(zeile.text, kopf_.trenner, zellen_);
    if (zellen_.size() > kopf_.spalten.size()) {
      throw Eingabefehler("Die Zeile hat " + std::to_string(zellen_.size()) + " Zellen, die Kopfzeile " +
                          std::to_string(kopf_.spalten.size()) + ".");
    }
    Angaben angaben;
    for (std::size_t i = 0; i < zellen_.size(); ++i) {
      angaben[static_cast<std::size_t>(kopf_.spalten[i])] = zellen_[i];
    }
    Rechenauftrag auftrag = vorgabe_;
    Uebernehmen(angaben, "", auftrag);
    VollstaendigkeitPruefen(auftrag);
    DezimalzeichenPruefen();
    return auftrag;
  }

  /// Where commas stand before the decimals, "1.000" may well be a thousand: a table keeps to the sign that
  /// its first number with one bears. Throws Eingabefehler.
  void DezimalzeichenPruefen() {
    char zeichen = dezimalzeichen_;
    for (std::size_t i = 0; i < zellen_.size(); ++i) {
      const auto gefunden =
          std::find_if(zellen_[i].begin(), zellen_[i].end(), [](char z) { return z == '.' || z == ','; });
      if (gefunden == zellen_[i].end() || *gefunden == zeichen) continue;
      if (zeichen != 0) {
        throw Eingabefehler(std::string(Angabenamen[static_cast<std::size_t>(kopf_.spalten[i])]) + ": „" +
                            Gekuerzt(zellen_[i]) + "“ ist nicht eindeutig, davor steht als Dezimalzeichen " +
                            (zeichen == ',' ? "ein Komma." : "ein Punkt."));
      }
      zeichen = *gefunden;
    }
    dezimalzeichen_ = zeichen;
  }

  void Rechnen(std::size_t zeile, Rechenauftrag auftrag) {
    const Rechnung rechnung(std::move(auftrag), trenner_);
    if (rechnung.ergebnis.fehler) FehlerMelden(zeile, Fehlermeldung(*rechnung.ergebnis.fehler).text);
    Schreiben([&](auto& schreiber) { schreiber.Schreiben(rechnung, zeile, aus_); });
  }

  void FehlerMelden(std::size_t zeile, const std::string& text) {
    alleGut_ = false;
    const std::string meldung = "Zeile " + std::to_string(zeile) + ": " + text + '\n';
    fehler_.Bis(TextSchreiben(meldung, fehler_.Platz(meldung.size())));
  }

  template <typename Aufgabe>
  void Schreiben(const Aufgabe& aufgabe) {
    if (auto* json = std::get_if<Jsonschreiber>(&schreiber_)) aufgabe(*json);
    if (auto* csv = std::get_if<Csvschreiber>(&schreiber_)) aufgabe(*csv);
  }

  const Rechenauftrag& vorgabe_;
  char trenner_;  ///< of the decimals
  const Stroeme& stroeme_;
  Kopf kopf_;
  std::variant<std::monostate, Jsonschreiber, Csvschreiber> schreiber_;  ///< none: waits for the first row
  std::vector<std::string_view> zellen_;
  char dezimalzeichen_ = 0;  ///< of the rows so far; 0: none has one
  Puffer aus_;
  Puffer fehler_;
  bool alleGut_ = true;
};

}  // namespace

int StapelRechnen(const Rechenaufruf& aufruf, char dezimaltrenner, const Stroeme& stroeme) {
  Stapel stapel(aufruf, dezimaltrenner, stroeme);
  Zeilenleser leser(stroeme.ein);
  // Before it waits for more lines, it answers those that it has.
  do {
    for (Zeilenleser::Zeile zeile; leser.Naechste(zeile);) stapel.Annehmen(zeile);
  } while (stapel.Ausgeben() && leser.Nachfuellen());
  return stapel.Beenden();
}

}  // namespace vesk
