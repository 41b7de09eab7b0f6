#include "monitoring/alarmregel.h"

#include <algorithm>

#include "shell/text.h"

namespace polarkreis {

namespace {

/// A row of the rule table and its key.
struct Regelfeld {
  Regelzeile zeile;
  std::string_view schluessel;
};

constexpr std::array<Regelfeld, Regelzeilen> kFelder{{{Regelzeile::en, "en"},
                                                      {Regelzeile::c1, "c1"},
                                                      {Regelzeile::ro, "ro"},
                                                      {Regelzeile::c2, "c2"},
                                                      {Regelzeile::cm, "cm"},
                                                      {Regelzeile::vl, "vl"},
                                                      {Regelzeile::ti, "ti"},
                                                      {Regelzeile::nt, "nt"}}};

/// The order of the items in a packed rule.
constexpr std::array<Regelzeile, Regelzeilen> kPackfolge{
    Regelzeile::c1, Regelzeile::ro, Regelzeile::c2, Regelzeile::cm,
    Regelzeile::vl, Regelzeile::ti, Regelzeile::nt, Regelzeile::en};

constexpr std::string_view kAn = "ON", kAus = "OFF";
constexpr std::string_view kNichts = "  ";

constexpr std::array<std::string_view, 12> kKanaele{
    kNichts, "po", "pc", "to", "tc", "tSL", "tliq", "texp", "tin1", "tin2", "tout1", "tout2"};

/// Comparisons by their code; the first stands for none.
constexpr std::array<std::string_view, 6> kVergleiche{kNichts, "<", "<=", ">", ">=", "=="};
constexpr std::size_t kGroesser = 3;

constexpr std::size_t kEmpfaengerzahl = 4;
constexpr std::size_t kAlle = 3;

/// Recipients by their code.
std::array<std::string, kEmpfaengerzahl> empfaenger(const Captions& captions) {
  return {captions.text(PedCap::Ohne), "SMS", "E-Mail", "SMS + E-Mail"};
}

/// The place of a text among the texts of a code, else `sonst`.
template <class Texte>
std::size_t code(const Texte& texte, std::string_view text, std::size_t sonst) {
  const std::string_view gesucht = getrimmt(text);
  for (std::size_t i = 0; i < texte.size(); ++i)
    if (!gesucht.empty() && getrimmt(texte[i]) == gesucht) return i;
  return sonst;
}

/// The code of a text of digits: one digit below `anzahl`, else `sonst`.
std::size_t code_aus(std::string_view wert, std::size_t von, std::size_t anzahl,
                     std::size_t sonst) {
  const std::string_view ziffer = getrimmt(wert);
  if (ziffer.size() != 1 || ziffer[0] < '0' || ziffer[0] > '9') return sonst;
  const auto n = static_cast<std::size_t>(ziffer[0] - '0');
  return n >= von && n < anzahl ? n : sonst;
}

std::string verschluesselt(const Captions& captions, Regelzeile zeile, const std::string& text) {
  switch (zeile) {
    case Regelzeile::en:
      return getrimmt(text) == kAn ? "1" : "0";
    case Regelzeile::cm:
      return std::to_string(code(kVergleiche, text, kGroesser));
    case Regelzeile::nt:
      return std::to_string(code(empfaenger(captions), text, kAlle));
    default:
      return text;
  }
}

std::string entschluesselt(const Captions& captions, Regelzeile zeile, std::string_view wert) {
  switch (zeile) {
    case Regelzeile::en:
      return std::string(getrimmt(wert) == "1" ? kAn : kAus);
    case Regelzeile::cm:
      return std::string(kVergleiche[code_aus(wert, 1, kVergleiche.size(), kGroesser)]);
    case Regelzeile::nt:
      return empfaenger(captions)[code_aus(wert, 0, kEmpfaengerzahl, kAlle)];
    default:
      return std::string(wert);
  }
}

}  // namespace

std::string_view Regelschluessel(Regelzeile zeile) {
  return kFelder[static_cast<std::size_t>(zeile) - 1].schluessel;
}

std::span<const std::string_view> Alarmkanaele() {
  return kKanaele;
}

std::vector<std::string> Regelauswahl(const Captions& captions, Regelzeile zeile) {
  switch (zeile) {
    case Regelzeile::en:
      return {std::string(kAn), std::string(kAus)};
    case Regelzeile::c1:
    case Regelzeile::c2:
      return {kKanaele.begin(), kKanaele.end()};
    case Regelzeile::ro:
      return {std::string(kNichts), "+", "-"};
    case Regelzeile::cm:
      return {kVergleiche.begin(), kVergleiche.end()};
    case Regelzeile::nt: {
      const auto texte = empfaenger(captions);
      return {texte.begin(), texte.end()};
    }
    default:
      return {};
  }
}

std::string Regel_packen(const Captions& captions, const Alarmregel& regel) {
  std::string gepackt;
  for (Regelzeile zeile : kPackfolge) {
    gepackt += Regelschluessel(zeile);
    gepackt += "=" + verschluesselt(captions, zeile, regel[zeile]) + ";";
  }
  return gepackt;
}

std::vector<std::string> Regel_teilen(std::string_view gepackt) {
  std::vector<std::string> items;
  for (std::size_t ende; (ende = gepackt.find(';')) != std::string_view::npos;) {
    items.emplace_back(gepackt.substr(0, ende + 1));
    gepackt.remove_prefix(ende + 1);
  }
  return items;
}

Alarmtext alerts_find(const Captions& captions, std::string_view Zeile) {
  constexpr std::size_t kSchluessellaenge = 3;
  const std::string_view schluessel = Zeile.substr(0, kSchluessellaenge);
  for (const Regelfeld& feld : kFelder) {
    if (schluessel.size() != kSchluessellaenge || schluessel.back() != '=' ||
        !schluessel.starts_with(feld.schluessel))
      continue;
    const std::string_view rest = Zeile.substr(kSchluessellaenge);
    return {static_cast<int>(feld.zeile),
            entschluesselt(captions, feld.zeile, rest.substr(0, rest.find(';')))};
  }
  return {};
}

Alarmregel Regel_entpacken(const Captions& captions, std::string_view gepackt) {
  Alarmregel regel;
  for (const std::string& item : Regel_teilen(gepackt)) Item_uebernehmen(captions, item, regel);
  return regel;
}

void Item_uebernehmen(const Captions& captions, std::string_view item, Alarmregel& regel) {
  const Alarmtext gefunden = alerts_find(captions, item);
  if (gefunden.Zeile != 0) regel[static_cast<Regelzeile>(gefunden.Zeile)] = gefunden.Text;
}

}  // namespace polarkreis
