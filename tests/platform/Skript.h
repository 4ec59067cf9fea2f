#pragma once
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QTextDocument>

#include "platform/Buehne.h"
#include "platform/Drucker.h"
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

class Ton : public Signalton {
 public:
  void Piep() override { ++anzahl; }
  int anzahl = 0;
};

/// Paper: records what would have gone there, and comes to the end that the test wants.
class Papier : public Drucker {
 public:
  Druckausgang Einrichten() override { return ++eingerichtet, ausgang; }
  Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) override {
    titelliste << auftrag.titel;
    for (std::size_t i = 0; i < auftrag.seiten.size(); ++i) {
      if (!fortschritt(i, auftrag.seiten.size())) return Druckausgang::Abgebrochen;
      QImage bild(210, 210, QImage::Format_RGB32);
      QPainter maler(&bild);
      auftrag.malen(i, maler, 1);
      ++seiten;
    }
    return ausgang;
  }
  Druckausgang TextDrucken(const QTextDocument& dokument, const QString& titel) override {
    titelliste << titel;
    texte << dokument.toPlainText();
    return ausgang;
  }
  Druckausgang ausgang = Druckausgang::Gedruckt;
  int eingerichtet = 0;
  int seiten = 0;
  QStringList titelliste;
  QStringList texte;
};

class Betrachtet : public Betrachter {
 public:
  bool Oeffnen(const QString& datei) override {
    dateien << datei;
    return true;
  }
  QStringList dateien;
};

class Anzeige : public Fortschrittsanzeige {
 public:
  Fortschritt Beginnen(const QString&) override {
    return [this](std::size_t fertig, std::size_t) { return fertig < abbruchBei; };
  }
  std::size_t abbruchBei = 1000;
};

using Buehne = vesk::Buehne<Boxen, Dialoge, Hilfeaufrufe, Ton, Papier, Betrachtet, Anzeige>;

}  // namespace vesk::skript
