#include "simulation/uebersetzen.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "shell/items.h"
#include "shell/text.h"
#include "simulation/auswahltexte.h"

namespace polarkreis {

namespace {

constexpr std::string_view kArbeitsprojekt = "Temp_Sim.dat";
constexpr std::string_view kPuffer = "Puffer.dat";

/// From one language into another.
struct Richtung {
  const Captions& captions;
  std::string_view von, nach;
};

std::string uebersetzt(const Richtung& richtung, std::span<const Auswahltext> texte,
                       std::string_view text) {
  for (const Stamm stamm :
       {Stamm::JMapCap, Stamm::heatcap, Stamm::PEDcap, Stamm::Caption, Stamm::SoleCapt}) {
    std::vector<int> zeilen;
    for (const Auswahltext& moeglich : texte)
      if (moeglich.zeile && moeglich.stamm == stamm) zeilen.push_back(moeglich.zeile);
    if (zeilen.empty()) continue;
    std::string neu =
        richtung.captions.Caption_Uebersetzen(stamm, zeilen, richtung.von, richtung.nach, text);
    // An untranslated line must not wipe out what the user chose.
    if (neu != text && !neu.empty()) return neu;
  }
  return std::string(text);
}

/// Both sides of the separator, each with its own lines, at the first separator where one of them
/// is known: a caption may hold the separator itself.
std::optional<std::string> zweiteilig(const Richtung& richtung, std::string_view text,
                                      std::string_view trenner, std::span<const Auswahltext> links,
                                      std::span<const Auswahltext> rechts) {
  for (std::size_t ort = text.find(trenner); ort != std::string_view::npos;
       ort = text.find(trenner, ort + 1)) {
    const std::string_view vorn = text.substr(0, ort), hinten = text.substr(ort + trenner.size());
    std::string neu_vorn = uebersetzt(richtung, links, vorn);
    const std::string neu_hinten = uebersetzt(richtung, rechts, hinten);
    if (neu_vorn != vorn || neu_hinten != hinten)
      return neu_vorn.append(trenner).append(neu_hinten);
  }
  return std::nullopt;
}

std::string Anlagenart(const Richtung& richtung, std::string_view text) {
  return zweiteilig(richtung, text, kAnlagenart_Trenner, Anlagenart_Stufen(), Anlagenart_Merkmale())
      .value_or(std::string(text));
}

std::string Verfluessigertyp(const Richtung& richtung, std::string_view text) {
  static constexpr std::array<Auswahltext, 3> kGanz{PedCap::Luftgekuehlt, PedCap::Wassergekuehlt,
                                                    SoleCapt::Trockenkuehler};
  static constexpr std::array<Auswahltext, 1> kTrocken{SoleCapt::Trockenkuehler};
  static constexpr std::array<Auswahltext, 1> kLuft{PedCap::Luftgekuehlt};

  std::string_view rumpf = text;
  const bool adiabat = rumpf.ends_with(kAdiabat);
  if (adiabat) rumpf.remove_suffix(kAdiabat.size());
  std::string neu = uebersetzt(richtung, kGanz, rumpf);
  if (neu == rumpf)
    neu = zweiteilig(richtung, rumpf, " ", kTrocken, kLuft).value_or(std::string(rumpf));
  if (adiabat) neu += kAdiabat;
  return neu;
}

std::string Item(const Richtung& richtung, std::string_view name, const std::string& text) {
  if (name == "Anlagenart_Combo") return Anlagenart(richtung, text);
  if (name == "Vfl_typ") return Verfluessigertyp(richtung, text);
  return uebersetzt(richtung, Auswahltexte(name), text);
}

std::vector<std::string> alle_items(std::string_view inhalt) {
  std::vector<std::string> items;
  ItemLeser leser(inhalt);
  for (std::string item; leser.lies(item);) items.push_back(item);
  return items;
}

/// The items with the project's fields in place of the first ones; what stands behind them stays.
std::string zusammengesetzt(std::vector<std::string>& items, const Projektsatz& projekt) {
  const auto felder = Projektfelder();
  std::string inhalt;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i < felder.size()) items[i] = projekt.*felder[i].feld;
    zeile_anhaengen(inhalt, {items[i]});
  }
  return inhalt;
}

}  // namespace

void Projektsatz_uebersetzen(const Captions& captions, Projektsatz& projekt, std::string_view von,
                             std::string_view nach) {
  // Without the texts of both there is nothing to look up: the project must stay tied to its own.
  if (!captions.vorhanden(von) || !captions.vorhanden(nach)) return;
  const Richtung richtung{captions, von, nach};
  for (const Projektfeld& item : Projektfelder()) {
    std::string& text = projekt.*item.feld;
    if (!text.empty()) text = Item(richtung, item.name, text);
  }
  projekt.Sprache = nach;
}

bool Projekt_Uebersetzen(Ablage& ablage, const Captions& captions, std::string_view von,
                         std::string_view nach) {
  if (!ablage.vorhanden(kArbeitsprojekt)) return true;
  std::vector<std::string> items = alle_items(ablage.lies_ganz(kArbeitsprojekt).value_or(""));
  const auto felder = Projektfelder();
  Projektsatz projekt;
  for (std::size_t i = 0; i < std::min(items.size(), felder.size()); ++i)
    projekt.*felder[i].feld = items[i];
  if (zeichenzahl(getrimmt(projekt.Sprache)) != 3 || gleich(projekt.Sprache, nach)) return true;

  Projektsatz_uebersetzen(captions, projekt, von, nach);
  const std::string inhalt = zusammengesetzt(items, projekt);
  if (!ablage.schreib_ganz(kPuffer, inhalt)) return false;
  // The change of name goes through the file store, which refuses a read-only target and keeps a
  // link; the buffer is removed past it, so that the reason of a refusal still stands there.
  const bool fertig = ablage.schreib_ganz(kArbeitsprojekt, inhalt);
  std::error_code fehler;
  std::filesystem::remove(ablage.pfad(kPuffer), fehler);
  return fertig;
}

}  // namespace polarkreis
