#include "diagnostics/messpunkte.h"

#include <array>
#include <cstddef>

namespace polarkreis {

namespace {

using Kanalliste = std::array<std::string_view, Punkte_je_Einheit>;

constexpr Kanalliste Leitkiste = {"t liq.",
                                  "t Exp.",
                                  "t SL",
                                  "t end",
                                  "t in1",
                                  "t out2",
                                  "t in3",
                                  "t out4",
                                  "Po",
                                  "Pc",
                                  "Spannung L1 ",
                                  "Spannung L2 ",
                                  "Spannung L3 ",
                                  "Stromstärke L1 ",
                                  "Stromstärke L2 ",
                                  "Stromstärke L3 "};
constexpr Kanalliste Orbiter = {"t liq.",
                                "t in1",
                                "t in2",
                                "t out3",
                                "t out4",
                                "t Exp.",
                                "inx7",
                                "inx8",
                                "P1",
                                "P2",
                                "Spannung L1 ",
                                "Spannung L2 ",
                                "Spannung L3 ",
                                "Stromstärke L1 ",
                                "Stromstärke L2 ",
                                "Stromstärke L3 "};

}  // namespace

std::string Messpunkt(int einheit, int punkt) {
  return "- " + std::to_string(einheit) + "." + std::to_string(punkt) + " -";
}

std::string_view Kanaltext(int einheit, int punkt) {
  if (punkt < 1 || punkt > Punkte_je_Einheit) return {};
  const Kanalliste& liste = einheit == 1 ? Leitkiste : Orbiter;
  return liste[static_cast<std::size_t>(punkt - 1)];
}

}  // namespace polarkreis
