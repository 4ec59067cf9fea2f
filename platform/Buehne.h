#pragma once
#include <QMap>
#include <QPair>

#include "platform/Plattform.h"

/// A desktop without a user, for a program that is played to.
namespace vesk {

/// Forgotten with the process.
class Merkspeicher : public Benutzerspeicher {
 public:
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override {
    const auto wert = werte.constFind({abschnitt, schluessel});
    return wert == werte.constEnd() ? std::nullopt : std::optional(*wert);
  }
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override {
    werte.insert({abschnitt, schluessel}, wert);
  }
  QMap<QPair<QString, QString>, QString> werte;
};

/// One of each, bundled as the windows take it.
template <typename Boxen, typename Dateien, typename Handbuch, typename Toene, typename Papier,
          typename Blick, typename Anzeige>
struct Buehne {
  Boxen boxen;
  Dateien dialoge;
  Handbuch hilfe;
  Merkspeicher speicher;
  Toene ton;
  Papier papier;
  Blick betrachter;
  Anzeige fortschritt;
  Plattform plattform{boxen, dialoge, hilfe, speicher, ton, papier, betrachter, fortschritt};
};

}  // namespace vesk
