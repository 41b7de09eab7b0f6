#include "cycle/katalog_datei.h"

#include <algorithm>
#include <array>

#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view kKatalogliste = "katalg.lst";
constexpr std::size_t kMeldungen_hoechstens = 100, kZitat_hoechstens = 40;
constexpr int kSatz_hoechstens = (1 << 30) / Bauteilsatz;

struct Typregel {
  std::string_view buchstaben;
  int typ;
};
constexpr std::array<Typregel, 5> kLetzte_zwei{
    {{"EX", 1}, {"KP", 2}, {"VD", 3}, {"KD", 4}, {"MV", 7}}};
constexpr Typregel kErste_zwei{"KA", 5};

/// Takes the first line off a text, its end included.
std::string_view naechste_zeile(std::string_view& rest) {
  const std::string_view zeile = rest.substr(0, rest.find('\n') + 1);
  const std::string_view ganz = zeile.empty() ? rest : zeile;
  rest.remove_prefix(ganz.size());
  return ganz;
}

Katalogdateien::Felder items(std::string_view zeile) {
  Katalogdateien::Felder felder;
  if (zeile.find_first_not_of(" \t\r\n") == std::string_view::npos) return felder;
  ItemLeser leser(zeile);
  for (std::string item; leser.lies(item);) felder.push_back(item);
  return felder;
}

/// A text of a file, shortened and in quotes, for a message.
std::string zitat(std::string_view text) {
  return "\"" + std::string(erste_zeichen(text, kZitat_hoechstens)) + "\"";
}

enum Indexfeld : std::size_t { I_Code, I_Hersteller, I_Katalogtext, I_Anfang, Indexfelder };

}  // namespace

bool ist_Katalogcode(std::string_view code) {
  const auto erlaubt = [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
  };
  return code.size() == Codelaenge && std::ranges::all_of(code, erlaubt);
}

std::string Bauteildatei(std::string_view code) {
  return std::string(code) + "N.rdm";
}

std::string Listendatei(std::string_view code) {
  return std::string(code) + "I.rdm";
}

std::string_view Indexdatei(int Suchart) {
  switch (Suchart) {
    case 0:
    case 100:
      return "I650.DAT";
    case 1:
      return "I600.DAT";
    default:
      return "I550.DAT";
  }
}

int Typ_aus_Code(std::string_view code) {
  const std::string grosser = gross(code);
  for (const Typregel& regel : kLetzte_zwei)
    if (grosser.ends_with(regel.buchstaben)) return regel.typ;
  return grosser.starts_with(kErste_zwei.buchstaben) ? kErste_zwei.typ : 0;
}

int Satznummer(std::string_view text) {
  const double nummer = Int(Wert(text));
  return nummer >= 1 && nummer <= kSatz_hoechstens ? static_cast<int>(nummer) : 0;
}

// A file of something else could have thousands of wrong rows; they must not push everything else
// out of the message log.
void Katalogdateien::melde(std::string_view datei, const std::string& text) {
  if (gemeldet_.size() > kMeldungen_hoechstens) return;
  if (!gemeldet_.insert(std::string(datei) + ": " + text).second) return;
  const bool zu_viele = gemeldet_.size() > kMeldungen_hoechstens;
  ablage.meldungen().melde("catalogue", datei, zu_viele ? "more is wrong: not told" : text);
}

std::vector<Katalogdateien::Felder> Katalogdateien::Feldzeilen(std::string_view name,
                                                               std::string_view inhalt,
                                                               std::size_t felder) {
  std::vector<Felder> alle;
  Felder offen;
  const auto verwerfen = [&] {
    if (!offen.empty())
      melde(name, "the row that begins with " + zitat(offen.front()) + " has " +
                      std::to_string(offen.size()) + " of " + std::to_string(felder) +
                      " fields: left out");
    offen.clear();
  };
  while (!inhalt.empty()) {
    Felder neue = items(naechste_zeile(inhalt));
    if (neue.size() >= felder) verwerfen();
    offen.insert(offen.end(), neue.begin(), neue.end());
    if (offen.size() < felder) continue;
    offen.resize(felder);
    alle.push_back(std::move(offen));
    offen.clear();
  }
  verwerfen();
  return alle;
}

std::vector<Katalogzeile> Katalogdateien::Katalogliste() {
  const std::string inhalt = ablage.lies_ganz(kKatalogliste).value_or("");
  std::vector<Katalogzeile> alle;
  for (std::string_view rest = inhalt; !rest.empty();) {
    const Felder zeile = items(naechste_zeile(rest));
    if (zeile.empty()) continue;
    const std::string_view text = getrimmt(zeile.front());
    const std::string_view code = erste_zeichen(text, Codelaenge);
    if (ist_Katalogcode(code))
      alle.push_back({std::string(code), std::string(getrimmt(text.substr(code.size())))});
    else
      melde(kKatalogliste, zitat(code) + " is no code of seven letters: left out");
  }
  return alle;
}

std::vector<Indexzeile> Katalogdateien::Index(int Suchart) {
  const std::string_view name = Indexdatei(Suchart);
  const std::string inhalt = ablage.lies_ganz(name).value_or("");
  std::vector<Indexzeile> alle;
  for (const Felder& zeile : Feldzeilen(name, inhalt, Indexfelder)) {
    const std::string code(getrimmt(zeile[I_Code]));
    if (!ist_Katalogcode(code)) {
      melde(name, zitat(code) + " is no code of seven letters: left out");
      continue;
    }
    const int anfang = Satznummer(zeile[I_Anfang]);
    if (anfang == 0)
      melde(name,
            code + ": " + zitat(zeile[I_Anfang]) + " is no record to begin with: none is read");
    alle.push_back({code, std::string(getrimmt(zeile[I_Hersteller])),
                    std::string(getrimmt(zeile[I_Katalogtext])), anfang});
  }
  return alle;
}

}  // namespace polarkreis
