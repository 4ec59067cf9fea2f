#pragma once
#include <QMap>
#include <QPair>
#include <QStringList>
#include <QTextDocument>

#include "platform/Dokumentdrucker.h"
#include "platform/Plattform.h"
#include "tests/Antworten.h"

/// Scripted platform; nothing here ever opens a window.
namespace vesk::skript {

class Boxen : public Meldungsboxen, public Boxfolge {
 public:
  Antwort Zeigen(const Hinweis& box) override { return Beantworten(box); }
};

class Dialoge : public Dateidialoge, public Wahlfolge<Dialogwahl, QString> {
 public:
  std::optional<QString> Oeffnen(const Dialogwahl& wahl) override { return Waehlen(wahl); }
  std::optional<QString> Speichern(const Dialogwahl& wahl) override { return Waehlen(wahl); }
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

/// Records what would have gone to paper.
class Drucker : public Dokumentdrucker {
 public:
  bool Drucken(const QTextDocument& dokument, const QString& titel) override {
    titelliste << titel;
    texte << dokument.toPlainText();
    return true;
  }
  QStringList titelliste;
  QStringList texte;
};

/// One of each, bundled as the windows take it.
struct Buehne {
  Boxen boxen;
  Dialoge dialoge;
  Hilfeaufrufe hilfe;
  Speicher speicher;
  Ton ton;
  Plattform plattform{boxen, dialoge, hilfe, speicher, ton};
};

}  // namespace vesk::skript
