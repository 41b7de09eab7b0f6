#include <algorithm>
#include <cmath>
#include <limits>

#include "calc.h"

namespace polarkreis::cli {

namespace {

constexpr std::size_t kZitat_hoechstens = 40;

Json fehlerzeile(const std::string& text) {
  return {{"error", text}};
}

const Operation* finde(std::string_view name) {
  for (const auto& operationen :
       {Grundoperationen(), Stoffoperationen(), Kreisoperationen(), Logphoperationen(),
        Katalogoperationen(), Klimaoperationen(), Heizoperationen(), Soleoperationen(),
        Messoperationen(), Monitoroperationen(), Standoperationen()}) {
    const auto op = std::ranges::find(operationen, name, &Operation::name);
    if (op != operationen.end()) return &*op;
  }
  return nullptr;
}

// Calls `pruefe` for each name of a list until one gives a message.
template <class Pruefung>
std::string fuer_jeden(std::string_view namen, Pruefung pruefe) {
  while (!namen.empty()) {
    const std::size_t ende = std::min(namen.find(' '), namen.size());
    if (std::string fehler = pruefe(namen.substr(0, ende)); !fehler.empty()) return fehler;
    namen.remove_prefix(std::min(ende + 1, namen.size()));
  }
  return {};
}

std::string einwand(const Operation& op, const Argumente& argumente) {
  const auto form = [&](std::string_view name) -> std::string {
    const Json* wert = argumente.roh(name);
    if (!wert || ist_einfach(*wert)) return {};
    return std::string(op.name) + ": \"" + std::string(name) +
           "\" must be a number, a text or null";
  };
  const auto fehlend = [&](std::string_view name) -> std::string {
    if (argumente.da(name)) return form(name);
    return std::string(op.name) + ": the argument \"" + std::string(name) + "\" is missing";
  };
  std::string fehler = fuer_jeden(op.noetig, fehlend);
  return fehler.empty() ? fuer_jeden(op.kann, form) : fehler;
}

}  // namespace

Rechenstand::Rechenstand(Ablage& dateien, Captions& texte)
    : ablage(dateien),
      captions(texte),
      km(dateien),
      kreis(km),
      logph(kreis),
      klima(dateien, texte),
      jahresgang(dateien, texte, klima),
      wrg(dateien, texte),
      luft(dateien),
      solen(dateien, texte),
      kanaele(dateien),
      kern(messung, kanaele, kreis, solen, luft, texte) {}

bool ist_einfach(const Json& wert) {
  return wert.is_number() || wert.is_string() || wert.is_null();
}

double als_zahl(const Json& wert) {
  if (wert.is_number()) return wert.get<double>();
  return wert.is_string() ? Wert(wert.get_ref<const std::string&>()) : leer;
}

int als_ganz(const Json& wert) {
  const double ganz = Int(als_zahl(wert));
  if (!std::isfinite(ganz)) return 0;
  constexpr double hoechstens = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(ganz, -hoechstens, hoechstens));
}

std::string als_text(const Json& wert) {
  if (wert.is_string()) return wert.get<std::string>();
  return Zahl_Text(als_zahl(wert));
}

const Json* Argumente::roh(std::string_view name) const {
  const auto glied = zeile_.find(std::string(name));
  return glied == zeile_.end() ? nullptr : &*glied;
}

double Argumente::zahl(std::string_view name) const {
  const Json* wert = roh(name);
  return wert ? als_zahl(*wert) : leer;
}

int Argumente::ganz(std::string_view name) const {
  const Json* wert = roh(name);
  return wert ? als_ganz(*wert) : 0;
}

std::string Argumente::text(std::string_view name) const {
  const Json* wert = roh(name);
  return wert ? als_text(*wert) : std::string();
}

Antwort misslingt(std::string text) {
  return {nullptr, std::move(text)};
}

Rechner::Rechner(Ablage& ablage, Captions& captions) : ablage_(ablage), captions_(captions) {
  stand_.emplace(ablage_, captions_);
}

Json Rechner::antworte(std::string_view zeile) {
  const Json anfrage = Json::parse(zeile, nullptr, false);
  if (!anfrage.is_object())
    return fehlerzeile("the line is no JSON object, or holds a number that is too large");
  const Argumente argumente(anfrage);
  const Json* name = argumente.roh("op");
  if (!name || !name->is_string())
    return fehlerzeile("\"op\" is missing: it names the operation, as in {\"op\":\"get\"}");
  const auto& gesucht = name->get_ref<const std::string&>();
  const Operation* op = finde(gesucht);
  if (!op)
    return fehlerzeile("there is no operation \"" + gesucht.substr(0, kZitat_hoechstens) +
                       "\"; docs/scripting.md lists them");
  if (const std::string fehler = einwand(*op, argumente); !fehler.empty())
    return fehlerzeile(fehler);
  // One line is one call: an edited table takes effect at the next.
  const Schrittfolge eine_zeile(ablage_);
  const Antwort antwort = op->rechne(*stand_, argumente);
  if (!antwort.fehler.empty()) return fehlerzeile(gesucht + ": " + antwort.fehler);
  if (stand_->neu_beginnen) stand_.emplace(ablage_, captions_);
  return {{"result", antwort.wert}, {"state", stand_json(*stand_)}};
}

}  // namespace polarkreis::cli
