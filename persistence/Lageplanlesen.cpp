#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>
#include <vector>

#include "persistence/Dateigrenzen.h"
#include "persistence/Jsontext.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Lageplanfelder.h"
#include "station/Text.h"

namespace vesk {

namespace {

using namespace planfelder;
using Json = nlohmann::json;

bool Nehmen(const Json& json, bool& ziel) {
  if (json.is_boolean()) ziel = json.get<bool>();
  return json.is_boolean();
}

bool Nehmen(const Json& json, double& ziel) {
  if (json.is_number()) ziel = json.get<double>();
  return json.is_number();
}

/// The scale.
bool Nehmen(const Json& json, int& ziel) {
  const auto* stelle = std::find(Planmassstaebe.begin(), Planmassstaebe.end(), json);
  if (stelle == Planmassstaebe.end()) return false;
  ziel = *stelle;
  return true;
}

bool Nehmen(const Json& json, std::string& ziel) {
  if (json.is_string()) ziel = json.get<std::string>();
  return json.is_string();
}

bool Nehmen(const Json& json, Punkt& ziel) {
  return json.is_array() && json.size() == 2 && Nehmen(json[0], ziel.x) && Nehmen(json[1], ziel.y);
}

bool Nehmen(const Json& json, std::array<Punkt, 2>& ziel) {
  return json.is_array() && json.size() == 2 && Nehmen(json[0], ziel[0]) && Nehmen(json[1], ziel[1]);
}

bool Nehmen(const Json& json, Umriss& ziel) {
  if (!json.is_array()) return false;
  ziel.resize(json.size());
  return std::equal(json.begin(), json.end(), ziel.begin(),
                    [](const Json& punkt, Punkt& ort) { return Nehmen(punkt, ort); });
}

template <typename Wert, std::size_t anzahl>
bool Nehmen(const Json& json, Wert& ziel, const std::array<const char*, anzahl>& kennungen) {
  const auto* stelle = std::find(kennungen.begin(), kennungen.end(), json);
  if (stelle == kennungen.end()) return false;
  ziel = static_cast<Wert>(stelle - kennungen.begin());
  return true;
}

bool Nehmen(const Json& json, Nutzung& ziel) {
  return Nehmen(json, ziel, Nutzungskennungen);
}

bool Nehmen(const Json& json, Winkelebene& ziel) {
  return Nehmen(json, ziel, Ebenenkennungen);
}

bool Nehmen(const Json& json, Planformat& ziel) {
  return Nehmen(json, ziel, Formatkennungen);
}

bool Nehmen(const Json& json, Planart& ziel) {
  const auto* stelle = std::find_if(Planarten.begin(), Planarten.end(),
                                    [&](const Planartzeile& zeile) { return json == zeile.kennung; });
  if (stelle == Planarten.end()) return false;
  ziel = static_cast<Planart>(stelle - Planarten.begin());
  return true;
}

/// Whatever stands twice or in another order would be written otherwise.
bool Nehmen(const Json& json, std::bitset<AnzahlSpalten>& ziel) {
  if (!json.is_string()) return false;
  for (const char buchstabe : json.get_ref<const std::string&>()) {
    if (buchstabe >= 'A' && buchstabe < 'A' + AnzahlSpalten)
      ziel.set(static_cast<std::size_t>(buchstabe - 'A'));
  }
  return Spaltenbuchstaben(ziel) == json;
}

bool Nehmen(const Json& json, std::optional<Geopunkt>& ziel) {
  Geopunkt geo;
  if (!json.is_object() || json.size() != 2 || !Nehmen(json.value("laenge", Json()), geo.laenge) ||
      !Nehmen(json.value("breite", Json()), geo.breite)) {
    return false;
  }
  if (std::abs(geo.laenge) > 180 || std::abs(geo.breite) > 90) return false;
  ziel = geo;
  return true;
}

bool Nehmen(const Json& json, std::optional<Hintergrund>& ziel);

/// Takes the fields that are understood out of `json`; what remains is the rest. `unklar` gets the names of
/// those that are not, though they should be.
template <typename Objekt>
auto Leser(Json& json, Objekt& objekt, std::vector<std::string>& unklar) {
  return [&](const char* name, auto feld) {
    const auto stelle = json.find(name);
    if (stelle == json.end()) return;
    auto wert = objekt.*feld;
    if (Nehmen(*stelle, wert)) {
      objekt.*feld = std::move(wert);
      json.erase(stelle);
    } else {
      unklar.emplace_back(name);
    }
  };
}

std::string AlsRest(const Json& json) {
  return json.empty() ? std::string() : json.dump();
}

bool Nehmen(const Json& json, std::optional<Hintergrund>& ziel) {
  if (!json.is_object()) return false;
  Json rest = json;
  std::vector<std::string> unklar;
  Hintergrund hintergrund;
  Hintergrundfelder(Leser(rest, hintergrund, unklar));
  if (!unklar.empty()) return false;
  hintergrund.rest = AlsRest(rest);
  ziel = std::move(hintergrund);
  return true;
}

struct Lesegang {
  Lageplan plan;
  Json fremde = Json::array();      ///< objects that are not understood
  std::vector<std::string> unklar;  ///< fields that are not
};

void ObjektLesen(const Json& json, Lesegang& gang) {
  Json rest = json;
  Planobjekt objekt;
  std::vector<std::string> unklar;
  if (json.is_object()) {
    const auto leser = Leser(rest, objekt, unklar);
    leser("art", &Planobjekt::art);
    leser("punkte", &Planobjekt::punkte);
    Objektfelder(leser);
  }
  const bool da = json.is_object() && json.contains("art") && json.contains("punkte");
  const auto fehlt = [&](const char* name) { return rest.contains(name); };
  if (!da || std::any_of(Wesentlich.begin(), Wesentlich.end(), fehlt)) {
    gang.fremde.push_back(json);
    return;
  }
  objekt.rest = AlsRest(rest);
  gang.plan.objekte.push_back(std::move(objekt));
  gang.unklar.insert(gang.unklar.end(), unklar.begin(), unklar.end());
}

std::string Hinweistext(const Lesegang& gang, bool neuer) {
  std::string text;
  if (neuer) text += "Der Lageplan stammt von einer neueren Fassung von Vesk.\n";
  if (const std::size_t anzahl = gang.fremde.size(); anzahl > 0) {
    text += (anzahl == 1 ? "Ein Objekt" : std::to_string(anzahl) + " Objekte") +
            " des Lageplans versteht diese Fassung nicht und zeichnet sie nicht.\n";
  }
  if (!gang.unklar.empty()) {
    std::set<std::string> namen(gang.unklar.begin(), gang.unklar.end());
    text += "Diese Angaben des Lageplans sind nicht zu verstehen und gelten nicht:";
    for (const std::string& name : namen) text += (name == *namen.begin() ? " " : ", ") + name;
    text += ".\n";
  }
  return text.empty() ? text : text + "In der Datei bleibt alles erhalten.";
}

/// Which field stands twice in one object; of two nobody could say which one counts.
class Doppelte : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }
  bool start_array(std::size_t) override { return true; }
  bool end_array() override { return true; }
  bool start_object(std::size_t) override {
    offen_.emplace_back();
    return true;
  }
  bool end_object() override {
    offen_.pop_back();
    return true;
  }
  bool key(string_t& name) override {
    if (!offen_.back().insert(name).second) gefunden = name;
    return !gefunden;
  }
  /// Told by the reading itself.
  bool parse_error(std::size_t, const std::string&, const Json::exception&) override { return false; }

  std::optional<std::string> gefunden;

 private:
  std::vector<std::set<std::string>> offen_;
};

Lageplanlesung Gescheitert(std::string fehler) {
  return {{}, std::move(fehler), {}};
}

Lageplanlesung PlanLesen(Json& json) {
  const Json fassung = json.value("version", Json());
  Json objekte = json.value("objekte", Json::array());
  if (json.value("format", Json()) != Kennung) return Gescheitert("Sie ist kein Lageplan von Vesk.");
  if (!fassung.is_number_integer() || fassung < Fassung || !objekte.is_array()) {
    return Gescheitert("Der Lageplan darin ist beschädigt.");
  }
  const bool neuer = fassung > Fassung;
  json.erase("format");
  json.erase("objekte");
  if (!neuer) json.erase("version");
  Lesegang gang;
  Planfelder(Leser(json, gang.plan, gang.unklar));
  for (const Json& objekt : objekte) ObjektLesen(objekt, gang);
  if (!gang.fremde.empty()) json["objekte"] = gang.fremde;
  gang.plan.rest = AlsRest(json);
  if (auto satz = Planueberschreitung(gang.plan)) return Gescheitert(std::move(*satz));
  std::string hinweis = Hinweistext(gang, neuer);
  return {std::move(gang.plan), {}, std::move(hinweis)};
}

}  // namespace

Lageplanlesung LageplanLesen(std::string_view bytes) {
  if (bytes.empty()) return Gescheitert("Sie ist leer.");
  if (ZuTief(bytes)) return Gescheitert("Sie ist zu tief verschachtelt.");
  Doppelte doppelte;
  Json::sax_parse(bytes.begin(), bytes.end(), &doppelte);
  if (doppelte.gefunden) {
    const std::string name = Anfang(*doppelte.gefunden, grenzen::Meldungswort);
    return Gescheitert("Die Angabe „" + name + "“ steht darin zweimal.");
  }
  try {
    Json json = Json::parse(bytes.begin(), bytes.end());
    if (!json.is_object()) return Gescheitert("Sie ist kein Lageplan von Vesk.");
    return PlanLesen(json);
  } catch (const Json::parse_error& fehler) {
    return Gescheitert(Beschaedigt(bytes, fehler.byte));
  } catch (const Json::out_of_range&) {
    return Gescheitert("Eine Zahl darin ist zu groß.");
  }
}

}  // namespace vesk
