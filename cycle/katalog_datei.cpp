#include "cycle/katalog_datei.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::size_t kMeldungen_hoechstens = 100, kZitat_hoechstens = 40;
constexpr std::size_t kItem_hoechstens = 4096;
constexpr int kSatz_hoechstens = (1 << 30) / Bauteilsatz;

struct Typregel {
  std::string_view buchstaben;
  int typ;
};
constexpr std::array<Typregel, 5> kLetzte_zwei{
    {{"EX", 1}, {"KP", 2}, {"VD", 3}, {"KD", 4}, {"MV", 7}}};
constexpr Typregel kErste_zwei{"KA", 5};

/// Place behind the quoted item that begins at `anfang`; none where its closing quote was lost. An
/// item over several lines counts only if a separator follows it: else its quote is the next
/// item's.
std::optional<std::size_t> hinter_Anfuehrung(std::string_view text, std::size_t anfang) {
  const std::string_view item = text.substr(anfang, kItem_hoechstens);
  std::size_t schluss = item.find('"', 1);
  while (schluss != std::string_view::npos && item.substr(schluss + 1).starts_with('"'))
    schluss = item.find('"', schluss + 2);
  if (schluss == std::string_view::npos) return std::nullopt;
  const std::size_t danach = item.find_first_not_of(" \t\r", schluss + 1);
  const bool getrennt =
      danach == std::string_view::npos || item[danach] == ',' || item[danach] == '\n';
  const bool eine_zeile = item.substr(0, schluss).find('\n') == std::string_view::npos;
  if (!getrennt && !eine_zeile) return std::nullopt;
  return anfang + schluss + 1;
}

/// Takes the first line off a text and gives it without its end. A quoted item may hold line ends.
std::string_view naechste_zeile(std::string_view& rest) {
  std::size_t ort = 0;
  while (ort < rest.size()) {
    ort = rest.find_first_not_of(" \t", ort);
    std::string_view trenner = ",\n";
    if (ort < rest.size() && rest[ort] == '"') {
      const auto dahinter = hinter_Anfuehrung(rest, ort);
      ort = dahinter.value_or(ort);
      if (!dahinter) trenner = "\n";
    }
    ort = rest.find_first_of(trenner, ort);
    if (ort >= rest.size() || rest[ort] == '\n') break;
    ++ort;
  }
  std::string_view zeile = rest.substr(0, ort);
  rest.remove_prefix(std::min(rest.size(), zeile.size() + 1));
  if (zeile.ends_with('\r')) zeile.remove_suffix(1);
  return zeile;
}

Katalogdateien::Felder items(std::string_view zeile) {
  Katalogdateien::Felder felder;
  if (getrimmt(zeile).empty()) return felder;
  ItemLeser leser(zeile);
  for (std::string item; leser.lies(item);) felder.push_back(item);
  return felder;
}

enum Indexfeld : std::size_t { I_Code, I_Hersteller, I_Katalogtext, I_Anfang, Indexfelder };

bool beginnt_Indexzeile(const Katalogdateien::Felder& zeile) {
  return ist_Katalogcode(getrimmt(zeile[I_Code])) || endet_mit_Zahl(zeile, Indexfelder);
}

bool alle_leer(const Katalogdateien::Felder& felder) {
  return std::ranges::all_of(felder, [](const std::string& f) { return getrimmt(f).empty(); });
}

/// The code that an item of "katalg.lst" begins with; empty for none. Behind a line's first item a
/// word of more letters is text that lost its quotes.
std::string_view Code_in(std::string_view item, bool erstes) {
  const std::string_view code = erste_zeichen(item, Codelaenge);
  const std::string_view rest = item.substr(code.size());
  const bool wort = rest.empty() || rest != links_getrimmt(rest);
  return ist_Katalogcode(code) && (erstes || wort) ? code : std::string_view();
}

/// A text of a file, shortened and in quotes, for a message.
std::string zitat(std::string_view text) {
  return "\"" + std::string(erste_zeichen(text, kZitat_hoechstens)) + "\"";
}

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

bool endet_mit_Zahl(const Katalogdateien::Felder& items, std::size_t n) {
  if (n == 0 || n > items.size()) return false;
  const std::string_view text = getrimmt(items[n - 1]);
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
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
                                                               std::size_t felder,
                                                               Zeilenbeginn beginnt) {
  std::vector<Felder> alle;
  Felder offen;
  const auto verwerfen = [&] {
    if (!alle_leer(offen))
      melde(name, "the row that begins with " + zitat(offen.front()) + " has " +
                      std::to_string(offen.size()) + " of " + std::to_string(felder) +
                      " fields: left out");
    offen.clear();
  };
  while (!inhalt.empty()) {
    Felder neue = items(naechste_zeile(inhalt));
    const bool ganze = neue.size() >= felder;
    if (ganze && beginnt(neue)) verwerfen();
    for (std::string& item : neue) {
      offen.push_back(std::move(item));
      if (offen.size() == felder) alle.push_back(std::exchange(offen, {}));
    }
    if (ganze && alle_leer(offen)) offen.clear();
  }
  verwerfen();
  return alle;
}

std::vector<Katalogzeile> Katalogdateien::Katalogliste() {
  const std::string inhalt = ablage.lies_ganz(Katalogdatei).value_or("");
  std::vector<Katalogzeile> alle;
  for (std::string_view rest = inhalt; !rest.empty();) {
    bool erstes = true;
    for (const std::string& item : items(naechste_zeile(rest))) {
      const std::string_view text = getrimmt(item);
      const std::string_view code = Code_in(text, std::exchange(erstes, false));
      if (!code.empty())
        alle.push_back({std::string(code), std::string(getrimmt(text.substr(code.size())))});
      else if (!text.empty())
        melde(Katalogdatei, zitat(text) + " begins with no code of seven letters: left out");
    }
  }
  return alle;
}

std::vector<Indexzeile> Katalogdateien::Index(int Suchart) {
  const std::string_view name = Indexdatei(Suchart);
  const std::string inhalt = ablage.lies_ganz(name).value_or("");
  std::vector<Indexzeile> alle;
  for (const Felder& zeile : Feldzeilen(name, inhalt, Indexfelder, beginnt_Indexzeile)) {
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
