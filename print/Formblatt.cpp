#include <algorithm>

#include "engine/Zahlen.h"
#include "print/Dokumente.h"
#include "print/Formular.h"
#include "station/Spalten.h"
#include "station/Winkeltabelle.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr std::array<QStringView, 3> Signalarten = {u"AM (AFu)", u"TV (Fernsehmodulation)", u"GSM"};

/// What is not stated.
QString Strich() {
  return u"–"_s;
}

const Datenblattspalte& SatzVon(const Station& s, int spalte) {
  return s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
}

/// Without a length the cable tab gives no loss, and the cable is the one that is selected from the start.
bool MitKabel(const Datenblattspalte& satz) {
  return Positiv(satz.KabelLaenge);
}

QString Kabelname(const Datenblattspalte& satz, const Kataloge& k) {
  bool zahl = false;
  const auto index = QString::fromStdString(satz.KabelIndex).toUInt(&zahl);
  if (!zahl || index >= k.kabel.liste.size()) return Strich();
  return QString::fromStdString(k.kabel.liste[index]);
}

/// The main direction is 0 from the start; it is the other sectors that make a table.
bool MitWinkeln(const Datenblattspalte& satz) {
  return std::any_of(satz.Winkel.begin() + 1, satz.Winkel.end(),
                     [](const std::string& w) { return !w.empty(); });
}

QString Faktortext(float faktor) {
  return QString::fromStdString(Formatieren(faktor));
}

/// The options of the used columns, row by row.
class Optionsblock {
 public:
  Optionsblock(const Station& s, const Spaltenlagen& lagen) : s_(s), lagen_(lagen) {}

  /// `text(spalte, satz)` is what the cell shows.
  template <typename Text>
  void Zeile(const QString& beschriftung, Text text, double linie = 0) {
    Gitterzeile zeile{.beschriftung = beschriftung, .linie = linie};
    for (std::size_t i = 0; i < lagen_.size(); ++i) {
      const int spalte = static_cast<int>(i) + 1;
      if (lagen_.at(i).benutzt) zeile.zellen.at(i).text = text(spalte, SatzVon(s_, spalte));
    }
    Anhaengen(folge, Gitterstreifen(zeile, Formart::Eigene, 0.3));
  }

  Streifenfolge folge;

 private:
  const Station& s_;
  const Spaltenlagen& lagen_;
};

QString OderStrich(const std::string& text) {
  return text.empty() ? Strich() : QString::fromStdString(text);
}

void KabelZeigen(Optionsblock& block, const Kataloge& k) {
  using Satz = const Datenblattspalte&;
  const auto text = [](std::string Datenblattspalte::*feld) {
    return [feld](int, Satz satz) { return MitKabel(satz) ? OderStrich(satz.*feld) : Strich(); };
  };
  block.Zeile(
      u"Kabel"_s, [&](int, Satz satz) { return MitKabel(satz) ? Kabelname(satz, k) : Strich(); }, Nebenlinie);
  block.Zeile(u"Kabellänge [m]"_s, text(&Datenblattspalte::KabelLaenge));
  block.Zeile(u"Kabeldämpfung je 100 m [dB]"_s, text(&Datenblattspalte::D100));
  block.Zeile(u"Stecker etc. [dB]"_s, [](int, Satz satz) { return OderStrich(satz.Stecker); });
  block.Zeile(u"Kabel und Stecker gesamt [dB]"_s,
              [](int, Satz satz) { return OderStrich(satz.Gesamtdaempfung); });
}

/// A row for each sector; of columns without a table, and where there is none at all, one row with a dash.
void WinkelZeigen(Optionsblock& block, const Station& s) {
  const auto& saetze = s.Datenblattspalten;
  const bool mitWinkeln = std::any_of(saetze.begin() + 1, saetze.end(), MitWinkeln);
  for (std::size_t i = 0; i < (mitWinkeln ? AnzahlSektoren : 1); ++i) {
    const QString name = mitWinkeln ? u"Winkeldämpfung %1° bis %2° [dB]"_s.arg(10 * i).arg(10 * (i + 1))
                                    : u"Winkeltabelle [dB]"_s;
    block.Zeile(
        name,
        [i](int, const Datenblattspalte& satz) {
          if (MitWinkeln(satz)) return OderStrich(satz.Winkel.at(i));
          return i == 0 ? Strich() : QString();
        },
        i == 0 ? Nebenlinie : 0);
  }
}

Streifenfolge Optionsstreifen(const Station& s, const Kataloge& k, const Spaltenlagen& lagen) {
  Optionsblock block(s, lagen);
  const auto faktor = [&s](float Rechenwerte::*wert) {
    return [&s, wert](int i, const auto&) { return Faktortext(Spaltenwerte(s, i).*wert); };
  };
  block.Zeile(u"Modulationsfaktor"_s, faktor(&Rechenwerte::Modulationsfaktor), Hauptlinie);
  block.Zeile(u"Zyklusfaktor"_s, faktor(&Rechenwerte::Zyklusfaktor));
  block.Zeile(u"Faktor für Sendeart (Produkt)"_s,
              [&](int i, const auto&) { return Faktortext(Spaltenfaktor(s, i)); });
  block.Zeile(u"Grenzwerttyp (VDE 0848 Teil 3-1)"_s, [&](int i, const auto&) {
    return Signalarten.at(static_cast<std::size_t>(Spaltenwerte(s, i).Grenzwerttyp)).toString();
  });
  KabelZeigen(block, k);
  WinkelZeigen(block, s);
  return block.folge;
}

/// Columns whose distance was computed with less than full power.
std::vector<int> Ermaessigt(const Station& s) {
  std::vector<int> spalten;
  for (const int spalte : BenutzteSpalten(s)) {
    if (!Zelle(s, spalte, ZeileOhneHSM).empty() && Spaltenfaktor(s, spalte) < 1) spalten.push_back(spalte);
  }
  return spalten;
}

}  // namespace

Dokument Formblatt(const Station& s, const Kataloge& k) {
  const Spaltenlagen lagen = LagenDerSpalten(s);
  Streifenfolge folge = Angabestreifen(u"Betreiber"_s, {s.benutzer.Rufzeichen, s.benutzer.Name});
  Anhaengen(folge, Angabestreifen(u"Standort"_s, {s.benutzer.Standort}));
  folge.push_back(Abstandstreifen(3));
  Anhaengen(folge, Datenblattstreifen(s, lagen, Formart::Eigene));
  Anhaengen(folge, Optionsstreifen(s, k, lagen));
  Anhaengen(folge, Hinweisstreifen(lagen, Formart::Eigene));
  Anhaengen(folge, Spaltenhinweis(Ermaessigt(s),
                                  u"Gerechnet ist mit einem Faktor unter 1; er darf beim Funkbetrieb nicht "
                                  u"überschritten werden."_s));
  return Formular(u"Datenblatt"_s, s, lagen, Formart::Eigene, folge);
}

}  // namespace vesk
