#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <nlohmann/json.hpp>
#include <utility>

#include "persistence/Jsontext.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Umrisse.h"
#include "station/Text.h"

namespace vesk {

namespace {

using Json = nlohmann::json;

/// Texts and numbers that a file tells of an object, by their names in lower case.
using Angaben = std::map<std::string, std::string, std::less<>>;

// What the registries, and programs that convert their data, call things.
constexpr std::array Gebaeudeworte = {"gebaeude", "gebäude", "building", "bauwerk", "bauteil"};
constexpr std::array Flurstuecksworte = {"flurst", "parcel"};
constexpr std::array Artangaben = {"layer", "objektart", "objart", "featuretype", "thema", "art", "type"};
constexpr std::array Hoehenangaben = {"hoehe",  "höhe",           "gebaeudehoehe",
                                      "height", "measuredheight", "building:height"};
struct Namensangabe {
  const char* name;
  const char* nenner;  ///< of a number in two parts
  const char* davor;
};
constexpr std::array Namensangaben = {
    Namensangabe{"name", nullptr, ""},
    Namensangabe{"bezeichnung", nullptr, ""},
    Namensangabe{"flurstueck", nullptr, "Flurstück "},
    Namensangabe{"flurstuecksnummer", nullptr, "Flurstück "},
    Namensangabe{"flurstnr", nullptr, "Flurstück "},
    Namensangabe{"flstnrzae", "flstnrnen", "Flurstück "},
    Namensangabe{"zaehler", "nenner", "Flurstück "},
    Namensangabe{"flstkennz", nullptr, "Flurstück "},
    Namensangabe{"flurstueckskennzeichen", nullptr, "Flurstück "},
    Namensangabe{"nationalcadastralreference", nullptr, "Flurstück "},
    Namensangabe{"gml_id", nullptr, ""},
};

const Json& Feld(const Json& json, const char* name) {
  static const Json nichts;
  if (!json.is_object()) return nichts;
  const auto stelle = json.find(name);
  return stelle == json.end() ? nichts : *stelle;
}

/// On one line.
std::string Text(const Json& json) {
  std::string text = json.is_string() ? json.get<std::string>() : json.is_number() ? json.dump() : "";
  std::replace_if(
      text.begin(), text.end(), [](char z) { return z >= 0 && z < ' '; }, ' ');
  return std::string(OhneBlanks(text));
}

std::string Angabe(const Angaben& angaben, const char* name) {
  const auto stelle = name == nullptr ? angaben.end() : angaben.find(std::string_view(name));
  return stelle == angaben.end() ? "" : stelle->second;
}

Angaben Eigenschaften(const Json& json) {
  Angaben angaben;
  if (!json.is_object()) return angaben;
  for (const auto& [name, wert] : json.items()) angaben[Kleinbuchstaben(name)] = Text(wert);
  return angaben;
}

std::optional<Planart> Art(const std::string& text) {
  const auto vorhanden = [&](const char* wort) { return text.find(wort) != std::string::npos; };
  if (std::any_of(Gebaeudeworte.begin(), Gebaeudeworte.end(), vorhanden)) return Planart::Gebaeude;
  if (std::any_of(Flurstuecksworte.begin(), Flurstuecksworte.end(), vorhanden)) return Planart::Nachbar;
  return std::nullopt;
}

/// What says it outright counts more than which other fields there are.
Planart Art(const Angaben& angaben, const std::string& schicht) {
  for (const char* name : Artangaben) {
    if (const auto art = Art(Kleinbuchstaben(Angabe(angaben, name)))) return *art;
  }
  if (const auto art = Art(schicht)) return *art;
  for (const auto& [name, wert] : angaben) {
    if (const auto art = Art(name)) return *art;
  }
  const auto da = [&](const char* name) { return angaben.contains(std::string_view(name)); };
  return std::any_of(Hoehenangaben.begin(), Hoehenangaben.end(), da) ? Planart::Gebaeude : Planart::Nachbar;
}

std::string Name(const Angaben& angaben) {
  for (const Namensangabe& angabe : Namensangaben) {
    std::string name = Angabe(angaben, angabe.name);
    if (name.empty()) continue;
    const std::string nenner = Angabe(angaben, angabe.nenner);
    if (!nenner.empty()) name += "/" + nenner;
    return Anfang((Art(Kleinbuchstaben(name)) ? "" : angabe.davor) + name, plangrenzen::Textlaenge - 1);
  }
  return {};
}

/// Metres; 0: not told.
double Hoehe(const Angaben& angaben) {
  for (const char* name : Hoehenangaben) {
    std::string text = Angabe(angaben, name);
    std::replace(text.begin(), text.end(), ',', '.');
    double hoehe = 0;
    std::from_chars(text.data(), text.data() + text.size(), hoehe);
    if (hoehe > 0 && hoehe <= plangrenzen::Hoehe) return hoehe;
  }
  return 0;
}

/// One pass over a file.
struct Lesegang {
  std::string schicht;
  std::vector<Planobjekt> umrisse;
  int ohneFlaeche = 0;  ///< points, lines
  int unlesbar = 0;
  int mitLoechern = 0;
  int ohneHoehe = 0;
};

bool RingLesen(const Json& json, Umriss& umriss) {
  for (const Json& ort : json) {
    if (!ort.is_array() || ort.size() < 2 || !ort[0].is_number() || !ort[1].is_number()) return false;
    umriss.push_back({ort[0].get<double>(), ort[1].get<double>()});
  }
  if (umriss.size() > 1 && umriss.front() == umriss.back()) umriss.pop_back();
  return !umriss.empty();
}

/// `ringe`: the outer one, then those of the holes.
void FlaecheLesen(const Json& ringe, const Planobjekt& vorlage, Lesegang& gang) {
  Planobjekt objekt = vorlage;
  if (!ringe.is_array() || ringe.empty() || !ringe[0].is_array() || !RingLesen(ringe[0], objekt.punkte)) {
    ++gang.unlesbar;
    return;
  }
  if (ringe.size() > 1) ++gang.mitLoechern;
  if (objekt.art == Planart::Gebaeude && objekt.hoehe == 0) ++gang.ohneHoehe;
  gang.umrisse.push_back(std::move(objekt));
}

void GeometrieLesen(const Json& geometrie, const Planobjekt& vorlage, Lesegang& gang) {
  const std::string art = Text(Feld(geometrie, "type"));
  const Json& koordinaten = Feld(geometrie, "coordinates");
  const Json& teile = Feld(geometrie, "geometries");
  if (art == "Polygon") {
    FlaecheLesen(koordinaten, vorlage, gang);
  } else if (art == "MultiPolygon" && koordinaten.is_array()) {
    for (const Json& flaeche : koordinaten) FlaecheLesen(flaeche, vorlage, gang);
  } else if (art == "GeometryCollection" && teile.is_array()) {
    for (const Json& teil : teile) GeometrieLesen(teil, vorlage, gang);
  } else {
    ++(art == "Point" || art.ends_with("String") || art == "MultiPoint" || geometrie.is_null()
           ? gang.ohneFlaeche
           : gang.unlesbar);
  }
}

void ObjektLesen(const Json& geometrie, const Json& eigenschaften, Lesegang& gang) {
  const Angaben angaben = Eigenschaften(eigenschaften);
  Planobjekt vorlage;
  vorlage.art = Art(angaben, gang.schicht);
  vorlage.name = Name(angaben);
  if (vorlage.art == Planart::Gebaeude) {
    vorlage.hoehe = Hoehe(angaben);
    // Whose it is, no registry tells.
    vorlage.nutzung = Nutzung::Andere;
  }
  GeometrieLesen(geometrie, vorlage, gang);
}

/// Number at the end of "urn:ogc:def:crs:EPSG::25832"; 0: the file names none.
int System(const Json& datei) {
  const Json& crs = Feld(Feld(datei, "crs"), "properties");
  std::string name = Text(Feld(crs, "name")) + Text(Feld(crs, "code"));
  name.erase(0, name.find_last_not_of("0123456789") + 1);
  int nummer = 0;
  std::from_chars(name.data(), name.data() + name.size(), nummer);
  return nummer;
}

std::string Hinweistext(const Lesegang& gang) {
  std::string text;
  const auto zeile = [&](int anzahl, const char* was) {
    if (anzahl > 0) text += was + std::string(": ") + std::to_string(anzahl) + ".\n";
  };
  zeile(gang.ohneFlaeche, "Punkte und Linien sind ausgelassen");
  zeile(gang.unlesbar, "Nicht zu lesen waren Objekte");
  zeile(gang.mitLoechern,
        "Umrisse mit Löchern, zum Beispiel Innenhöfen, von denen nur der äußere Rand gezeichnet ist");
  zeile(gang.ohneHoehe, "Gebäude ohne Höhe, die Sie noch eintragen müssen");
  return text;
}

Geojsonlesung Gescheitert(std::string fehler) {
  Geojsonlesung lesung;
  lesung.fehler = std::move(fehler);
  return lesung;
}

Geojsonlesung DateiLesen(const Json& datei, const Lageplan& plan) {
  Lesegang gang;
  const std::string art = Text(Feld(datei, "type"));
  const Json& objekte = Feld(datei, "features");
  gang.schicht = Kleinbuchstaben(Text(Feld(datei, "name")));
  if (art == "FeatureCollection" && objekte.is_array()) {
    for (const Json& objekt : objekte)
      ObjektLesen(Feld(objekt, "geometry"), Feld(objekt, "properties"), gang);
  } else if (art == "Feature") {
    ObjektLesen(Feld(datei, "geometry"), Feld(datei, "properties"), gang);
  } else if (art == "Polygon" || art == "MultiPolygon" || art == "GeometryCollection") {
    ObjektLesen(datei, {}, gang);
  } else {
    return Gescheitert("Sie ist kein GeoJSON.");
  }
  if (gang.umrisse.empty()) return Gescheitert("Sie enthält keine Flächen.\n" + Hinweistext(gang));
  Geojsonlesung lesung = Einpassen(std::move(gang.umrisse), System(datei), plan);
  lesung.hinweis += Hinweistext(gang);
  return lesung;
}

}  // namespace

Geojsonlesung GeojsonLesen(std::string_view bytes, const Lageplan& plan) {
  if (ZuTief(bytes)) return Gescheitert("Sie ist zu tief verschachtelt.");
  try {
    return DateiLesen(Json::parse(bytes.begin(), bytes.end()), plan);
  } catch (const Json::parse_error& fehler) {
    return Gescheitert(Beschaedigt(bytes, fehler.byte));
  } catch (const Json::out_of_range&) {
    return Gescheitert("Eine Zahl darin ist zu groß.");
  }
}

}  // namespace vesk
