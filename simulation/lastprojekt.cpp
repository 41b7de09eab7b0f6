#include "simulation/lastprojekt.h"

#include <array>
#include <optional>

#include "shell/platte.h"
#include "shell/text.h"
#include "simulation/projektsatz.h"

namespace polarkreis {

namespace {

constexpr std::string_view Endung = ".PRJ";

// As bytes, because the lines must come back as they stand, whatever their encoding.
std::optional<std::string> bytes_lesen(Ablage& ablage, std::string_view name) {
  std::string bytes;
  if (!ablage.vorhanden(name) || platte::lies(ablage.pfad(name), bytes) != 0) return std::nullopt;
  return bytes;
}

// The place behind the line on which the heading's last item ends. Quoted items may hold commas and
// line ends of their own.
std::size_t kopf_ende(std::string_view text) {
  bool zitat = false;
  int items = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') zitat = !zitat;
    if (zitat || (text[i] != ',' && text[i] != '\n')) continue;
    ++items;
    if (text[i] == '\n' && items >= Projektkopf::Items) return i + 1;
  }
  return text.size();
}

std::string_view zeilen_in(const std::string& bytes) {
  return std::string_view(bytes).substr(kopf_ende(bytes));
}

bool nur_leerraum(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string typmarke(std::string_view kopf) {
  const std::string text = als_utf8(std::string(kopf));
  ItemLeser leser(text);
  return Projektkopf_lesen(leser).Kennung;
}

}  // namespace

std::string_view Lastdatei(std::string_view marke) {
  struct Zuordnung {
    std::string_view marke, datei;
  };
  static constexpr std::array<Zuordnung, 3> Dateien = {
      {{"AC", "KlimaL.dat"}, {"CR", "KuehlL.dat"}, {"HX", "HX_ACT.dat"}}};
  for (const Zuordnung& z : Dateien)
    if (z.marke == marke) return z.datei;
  return {};
}

bool Lastprojekt_ohne_Zeilen(Ablage& ablage, std::string_view projektdatei) {
  const std::optional<std::string> bytes = bytes_lesen(ablage, projektdatei);
  return bytes && nur_leerraum(zeilen_in(*bytes));
}

bool Lastprojekt_Oeffnen(Ablage& ablage, std::string_view projektdatei) {
  const std::optional<std::string> bytes = bytes_lesen(ablage, projektdatei);
  if (!bytes) return false;
  const std::string_view zeilen = zeilen_in(*bytes);
  const std::string_view kopf = std::string_view(*bytes).substr(0, bytes->size() - zeilen.size());
  const std::string_view datei = Lastdatei(typmarke(kopf));
  if (datei.empty()) return false;
  if (nur_leerraum(zeilen)) {
    ablage.meldungen().melde("Lastprojekt_Oeffnen", projektdatei,
                             "nothing behind its heading: the load file stays as it is");
    return false;
  }
  return ablage.schreib_ganz(datei, zeilen);
}

bool Lastprojekt_Speichern(Ablage& ablage, std::string_view projektdatei, std::string_view name,
                           std::string_view beschreibung, std::string_view marke) {
  const std::string_view datei = Lastdatei(marke);
  if (datei.empty()) return false;
  const std::optional<std::string> zeilen = bytes_lesen(ablage, datei);
  if (!zeilen) {
    ablage.meldungen().melde("Lastprojekt_Speichern", datei, "missing: the project stays as it is");
    return false;
  }
  std::string inhalt;
  Projektkopf_anhaengen(inhalt, name, beschreibung, marke);
  return ablage.schreib_ganz(projektdatei, inhalt + *zeilen);
}

std::string Lastprojekt_Name(std::string_view name, std::string_view vorgabe) {
  std::string neu(name);
  if (getrimmt(name).empty())
    neu = std::string(vorgabe.empty() ? std::string_view("Projekt") : vorgabe) + ".prj";
  const std::size_t zeichen = zeichenzahl(neu);
  const std::size_t rest = zeichen > Endung.size() ? zeichen - Endung.size() : 0;
  const std::string_view stamm = erste_zeichen(neu, rest);
  if (gross(std::string_view(neu).substr(stamm.size())) == Endung) return neu;
  return std::string(stamm) + std::string(Endung);
}

}  // namespace polarkreis
