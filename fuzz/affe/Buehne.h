#pragma once
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include "fuzz/affe/Ordner.h"
#include "fuzz/affe/Skript.h"
#include "platform/Drucker.h"
#include "platform/Plattform.h"

/// A desktop whose user answers by chance.
namespace vesk::affe {

class Boxen : public Meldungsboxen {
 public:
  explicit Boxen(Zufall& zufall) : zufall_(zufall) {}
  Antwort Zeigen(const Hinweis& box) override {
    const bool rettung = box.text.find("nicht ordentlich beendet") != std::string::npos;
    const Antwort antwort = rettung && zurueckholen      ? Antwort::Ja
                            : box.knoepfe == Knoepfe::OK ? Antwort::OK
                            : zufall_.Einmal(2)          ? Antwort::Ja
                                                         : Antwort::Nein;
    Schreiben(
        QStringLiteral("  Box \"%1: %2\": %3")
            .arg(QString::fromStdString(box.titel), QString::fromStdString(box.text).left(100).simplified())
            .arg(static_cast<int>(antwort)));
    return antwort;
  }

  bool zurueckholen = false;  ///< what a crash has left is taken up, whatever chance says

 private:
  Zufall& zufall_;
};

class Dialoge : public Dateidialoge {
 public:
  Dialoge(Zufall& zufall, Ordner& ordner) : zufall_(zufall), ordner_(ordner) {}
  std::optional<QString> Oeffnen(const Dialogwahl& wahl) override { return Waehlen(wahl); }
  std::optional<QString> Speichern(const Dialogwahl& wahl) override { return Waehlen(wahl); }

 private:
  std::optional<QString> Waehlen(const Dialogwahl& wahl) {
    if (zufall_.Einmal(3)) return std::nullopt;
    const QString datei = ordner_.Datei(wahl.endung.isEmpty() ? QStringLiteral("dat") : wahl.endung);
    Schreiben(QStringLiteral("  Datei \"%1\": %2").arg(wahl.titel, datei.section(u'/', -2)));
    return datei;
  }

  Zufall& zufall_;
  Ordner& ordner_;
};

class KeineHilfe : public Hilfe {
 public:
  void Aufrufen(const QString&, Hilfebefehl, int) override {}
};

/// Outlives the runs of a program, not the process.
class Speicher : public Benutzerspeicher {
 public:
  std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) override {
    const auto wert = werte_.constFind(abschnitt + u'/' + schluessel);
    return wert == werte_.constEnd() ? std::nullopt : std::optional(*wert);
  }
  void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) override {
    werte_.insert(abschnitt + u'/' + schluessel, wert);
  }

 private:
  QHash<QString, QString> werte_;
};

class KeinTon : public Signalton {
 public:
  void Piep() override {}
};

class Papier : public Drucker {
 public:
  explicit Papier(Zufall& zufall) : zufall_(zufall) {}
  Druckausgang Einrichten() override { return Ausgang(); }
  Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) override {
    for (std::size_t i = 0; i < auftrag.seiten.size(); ++i) {
      if (!fortschritt(i, auftrag.seiten.size())) return Druckausgang::Abgebrochen;
      QImage bild(210, 210, QImage::Format_RGB32);
      QPainter maler(&bild);
      auftrag.malen(i, maler, 1);
    }
    return Ausgang();
  }
  Druckausgang TextDrucken(const QTextDocument&, const QString&) override { return Ausgang(); }

 private:
  Druckausgang Ausgang() { return static_cast<Druckausgang::Art>(zufall_(4)); }

  Zufall& zufall_;
};

class KeinBetrachter : public Betrachter {
 public:
  bool Oeffnen(const QString&) override { return false; }
};

class Ungeduld : public Fortschrittsanzeige {
 public:
  explicit Ungeduld(Zufall& zufall) : zufall_(zufall) {}
  Fortschritt Beginnen(const QString&) override {
    return [this](std::size_t, std::size_t) { return !zufall_.Einmal(20); };
  }

 private:
  Zufall& zufall_;
};

struct Buehne {
  Buehne(Zufall& zufall, Ordner& ordner)
      : boxen(zufall), dialoge(zufall, ordner), papier(zufall), ungeduld(zufall) {}

  Boxen boxen;
  Dialoge dialoge;
  KeineHilfe hilfe;
  Speicher speicher;
  KeinTon ton;
  Papier papier;
  KeinBetrachter betrachter;
  Ungeduld ungeduld;
  Plattform plattform{boxen, dialoge, hilfe, speicher, ton, papier, betrachter, ungeduld};
};

}  // namespace vesk::affe
