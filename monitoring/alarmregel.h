#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/captions.h"

namespace polarkreis {

/// The fields of an alarm rule, as rows of the rule table.
enum class Regelzeile {
  en = 1,  ///< "ON" or "OFF"
  c1,      ///< first channel
  ro,      ///< how the second channel is joined to the first
  c2,      ///< second channel
  cm,      ///< comparison with the limit
  vl,      ///< limit
  ti,      ///< minutes that the condition must hold
  nt       ///< who is told
};
inline constexpr int Regelzeilen = 8;

/// One rule as a user sees it: if `c1` `ro` `c2` `cm` `vl` holds for `ti` minutes and the rule is
/// "ON", those in `nt` are told. A rule's recipients are four words of their own, not the plant's
/// route.
struct Alarmregel {
  std::array<std::string, Regelzeilen> texte;

  std::string& operator[](Regelzeile zeile) { return texte[static_cast<std::size_t>(zeile) - 1]; }
  const std::string& operator[](Regelzeile zeile) const {
    return texte[static_cast<std::size_t>(zeile) - 1];
  }
};

/// A field's key in rule files, "en" to "nt".
std::string_view Regelschluessel(Regelzeile zeile);
/// The channels of a plant that a rule can watch: none ("  "), pressure and saturation temperature
/// on the low and the high side, suction line, liquid line, expansion, inlet and outlet of the two
/// secondary circuits.
std::span<const std::string_view> Alarmkanaele();
/// The texts to choose a field's value from; none for the fields that are typed (`vl`, `ti`).
std::vector<std::string> Regelauswahl(const Captions& captions, Regelzeile zeile);

/// The rule as one text of eight items "key=value;", in the order c1, ro, c2, cm, vl, ti, nt, en.
/// "ON" is 1 and anything else 0; the comparisons "<", "<=", ">", ">=", "==" are 1 to 5, and
/// anything else 3; the recipients none, "SMS", "E-Mail", "SMS + E-Mail" are 0 to 3, and anything
/// else 3. These three are trimmed before; the others are taken as they stand.
std::string Regel_packen(const Captions& captions, const Alarmregel& regel);
/// The items of a packed rule, each up to its ";" and with it; what stands behind the last one is
/// no item.
std::vector<std::string> Regel_teilen(std::string_view gepackt);

/// What an item means in the rule table.
struct Alarmtext {
  int Zeile = 0;  ///< row of the rule table; 0 for an unknown key
  std::string Text;
};
/// The text of one item "key=value;": three characters are the key, the value goes to the first
/// ";". `en` 1 is "ON", all else "OFF"; `cm` outside 1 to 5 is ">"; `nt` outside 0 to 3 is
/// "SMS + E-Mail". An unknown key gives an empty text.
Alarmtext alerts_find(const Captions& captions, std::string_view Zeile);
/// The fields of a packed rule; those that it doesn't name are empty.
Alarmregel Regel_entpacken(const Captions& captions, std::string_view gepackt);
/// Puts an item's text into its field of the rule; an item with an unknown key changes nothing.
void Item_uebernehmen(const Captions& captions, std::string_view item, Alarmregel& regel);

}  // namespace polarkreis
