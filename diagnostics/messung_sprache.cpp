#include "diagnostics/messung_sprache.h"

#include <algorithm>
#include <array>
#include <string>

#include "diagnostics/einheiten_funktion.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

/// What the program puts behind a caption in a text of its own.
constexpr std::array<std::string_view, 3> Anhaenge = {" 2st.", " - 1 ph.", " %"};
constexpr std::string_view Schemateiler = "- ";
/// Variants of the plant scheme that are no captions, though a language may have one that reads so.
constexpr std::array<std::string_view, 2> Feste_Varianten = {Text_transkritisch, "Economizer"};

class Uebersetzer {
 public:
  Uebersetzer(const Captions& captions, std::string_view von) : captions_(captions), von_(von) {}

  std::string Schema(std::string_view schema) const;
  std::string Funktion(std::string_view text) const;
  std::string Regelung(std::string_view text) const;

 private:
  std::string Caption(std::string_view text) const {
    return captions_.Caption_Uebersetzen(von_, captions_.Sprache, text);
  }
  std::string Schemateil(std::string_view teil) const;

  const Captions& captions_;
  std::string_view von_;
};

// The blanks around a part belong to the scheme, not to the caption.
std::string Uebersetzer::Schemateil(std::string_view teil) const {
  const std::string_view kern = getrimmt(teil);
  if (kern.empty() || std::count(Feste_Varianten.begin(), Feste_Varianten.end(), kern) > 0)
    return std::string(teil);
  const auto davor = static_cast<std::size_t>(kern.data() - teil.data());
  std::string neu(teil.substr(0, davor));
  neu += Caption(kern);
  neu += teil.substr(davor + kern.size());
  return neu;
}

std::string Uebersetzer::Schema(std::string_view schema) const {
  std::string neu;
  for (;;) {
    const std::size_t teiler = schema.find(Schemateiler);
    neu += Schemateil(schema.substr(0, teiler));
    if (teiler == std::string_view::npos) return neu;
    neu += Schemateiler;
    schema.remove_prefix(teiler + Schemateiler.size());
  }
}

// A caption as it stands, with one of the program's additions, or with a number behind it.
std::string Uebersetzer::Funktion(std::string_view text) const {
  std::string ganz = Caption(text);
  if (ganz != text) return ganz;
  for (const std::string_view anhang : Anhaenge)
    if (text.ends_with(anhang))
      return Caption(text.substr(0, text.size() - anhang.size())).append(anhang);
  const std::size_t wort = text.find_last_not_of(" 0123456789") + 1;
  return Caption(text.substr(0, wort)).append(text.substr(wort));
}

std::string Uebersetzer::Regelung(std::string_view text) const {
  constexpr std::array Zeilen = {static_cast<int>(JMapCap::Regelung_Drehzahl),
                                 static_cast<int>(JMapCap::Regelung_ohne),
                                 static_cast<int>(JMapCap::Regelung_Stufen),
                                 static_cast<int>(JMapCap::Regelung_zwei_Drehzahlen),
                                 static_cast<int>(JMapCap::Regelung_stetig)};
  return captions_.Caption_Uebersetzen(Stamm::JMapCap, Zeilen, von_, captions_.Sprache, text);
}

}  // namespace

void Messung_uebersetzen(Messung& m, const Captions& captions, std::string_view von) {
  const Uebersetzer neu(captions, von);
  m.Combo3 = neu.Schema(m.Combo3);
  m.Combo4 = neu.Funktion(m.Combo4);
  m.RGCombo = neu.Regelung(m.RGCombo);
  for (int zeile = 1; zeile <= Einheitentabelle::Zeilen; ++zeile)
    for (const int spalte :
         {Einheitentabelle::Liste, Einheitentabelle::Funktion, Einheitentabelle::Einheit}) {
      std::string& zelle = m.OrbiN_spread(zeile, spalte);
      zelle = neu.Funktion(zelle);
    }
}

}  // namespace polarkreis
