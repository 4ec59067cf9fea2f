#include <gtest/gtest.h>

#include <QRegularExpression>
#include <cmath>
#include <limits>
#include <map>

#include "engine/Berechnung.h"
#include "tests/ui/Handbuchseiten.h"

using namespace Qt::StringLiterals;

/// Formulas of the manual stand in <span class="formel" data-groesse="...">. The range of frequencies (MHz)
/// is that of the table row that they stand in, of data-bereich, or 1 to 50.
namespace vesk {
namespace {

using Groessen = std::map<QString, double>;

/// A signal type that has a threshold at the frequency.
std::int16_t Typ(double f) {
  return f <= 100 ? GrenzwertAM : f <= 1100 ? GrenzwertTV : GrenzwertGSM;
}

/// What the manual's signs stand for at a frequency.
Groessen Bei(double f) {
  Rechenwerte werte{QString::number(f, 'g', 9).toStdString(), "100", "5", "1.5", "2", 0.4F, 1, Typ(f)};
  const Rechenergebnis e = Berechnen(werte, {Modus::Abstand, false});
  const Grenzwerte& g = e.grenzwerte;
  const auto uss = [f](std::int16_t typ) { return double{HSMvde(static_cast<float>(f), typ).Uss}; };
  const QStringList namen =
      u"f P G a w F π λ rnah rfern EIRP0 EIRP PAnt E E306 EVDE d d306 dVDE U306 Ê306 UVDE UAM UTV UGSM"_s
          .split(u' ');
  QList<double> zahlen;
  zahlen << f << 100 << 5 << 1.5 << 2 << 0.4 << Pi << g.Lambda << g.Nahfeld << g.Fernfeld
         << e.EIRP.value_or(0) << e.WEIRP.value_or(0) << e.AntEinPWR.value_or(0) << g.ohneHSM
         << werte.GrenzwertHSM306 << werte.GrenzwertHSMvde << e.ohneHSM.value_or(0) << e.HSM306.value_or(0)
         << e.HSMvde.value_or(0) << g.hsm306.Uss << g.hsm306.Spitzenfeld << g.hsmVDE.Uss << uss(GrenzwertAM)
         << uss(GrenzwertTV) << uss(GrenzwertGSM);
  Groessen groessen;
  for (qsizetype i = 0; i < namen.size(); ++i) groessen[namen[i]] = zahlen[i];
  return groessen;
}

/// The one of the peak field strengths, which the program sorts, that is nearest to `wert`.
double Spitzenfeld(double f, double wert) {
  const HSMvdeWerte vde = HSMvde(static_cast<float>(f), Typ(f));
  double naechstes = 0;
  for (const auto kandidat : vde.Kandidaten) {
    const double feld = static_cast<double>(kandidat) / 100000;
    if (std::abs(feld - wert) < std::abs(naechstes - wert)) naechstes = feld;
  }
  return naechstes;
}

/// Value of a formula as the manual writes it.
class Formel {
 public:
  Formel(QString html, const Groessen& groessen) : groessen_(groessen) {
    html.replace(u"<sup>"_s, u"^("_s).replace(u"</sup>"_s, u")"_s);
    rest_ = html.remove(QRegularExpression(u"<[^>]*>|\\s"_s));
  }
  double Wert() {
    double wert = Produkt();
    while (Weiter(u'−')) wert -= Produkt();
    return wert;
  }

 private:
  bool Weiter(QChar zeichen) {
    if (!rest_.startsWith(zeichen)) return false;
    rest_.remove(0, 1);
    return true;
  }
  double Produkt() {
    double wert = Potenz();
    while (!rest_.isEmpty() && rest_[0] != u')' && rest_[0] != u'−') {
      if (Weiter(u'/')) {
        wert /= Potenz();
      } else {
        Weiter(u'·');
        wert *= Potenz();
      }
    }
    return wert;
  }
  double Potenz() {
    const double basis = Atom();
    return Weiter(u'^') ? std::pow(basis, Atom()) : basis;
  }
  double Atom() {
    if (Weiter(u'√')) return std::sqrt(Atom());
    if (Weiter(u'(')) {
      const double wert = Wert();
      Weiter(u')');
      return wert;
    }
    static const QRegularExpression wort(u"^([\\d.]+|\\w+)"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    const QString atom = wort.match(rest_).captured();
    rest_.remove(0, std::max(atom.size(), qsizetype{1}));
    const auto groesse = groessen_.find(atom);
    bool zahl = false;
    const double wert = atom.toDouble(&zahl);
    if (groesse != groessen_.end()) return groesse->second;
    return zahl ? wert : std::numeric_limits<double>::quiet_NaN();
  }

  QString rest_;
  const Groessen& groessen_;
};

TEST(Hilfeformeln, RechnenWieDasProgramm) {
  const QRegularExpression muster(u"<span class=\"formel\" data-groesse=\"([^\"]*)\"([^>]*)>(.*?)</span>"_s);
  const QRegularExpression zahlen(u"([\\d.]+)(?:\\D+([\\d.]+))?"_s);
  const QRegularExpression zelle(u"^<tr><td>(.*?)</td>"_s);
  int anzahl = 0;
  const QMap<QString, QString> seiten = Handbuchseiten();
  for (auto seite = seiten.begin(); seite != seiten.end(); ++seite) {
    for (const QString& zeile : seite->split(u'\n')) {
      for (auto treffer = muster.globalMatch(zeile); treffer.hasNext(); ++anzahl) {
        const QRegularExpressionMatch fund = treffer.next();
        const auto bereich =
            zahlen.match(fund.captured(2) + u' ' + zelle.match(zeile).captured(1) + u" 1 bis 50"_s);
        double von = bereich.captured(1).toDouble() * 1.0005;
        double bis = bereich.captured(2).toDouble() * 0.9995;
        if (zeile.contains(u"&lt;"_s)) std::tie(von, bis) = std::pair(0.03, von);  // only an upper end
        for (const double f : {von, std::sqrt(von * bis), bis}) {
          Groessen groessen = Bei(f);
          const double wert = Formel(fund.captured(3), groessen).Wert();
          const bool feld = fund.captured(1) == u"Ê";
          EXPECT_NEAR(wert / (feld ? Spitzenfeld(f, wert) : groessen[fund.captured(1)]), 1, 2e-4)
              << seite.key().toStdString() << ", " << f << " MHz: " << fund.captured().toStdString();
        }
      }
    }
  }
  EXPECT_GT(anzahl, 50);
}

}  // namespace
}  // namespace vesk
