#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/messtabelle.h"
#include "shell/captions.h"

namespace polarkreis {

/// Function codes of a unit.
enum Funktionscode : int {
  F_keine = 0,
  F_Verdichter = 1,
  F_Verfluessiger = 2,  ///< known to the kernel, given by no text
  F_Economiser = 3,
  F_Einspritzung = 4,
  F_Booster = 8,
  F_zweistufig = 9,
  F_Zwischenkuehler = 10,
  F_Fernfuehler = 11,
  F_Ventilator = 12,
  F_Pumpe = 13,
  F_transkritisch = 15,
  F_Luftseite = 26,
};

/// The text that marks a transcritical R744 plant, in a plant scheme and as a function.
inline constexpr std::string_view Text_transkritisch = "CO2 Transkritisch";

/// The functions of the units, index 1 to 4 (0 is not used).
struct Einheitenfunktion {
  std::array<int, 5> Sensor_Code{};   ///< 0: no row names the unit
  std::array<int, 5> Sensor_Zeile{};  ///< its row in the table of the units
  std::array<std::string, 5> Sensor_Name;
  int Druck_Art = 0;  ///< 2: some unit measures the air side
};

/// Assigns the functions: each row whose unit name ends in 1 to 4 gives that unit the code of its
/// function text, 1 for a text that is none of the captions.
Einheitenfunktion SP_Zuweis(const Einheitentabelle& tabelle, const Captions& captions);

/// The function texts to choose from, in the order of comparison, the ordinary compressor last.
std::vector<std::string> Funktionstexte(const Captions& captions);

/// What stands in empty fields of the table of the units, and fills them.
std::string Einheit_Standardliste(int zeile, const Captions& captions);
std::string Einheit_Standardname(int zeile);
void Einheiten_Standard(Einheitentabelle& tabelle, const Captions& captions);

}  // namespace polarkreis
