#pragma once
#include <QStringList>
#include <array>
#include <optional>
#include <utility>

#include "Laufzeitfehler.h"
#include "OptionenUmgebung.h"
#include "Zahlen.h"

namespace vesk::skript {

/// The other windows as the options window sees them: switches and cells to set, and a record in order of
/// what was asked of them.
class Umgebung : public OptionenUmgebung {
 public:
  bool OptionenBeruecksichtigen() const override { return chkOptionen; }
  void OptionenBeruecksichtigenSetzen(bool an) override { chkOptionen = an; }
  bool MeldungenAn() const override { return mnuMeldungen; }
  bool AFu() const override { return mnuAFu; }

  QString Zelle(std::int16_t spalte, Zeile zeile) const override { return zellen.at(Index(spalte, zeile)); }
  void ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text) override {
    zellen.at(Index(spalte, zeile)) = text;
    aufrufe << QStringLiteral("Zelle %1.%2=%3").arg(spalte).arg(int(zeile)).arg(text);
  }
  void ModIdxSetzen(const QString& text) override { lblModIdx = text; }

  void HauptfrequenzSetzen(const QString& text) override { aufrufe << QStringLiteral("QRG=") + text; }
  void HauptgewinnSetzen(const QString& text) override { aufrufe << QStringLiteral("Gewinn=") + text; }
  void HauptverlusteSetzen(const QString& text) override { aufrufe << QStringLiteral("Daempfung=") + text; }
  void HauptwinkelSetzen(const QString& text) override { aufrufe << QStringLiteral("Winkel=") + text; }

  void Bandlogik(float mhz, bool hinweis) override {
    aufrufe << QStringLiteral("Bandlogik %1%2").arg(mhz).arg(QLatin1String(hinweis ? "" : " still"));
  }
  void Berechnen(bool meldungen) override {
    aufrufe << (meldungen ? QStringLiteral("Berechnen") : QStringLiteral("Berechnen still"));
    if (fehler) throw Laufzeitfehler(*fehler);
  }
  void SpalteUebernehmen() override { aufrufe << QStringLiteral("Übernehmen"); }

  /// What was asked since the last call.
  QString Protokoll() { return std::exchange(aufrufe, {}).join(QStringLiteral("; ")); }

  bool chkOptionen = true;
  bool mnuMeldungen = true;
  bool mnuAFu = true;
  QString lblModIdx;
  std::array<QString, AnzahlZellen> zellen;
  std::optional<Fehlerart> fehler;  ///< thrown by the central calculation

 private:
  static std::size_t Index(std::int16_t spalte, Zeile zeile) {
    return static_cast<std::size_t>(Gitterindex(spalte, zeile));
  }
  QStringList aufrufe;
};

}  // namespace vesk::skript
