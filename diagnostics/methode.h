#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// How the kernel comes to the mass flow.
enum Massenstromart : int { M_Hubvolumen = 0, M_Messwert = 77, M_Teillast = 87 };

/// The entries of the method list (`Combo4`): swept volume, part load in percent, and the free
/// input of unit 1, which is measured.
std::vector<std::string> Combo4_Liste(const Captions& captions);
/// The method of a list text: 77 for one that ends in " inX7", 87 for the part load in any
/// language, 0 for others.
int Mass_Art(std::string_view Combo4, const Captions& captions);
/// The list text of a method.
std::string Combo4_Text(int Mass_Art, const Captions& captions);

/// The compressor parameters of the diagnostics, "VerDpark.dat": four items, one a line. The swept
/// volume is a number text, m³/h. A missing file gives empty texts.
struct Verdichterpark {
  std::string Hub_Volumen, Combo4, Bauart, Antrieb;
};
Verdichterpark Park_Lesen(Ablage& ablage, std::string_view datei = "VerDpark.dat");
bool Park_Schreiben(Ablage& ablage, const Verdichterpark& park);

}  // namespace polarkreis
