#include "ui/bands/Bandtexte.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr std::array<const char16_t*, Bandspalten> Koepfe = {
    u"Band",         u"Frequenz\n[MHz]", u"Gewinn\n[dBi]", u"Verluste\n[dB]", u"Grenzwert\n[V/m]",
    u"Nahfeld\n[m]", u"ohne HSM\n[m]",   u"HSM VDE\n[m]",  u"HSM 306\n[m]",   u"Hinweis"};

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

QString Kopftext(int spalte, Modus modus) {
  QString text = QString::fromUtf16(Koepfe.at(static_cast<std::size_t>(spalte)));
  const bool ergebnis = spalte >= ErstesErgebnis && spalte < Hinweisspalte;
  return ergebnis && modus == Modus::Leistung ? text.replace(u"[m]"_s, u"[W]"_s) : text;
}

std::array<QString, Bandspalten> Zellen(const Bandzeile& zeile) {
  const auto zahl = [&](Feld feld) {
    const std::string wert = zeile.texte[feld].value_or("");
    return wert.empty() ? u"–"_s : Text(wert);
  };
  return {QString::fromLatin1(zeile.band->name),
          Text(zeile.frequenz),
          Text(zeile.gewinn),
          Text(zeile.verluste),
          zahl(Feld::GrenzwertOhneHSM),
          zahl(Feld::Nahfeld),
          zahl(Feld::AusgabeOhneHSM),
          zahl(Feld::AusgabeHSMvde),
          zahl(Feld::AusgabeHSM306),
          Text(zeile.hinweis)};
}

QString Zeilentext(const Bandzeile& zeile) {
  QString text = QString::fromLatin1(zeile.band->name) + u", "_s + Text(zeile.frequenz) + u" MHz: "_s;
  const auto angabe = [&](Feld feld, const QString& name, const QString& einheit) {
    const std::string wert = zeile.texte[feld].value_or("");
    if (!wert.empty()) text += name + u' ' + Text(wert) + einheit;
  };
  angabe(Feld::GrenzwertOhneHSM, u"Grenzwert ohne HSM"_s, u" V/m"_s);
  angabe(Feld::GrenzwertHSMvde, u", HSM VDE"_s, u" V/m"_s);
  angabe(Feld::GrenzwertHSM306, u", HSM 306"_s, u" V/m"_s);
  angabe(Feld::Nahfeld, u". Nahfeld"_s, u" m. "_s);
  return text + Text(zeile.hinweis);
}

}  // namespace vesk
