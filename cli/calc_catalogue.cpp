#include <array>
#include <charconv>
#include <optional>

#include "calc.h"
#include "katalog_json.h"
#include "shell/cp850.h"

namespace polarkreis::cli {

namespace {

constexpr int kHexadezimal = 16;

/// Bytes from pairs of hexadecimal digits; nothing for another text.
std::optional<std::string> bytes_aus(const std::string& hex) {
  if (hex.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    unsigned char byte = 0;
    const char* ende = hex.data() + i + 2;
    if (std::from_chars(hex.data() + i, ende, byte, kHexadezimal).ptr != ende) return std::nullopt;
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

std::string hex_von(const std::string& bytes) {
  constexpr std::string_view ziffern = "0123456789ABCDEF";
  std::string hex;
  for (char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    hex += {ziffern[byte / kHexadezimal], ziffern[byte % kHexadezimal]};
  }
  return hex;
}

Antwort aus_seite(Rechenstand&, const Argumente& a) {
  const std::optional<std::string> bytes = bytes_aus(a.text("hex"));
  if (!bytes) return misslingt("\"hex\" must be pairs of hexadecimal digits, as \"4B84\"");
  return {aus_CP850(*bytes), {}};
}

Antwort in_seite(Rechenstand&, const Argumente& a) {
  return {hex_von(nach_CP850(a.text("text"))), {}};
}

Antwort indexdatei(Rechenstand&, const Argumente& a) {
  return {Indexdatei(a.ganz("Suchart")), {}};
}

Antwort katalogtyp(Rechenstand& r, const Argumente& a) {
  const std::string code = a.text("code");
  if (!ist_Katalogcode(code)) return misslingt("\"code\" must have seven letters or digits");
  Katalogdateien dateien(r.ablage);
  return {Katalogtyp(dateien, code), {}};
}

Antwort listenindex(Rechenstand&, const Argumente& a) {
  const int weite = a.da("stride") ? a.ganz("stride") : static_cast<int>(Slotweite::w66);
  if (weite != static_cast<int>(Slotweite::w50) && weite != static_cast<int>(Slotweite::w66))
    return misslingt("\"stride\" must be 50 or 66");
  return {Listenindex(a.ganz("position"), static_cast<Slotweite>(weite)), {}};
}

Antwort km_liste(Rechenstand& r, const Argumente& a) {
  Katalogdateien dateien(r.ablage);
  return {mittelliste_json(KM_Liste(dateien, a.text("name"))), {}};
}

Antwort listenbauteile(Rechenstand& r, const Argumente& a) {
  Katalogdateien dateien(r.ablage);
  const Mittelzeile zeile{a.text("file"), {}, a.ganz("start")};
  return {bauteile_json(Listenbauteile(dateien, zeile)), {}};
}

Antwort listen(Rechenstand& r, const Argumente& a) {
  KompSuch suche(r.ablage);
  suche.Suchart = a.ganz("Suchart");
  suche.Listen_fuellen();
  return {{{"Kataloglist", kataloglist_json(suche)}, {"Herstellerlist", suche.Herstellerlist}}, {}};
}

Antwort kompsuch(Rechenstand& r, const Argumente& a) {
  KompSuch suche(r.ablage);
  suche.Suchart = a.ganz("Suchart");
  suche.Suchtext = a.text("Suchtext");
  suche.Hersteller = a.text("Hersteller");
  suche.Katalog = a.text("Katalog");
  suche.Suchen();
  return {{{"catalogues", ergebnisse_json(suche)}, {"hits", treffer_json(suche)}}, {}};
}

constexpr std::array<Operation, 9> kOperationen{{
    {"Indexdatei", "Suchart", "", indexdatei},
    {"Katalogtyp", "code", "", katalogtyp},
    {"Komp_Listen", "Suchart", "", listen},
    {"KompSuch", "Suchart Suchtext", "Hersteller Katalog", kompsuch},
    {"Listenindex", "position", "stride", listenindex},
    {"KM_Liste", "name", "", km_liste},
    {"Listenbauteile", "file start", "", listenbauteile},
    {"aus_CP850", "hex", "", aus_seite},
    {"nach_CP850", "text", "", in_seite},
}};

}  // namespace

std::span<const Operation> Katalogoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
