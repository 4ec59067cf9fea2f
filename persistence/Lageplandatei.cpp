#include "persistence/Lageplandatei.h"

#include <nlohmann/json.hpp>

#include "persistence/Lageplanfelder.h"
#include "persistence/Pfade.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

using namespace planfelder;
using Json = nlohmann::json;

/// What another version has written; nothing understood stands in it.
Json Rest(const std::string& rest) {
  Json json = Json::parse(rest, nullptr, false);
  return json.is_object() ? json : Json::object();
}

std::string Text(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

template <typename Wert>
Json Bild(const Wert& wert) {
  return wert;
}

Json Bild(const Punkt& punkt) {
  return Json::array({punkt.x, punkt.y});
}

Json Bild(const std::array<Punkt, 2>& punkte) {
  return Json::array({Bild(punkte[0]), Bild(punkte[1])});
}

Json Bild(const Umriss& umriss) {
  Json bild = Json::array();
  for (const Punkt& punkt : umriss) bild.push_back(Bild(punkt));
  return bild;
}

Json Bild(Planart art) {
  return Artzeile(art).kennung;
}

Json Bild(Nutzung nutzung) {
  return Nutzungskennungen.at(static_cast<std::size_t>(nutzung));
}

Json Bild(Winkelebene ebene) {
  return Ebenenkennungen.at(static_cast<std::size_t>(ebene));
}

Json Bild(Planformat format) {
  return Formatkennungen.at(static_cast<std::size_t>(format));
}

Json Bild(const std::bitset<AnzahlSpalten>& spalten) {
  return Spaltenbuchstaben(spalten);
}

Json Bild(const std::optional<Geopunkt>& geo) {
  return {{"laenge", geo->laenge}, {"breite", geo->breite}};
}

Json Bild(const std::optional<Hintergrund>& hintergrund);

/// Puts a field where it differs from its default. Where it does not, what was not understood under its name
/// stays.
template <typename Objekt>
auto Schreiber(Json& ziel, const Objekt& objekt) {
  return [&](const char* name, auto feld) {
    if (objekt.*feld != Objekt{}.*feld) ziel[name] = Bild(objekt.*feld);
  };
}

Json Bild(const std::optional<Hintergrund>& hintergrund) {
  Json bild = Rest(hintergrund->rest);
  Hintergrundfelder(Schreiber(bild, *hintergrund));
  return bild;
}

Json Bild(const Planobjekt& objekt) {
  Json bild = Rest(objekt.rest);
  bild["art"] = Bild(objekt.art);
  bild["punkte"] = Bild(objekt.punkte);
  Objektfelder(Schreiber(bild, objekt));
  return bild;
}

}  // namespace

fs::path Lageplanpfad(const fs::path& userdatei) {
  // "user.txt" is another file than "user.dat"; so are their plans.
  const bool dat = HatEndung(userdatei, ".dat");
  fs::path pfad = dat ? userdatei.parent_path() / userdatei.stem() : userdatei;
  return pfad += ".lageplan";
}

std::string LageplanBytes(const Lageplan& plan) {
  Json json = Rest(plan.rest);
  Planfelder(Schreiber(json, plan));
  Json objekte = Json::array();
  for (const Planobjekt& objekt : plan.objekte) objekte.push_back(Bild(objekt));
  for (const Json& fremdes : json.value("objekte", Json::array())) objekte.push_back(fremdes);
  const Json fassung = json.value("version", Json(Fassung));
  json.erase("objekte");
  json.erase("version");
  // A line for each field and each object: whoever compares two plans sees what has changed.
  std::string text = "{\n\"format\": \"" + std::string(Kennung) + "\",\n\"version\": " + Text(fassung);
  for (const auto& [name, wert] : json.items()) text += ",\n" + Text(name) + ": " + Text(wert);
  text += ",\n\"objekte\": [";
  for (std::size_t i = 0; i < objekte.size(); ++i) text += (i == 0 ? "\n" : ",\n") + Text(objekte[i]);
  return text + "\n]\n}\n";
}

}  // namespace vesk
