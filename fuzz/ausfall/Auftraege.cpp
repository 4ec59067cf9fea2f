#include "fuzz/ausfall/Auftraege.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSettings>

#include "app/Verzeichnisse.h"
#include "platform/QtPlattform.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

/// A plan with a picture beside it.
constexpr const char* Fremdplan =
    R"({"format":"vesk-lageplan","version":1,"bezugsname":"fremd","hintergrund":)"
    R"({"datei":"karte.png","bildpunkte":[[0,80],[100,80]],"abstand":100,"ort":[0,0]}})";

const QString AndererPlan = u"anderswo/andere.lageplan"_s;

void Anlegen(const QString& pfad, const QByteArray& bytes) {
  QFile datei(pfad);
  if (!datei.open(QFile::WriteOnly) || datei.write(bytes) != bytes.size()) std::abort();
}

QByteArray Inhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QFile::ReadOnly) ? datei.readAll() : QByteArray();
}

void Nichts(const QString&) {}

void Anderswo(const QString& verzeichnis) {
  QDir(verzeichnis).mkpath(u"anderswo"_s);
}

/// Another catalogue, to be taken over.
void Katalog(const QString& verzeichnis) {
  Anderswo(verzeichnis);
  Anlegen(verzeichnis + u"/anderswo/Kabel.txt"_s,
          Inhalt(verzeichnis + u"/Kabel.txt"_s).replace("RG213", "NEU"));
}

void AlteFassung(const QString& verzeichnis) {
  Anderswo(verzeichnis);
  const QByteArray alt = Inhalt(verzeichnis + u"/user.dat"_s).replace("\"251\"", "\"240\"");
  Anlegen(verzeichnis + u"/alt.dat"_s, alt);
  Anlegen(verzeichnis + u"/anderswo/fremd.dat"_s, alt);
}

void Karte(const QString& verzeichnis) {
  Anderswo(verzeichnis);
  QImage karte(100, 80, QImage::Format_RGB32);
  karte.fill(Qt::white);
  if (!karte.save(verzeichnis + u"/anderswo/karte.png"_s)) std::abort();
}

/// The store of the user, in the directory, with a value in it.
void Merkspeicher(const QString& verzeichnis) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, verzeichnis + u"/speicher"_s);
  QtBenutzerspeicher().Schreiben(u"Options"_s, u"Wert"_s, u"alt"_s);
}

void Erststart(Lauf& lauf, const QString& verzeichnis) {
  const std::string hindernis =
      MitgelieferteKopieren({verzeichnis + u"/erst"_s, QStringLiteral(VESK_DATEN)}, lauf.speicher);
  if (!hindernis.empty()) lauf.boxen.texte.push_back(hindernis);
}

/// What a crash has left.
void Rettungskopie(const QString& verzeichnis) {
  Lauf lauf(verzeichnis);
  lauf.programm.Starten();
  lauf.Tippen(Getippt);
  lauf.programm.RettungSichern();
}

bool Name(const Station& s) {
  return s.benutzer.Name == Getippt && s.lageplan.bezugsname == Getippt;
}

bool Winkel(const Station& s) {
  return s.winkel.antenne == Getippt;
}

bool Alles(const Station& s) {
  return Name(s) && Winkel(s);
}

template <Befehl befehl>
void Befehlen(Lauf& lauf, const QString&) {
  lauf.programm.Befehlen(befehl);
}

/// The dialog names `datei`.
template <Befehl befehl>
std::function<void(Lauf&, const QString&)> Nach(const QString& datei) {
  return [=](Lauf& lauf, const QString& verzeichnis) {
    lauf.dialoge.wahl = verzeichnis + u'/' + datei;
    lauf.programm.Befehlen(befehl);
  };
}

std::function<void(Lauf&, const QString&)> Oeffnen(const QString& datei) {
  return
      [=](Lauf& lauf, const QString& verzeichnis) { lauf.programm.DateiOeffnen(verzeichnis + u'/' + datei); };
}

}  // namespace

std::vector<Auftrag> Auftraege() {
  using enum Befehl;
  const auto user = u"user.dat"_s;
  const auto plan = u"user.lageplan"_s;
  const auto andere = u"anderswo/andere.dat"_s;
  const auto ang = u"anderswo/turm.ang"_s;
  const auto pdf = u"anderswo/aus.pdf"_s;
  return {
      {"Speichern", {user, plan}, Nichts, Befehlen<DateiSpeichern>, Name},
      {"Speichern unter", {user, andere, AndererPlan}, Anderswo, Nach<DateiSpeichernUnter>(andere), Name},
      {"Speichern unter, Datei vorhanden",
       {user, plan, andere, AndererPlan},
       [=](const QString& v) {
         Anderswo(v);
         QFile::copy(v + u'/' + user, v + u'/' + andere);
         QFile::copy(v + u'/' + plan, v + u'/' + AndererPlan);
       },
       Nach<DateiSpeichernUnter>(andere),
       Name},
      {"Winkel speichern", {u"Winkel.ang"_s}, Nichts, Befehlen<WinkelSpeichern>, Winkel},
      {"Winkel speichern, Datei vorhanden",
       {u"Winkel.ang"_s},
       [](const QString& v) { Anlegen(v + u"/Winkel.ang"_s, "[Turm]\r\n12\r\n144\r\n0\r\n1\r\n"); },
       Befehlen<WinkelSpeichern>,
       Winkel,
       true,
       false,
       true},
      {"Winkel speichern unter", {ang}, Anderswo, Nach<WinkelSpeichernUnter>(ang), Winkel},
      {"Katalog", {u"Kabel.txt"_s}, Katalog, Oeffnen(u"anderswo/Kabel.txt"_s), Name, true, false, true},
      {"Alte Fassung laden",
       {user, u"alt.dat"_s},
       AlteFassung,
       Nach<DateiLaden>(u"alt.dat"_s),
       Name,
       true,
       false,
       true},
      {"Datei von anderswo",
       {user, plan, u"fremd.dat"_s},
       AlteFassung,
       Oeffnen(u"anderswo/fremd.dat"_s),
       Name},
      {"Datei mit Lageplan von anderswo",
       {user, plan, u"fremd.dat"_s, u"fremd.lageplan"_s},
       [](const QString& v) {
         AlteFassung(v);
         Karte(v);
         Anlegen(v + u"/anderswo/fremd.lageplan"_s, Fremdplan);
       },
       Oeffnen(u"anderswo/fremd.dat"_s),
       Name,
       true,
       false,
       false,
       [](const Station& s) { return s.lageplan.bezugsname; }},
      {"Winkel laden",
       {ang},
       [=](const QString& v) {
         Anderswo(v);
         Anlegen(v + u'/' + ang, "[Turm]\r\n12\r\n144\r\n0\r\n1\r\n");
       },
       Nach<WinkelLaden>(ang),
       Name,
       true,
       false,
       false,
       [](const Station& s) { return s.winkel.antenne; }},
      {"GeoJSON",
       {plan},
       [](const QString& v) {
         Anderswo(v);
         Anlegen(v + u"/anderswo/haus.geojson"_s, Haus);
       },
       Nach<GeojsonEinlesen>(u"anderswo/haus.geojson"_s),
       Name,
       true,
       false,
       false,
       [](const Station& s) { return std::to_string(s.lageplan.objekte.size()); }},
      {"Hintergrund",
       {plan},
       Karte,
       Nach<HintergrundWaehlen>(u"anderswo/karte.png"_s),
       Name,
       true,
       false,
       false,
       [](const Station& s) { return s.lageplan.hintergrund ? s.lageplan.hintergrund->datei : ""; }},
      {"Rettungskopie",
       {user},
       Nichts,
       [](Lauf& lauf, const QString&) { lauf.programm.RettungSichern(); },
       Alles,
       false},
      {"Neuer Start",
       {user},
       Rettungskopie,
       [](Lauf& lauf, const QString&) { lauf.programm.Starten(); },
       Alles,
       false,
       true},
      {"Beenden", {user, plan}, Nichts, Befehlen<Beenden>, Name},
      {"Ende verlangt",
       {user, plan},
       Nichts,
       [](Lauf& lauf, const QString&) { lauf.programm.EndeVerlangt(); },
       Name},
      {"Erster Start",
       {u"erst/Kabel.txt"_s, u"erst/Antennen.txt"_s},
       [](const QString& v) { QDir(v).mkpath(u"erst"_s); },
       Erststart,
       Name},
      {"Merkspeicher",
       {u"speicher/Vesk/Vesk.conf"_s},
       Merkspeicher,
       [](Lauf&, const QString&) { QtBenutzerspeicher().Schreiben(u"Options"_s, u"Wert"_s, u"neu"_s); },
       Name,
       false},
      {"PDF", {pdf}, Anderswo, Nach<PdfSpeichern>(pdf), Name},
      {"PDF, Datei vorhanden",
       {pdf},
       [=](const QString& v) {
         Anderswo(v);
         Anlegen(v + u'/' + pdf, "%PDF-alt\n%%EOF\n");
       },
       Nach<PdfSpeichern>(pdf),
       Name},
  };
}

}  // namespace vesk::ausfall
