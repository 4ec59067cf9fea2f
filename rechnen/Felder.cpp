#include "rechnen/Felder.h"

namespace vesk {

Rechnung::Rechnung(Rechenauftrag was, char trenner)
    : auftrag(std::move(was)),
      ergebnis(Berechnen(auftrag.werte, auftrag.art)),
      texte(Ausgabetexte(ergebnis, trenner)) {
  // A fault may have kept the field of an undefined limit from being emptied.
  const Grenzwerte& g = ergebnis.grenzwerte;
  if (g.ohneHSM == 0) texte[Feld::AusgabeOhneHSM].reset();
  if (g.hsm306.Grenzwert == 0) texte[Feld::AusgabeHSM306].reset();
  if (g.hsmVDE.Grenzwert == 0) texte[Feld::AusgabeHSMvde].reset();
}

std::array<std::optional<float>, Zahlfelder.size()> Zahlwerte(const Rechnung& rechnung) {
  using Wert = std::optional<float>;
  // 0 stands for undefined or not reached; where no limit is defined there is no result either.
  const auto definiert = [](float wert) { return wert != 0 ? Wert(wert) : Wert(); };
  const auto begrenzt = [](float grenzwert, const Wert& wert) { return grenzwert != 0 ? wert : Wert(); };
  const Rechenwerte& w = rechnung.auftrag.werte;
  const Rechenergebnis& e = rechnung.ergebnis;
  const Grenzwerte& g = e.grenzwerte;
  const Wert ohneHSM = begrenzt(g.ohneHSM, e.ohneHSM);
  const Wert hsm306 = begrenzt(g.hsm306.Grenzwert, e.HSM306);
  const Wert hsmVDE = begrenzt(g.hsmVDE.Grenzwert, e.HSMvde);
  return {w.QRG,
          w.QRGGrenzwert,
          w.QRGHSM,
          w.QRGLambda,
          definiert(g.ohneHSM),
          definiert(g.hsm306.Grenzwert),
          definiert(g.hsmVDE.Grenzwert),
          definiert(g.hsm306.Spitzenfeld),
          definiert(g.hsm306.Uss),
          definiert(g.hsmVDE.Uss),
          Faktor(w),
          definiert(g.Lambda),
          definiert(g.Nahfeld),
          definiert(g.Fernfeld),
          e.EIRP,
          e.AntEinPWR,
          e.WEIRP,
          ohneHSM,
          hsm306,
          hsmVDE,
          ohneHSM,
          hsm306,
          hsmVDE};
}

std::string_view Text(const Rechnung& rechnung, const Textfeld& feld) {
  if (feld.eingabe != nullptr) return rechnung.auftrag.werte.*feld.eingabe;
  const std::optional<std::string>& text = rechnung.texte[feld.feld];
  return text ? std::string_view(*text) : std::string_view();
}

const std::string& Meldungstexte::Text(Hinweisart art, const Rechenergebnis& ergebnis) {
  auto stelle = AnzahlNahfeldtexte + static_cast<std::size_t>(art);
  if (art == Hinweisart::Nahfeld) {
    stelle = 2 * static_cast<std::size_t>(ergebnis.Nahfeldflags) + static_cast<std::size_t>(ergebnis.modus);
  }
  std::string& text = texte_.at(stelle);
  if (text.empty()) text = form_(HinweisZu(art, ergebnis).text);
  return text;
}

const std::vector<std::string_view>& Meldungstexte::operator()(const Rechenergebnis& ergebnis) {
  faellige_.clear();
  for (const Hinweisart art : FaelligeHinweise(ergebnis)) faellige_.emplace_back(Text(art, ergebnis));
  return faellige_;
}

std::size_t PlatzFuerTexte(const Rechenwerte& werte, const std::vector<std::string_view>& meldungen) {
  std::size_t bytes = 0;
  for (const Textfeld& feld : Eingabefelder) bytes += (werte.*feld.eingabe).size();
  for (const std::string_view meldung : meldungen) bytes += meldung.size();
  return bytes;
}

std::string Einzeilig(std::string_view meldung) {
  std::string zeile;
  for (const char z : OhneFrage(meldung)) {
    const bool luecke = z == ' ' || z == '\n';
    if (!luecke) zeile += z;
    if (luecke && !zeile.empty() && zeile.back() != ' ') zeile += ' ';
  }
  if (zeile.ends_with(' ')) zeile.pop_back();
  return zeile;
}

std::string_view OhneFrage(std::string_view meldung) {
  return meldung.substr(0, meldung.find("\n\nDiese Meldung in Zukunft wieder anzeigen?"));
}

}  // namespace vesk
