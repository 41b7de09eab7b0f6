#include "park.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "ausgabe.h"
#include "konsole.h"
#include "projektwahl.h"
#include "shell/items.h"
#include "shell/platte.h"
#include "shell/text.h"
#include "simulation/projladen.h"

namespace polarkreis::cli {

namespace {

constexpr std::string_view kParkdatei = "VerDpark.dat";

enum Parkitem : std::size_t { Hub_Volumen, Combo4, Bauart, Antrieb, Parkitems };
constexpr std::array<const char*, Parkitems> kNamen{"Hub_Volumen", "Combo4", "Bauart", "Antrieb"};

using Park = std::array<std::string, Parkitems>;

Park park_lesen(Ablage& ablage, const std::string& pfad, const std::string& name) {
  const std::string datei = "The file \"" + name + "\"";
  const std::string inhalt = projekttext(ablage, pfad, datei);
  ItemLeser leser(inhalt);
  Park park;
  for (std::size_t n = 0; n < Parkitems; ++n)
    if (!leser.lies(park[n]))
      throw Abbruch(datei + " is no compressor park: it holds " + std::to_string(n) + " of " +
                    std::to_string(std::size_t{Parkitems}) + " items.");
  return park;
}

bool derselbe(const Ablage& ablage, const std::string& pfad) {
  std::error_code fehler;
  return std::filesystem::equivalent(ablage.pfad(pfad), ablage.pfad(kParkdatei), fehler);
}

[[noreturn]] void nicht_bewegt(const Ablage& ablage) {
  throw Abbruch(grund(ablage, "The compressor park could not be moved."));
}

}  // namespace

bool ist_park(const std::string& name) {
  const std::string datei = gross(name.substr(Ordner_von(name).size()));
  return datei == gross(kParkdatei) || datei.ends_with(kParkendung);
}

void park_show(Sitzung& sitzung, const std::string& name, bool json) {
  const std::string pfad = projektpfad(sitzung, name);
  const Park park = park_lesen(sitzung.programm().ablage, pfad, name);
  if (json) {
    drucke(Json{{kNamen[Hub_Volumen], zahl(Wert(park[Hub_Volumen]))},
                {kNamen[Combo4], park[Combo4]},
                {kNamen[Bauart], zahl(Wert(park[Bauart]))},
                {kNamen[Antrieb], zahl(Wert(park[Antrieb]))}});
    return;
  }
  Tabelle tabelle;
  for (std::size_t n = 0; n < Parkitems; ++n) tabelle.zeilen.push_back({kNamen[n], park[n]});
  drucke(tabelle);
}

void park_open(Sitzung& sitzung, const std::string& name) {
  Ablage& ablage = sitzung.programm().ablage;
  const std::string pfad = projektpfad(sitzung, name);
  park_lesen(ablage, pfad, name);
  std::string beiseite;
  if (!derselbe(ablage, pfad) && !park_uebernehmen(ablage, pfad, beiseite)) nicht_bewegt(ablage);
  park_beiseite_melden(beiseite);
  std::printf("Opened: %s is the compressor park (VerDpark.dat) now.\n", name.c_str());
}

void park_save(Sitzung& sitzung, const std::string& name) {
  Ablage& ablage = sitzung.programm().ablage;
  if (!ablage.vorhanden(kParkdatei))
    throw Abbruch("There is no compressor park (VerDpark.dat) in the data folder \"" +
                  ablage.Datenordner + "\".");
  const std::string ziel = zielpfad(name);
  if (gleich(ziel.substr(Ordner_von(ziel).size()), kParkendung))
    throw Abbruch("\"" + name + "\" names no file. Give the park a name.");
  if (!derselbe(ablage, ziel) && !Datei_umbenennen(ablage, kParkdatei, ziel)) nicht_bewegt(ablage);
  std::printf("Saved: %s\n", ziel.c_str());
}

void park_beiseite_melden(const std::string& name) {
  if (!name.empty())
    melde("The compressor park that was open is kept in the data folder as \"" + name + "\".");
}

std::vector<std::string> parks(const Ablage& ablage, const std::string& ordner) {
  std::vector<std::string> alle = ablage.liste(ordner, kParkendung);
  for (const std::string& datei : ablage.liste(ordner, kParkdatei))
    if (gleich(datei, kParkdatei)) alle.push_back(datei);
  return alle;
}

}  // namespace polarkreis::cli
