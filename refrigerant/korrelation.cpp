#include "refrigerant/korrelation.h"

#include <array>
#include <iterator>

#include "refrigerant/katalog.h"

namespace polarkreis {
namespace {

// In the catalogue's order.
constexpr Korrelation korrelationen[] = {
    {"R11", Dampf::R11, Liquid::R11, 137.38, Waerme::R11},
    {"R12", Dampf::R12, Liquid::R12, 120.92, Waerme::CpA_linear, 0.648, 0.648, 0.645},
    {"R13", Dampf::R22, Liquid::R22, 104.5, Waerme::CpA, 0.81, 0.86},
    {"R13B1", Dampf::R22, Liquid::R22, 149, Waerme::CpA, 0.53, 0.6, 0.64},
    {"R14", Dampf::R23, Liquid::R23, 88, Waerme::R14},
    {"R50", Dampf::R23, Liquid::R23, 16.04, Waerme::CpA, 4.113, 3.41, 3.0888},
    {"METHAN", Dampf::R23, Liquid::R23, 16.04, Waerme::CpA, 4.113, 3.41, 3.0888},
    {"R170", Dampf::R23, Liquid::R23, 30, Waerme::CpA, 2.203, 2.41, 2.212},
    {"ETHAN", Dampf::R23, Liquid::R23, 30, Waerme::CpA, 2.203, 2.41, 2.212},
    {"R1150", Dampf::R23, Liquid::R23, 28, Waerme::CpA, 1.983, 2.04, 1.7636},
    {"ETHYLEN", Dampf::R23, Liquid::R23, 28, Waerme::CpA, 1.983, 2.04, 1.7636},
    {"R22", Dampf::R22, Liquid::R22, 86.48, Waerme::CpA, 0.812, 0.785, 0.86},
    {"R23", Dampf::R23, Liquid::R23, 70.01, Waerme::R23, 0.95, 0.803, 0.232},
    {"R32", Dampf::R401A, Liquid::R401A, 52.02, Waerme::CpA, 1.18, 1.18, 1.347, 1.043, 1.045, 1.045,
     1.045, 1.12, 1.25},
    {"R123", Dampf::R123, Liquid::R123, 152.9, Waerme::R123},
    {"R124", Dampf::R12, Liquid::R12, 136.48, Waerme::R124, 1, 1, 1, 1},
    {"R134A", Dampf::R134A, Liquid::R134A, 102, Waerme::CpA, 1.028, 1.029, 1.125},
    {"R152A", Dampf::R134A, Liquid::R134A, 66.1, Waerme::CpA, 1.16, 1.17, 1.36},
    {"R227", Dampf::R12, Liquid::R12, 170.03, Waerme::CpA_linear, 0.8, 0.8, 0.91, 1.057},
    {"R290", Dampf::R290, Liquid::R290, 44.09, Waerme::R290, 1.09, 1.12, 1.21},
    {"PROPAN", Dampf::R290, Liquid::R290, 44.09, Waerme::R290, 1.09, 1.12, 1.21},
    {"R290_600", Dampf::R290, Liquid::R290, 53.23, Waerme::R290, 1, 1.14, 1.253},
    {"R1270", Dampf::R1270, Liquid::R1270, 42.08, Waerme::CpA_linear, 1.58, 1.616, 1.645},
    {"PROPYLEN", Dampf::R1270, Liquid::R1270, 42.08, Waerme::CpA_linear, 1.58, 1.616, 1.645},
    {"R600A", Dampf::R600A, Liquid::R290, 58.123, Waerme::R600A, 1.19, 1.19, 1.04, 1.043, 1, 1, 1,
     0.667, 0.667},
    {"R717", Dampf::R717, Liquid::R717, 17.03, Waerme::R717, 1, 0.902, 1.012},
    {"AMMONIAK", Dampf::R717, Liquid::R717, 17.03, Waerme::R717, 1, 0.902, 1.012},
    {"R723", Dampf::R717, Liquid::R717, 23, Waerme::R717, 0.75, 0.79, 0.73},
    {"R744", Dampf::R717, Liquid::R717, 44, Waerme::R744, 0.39, 0.422, 0.847, 1.043, 1.38, 1.38,
     1.1, 0.67, 0.96},
    {"CO2", Dampf::R717, Liquid::R717, 44, Waerme::R744, 0.39, 0.422, 0.847, 1.043, 1.38, 1.38, 1.1,
     0.67, 0.96},
    {"HFO1234YF", Dampf::R134A, Liquid::R134A, 114, Waerme::CpA, 1.035, 0.95, 1.122},
    {"HFO1234ZE", Dampf::R134A, Liquid::R134A, 114, Waerme::CpA, 1.035, 0.95, 1.122},
    {"R401A", Dampf::R401A, Liquid::R401A, 100.8191, Waerme::CpA, 0.863, 0.863, 0.885},
    {"R401B", Dampf::R401B, Liquid::R401B, 98.2267, Waerme::CpA, 0.837, 0.837, 0.858},
    {"R402A", Dampf::R402A, Liquid::R402A, 105.7524, Waerme::CpA, 0.929, 0.929, 1.007},
    {"R402B", Dampf::R402B, Liquid::R402B, 98.3638, Waerme::CpA, 0.889, 0.889, 0.94},
    {"R403B", Dampf::R502, Liquid::R502, 111.6, Waerme::R502, 1, 1, 0.908},
    {"ISC_69L", Dampf::R502, Liquid::R502, 111.6, Waerme::R502, 1, 1, 0.908},
    {"R404A", Dampf::R404A, Liquid::R404A, 97.6, Waerme::CpA, 1.053, 1.053, 1.14},
    {"R407A", Dampf::R407A, Liquid::R407A, 90.1, Waerme::CpA, 0.98, 0.98, 1.039},
    {"R407C", Dampf::R407C, Liquid::R407C, 80.13, Waerme::CpA, 0.995, 0.995, 0.995, 1.034},
    {"AC9000", Dampf::R407C, Liquid::R407C, 80.13, Waerme::CpA, 0.995, 0.995, 0.995, 1.034},
    {"R407F", Dampf::R407C, Liquid::R407C, 82.1, Waerme::CpA, 0.978, 0.969, 1.14},
    {"R407H", Dampf::R407C, Liquid::R407C, 88.71, Waerme::CpA, 1.08, 0.919, 1.23},
    {"R408A", Dampf::R401A, Liquid::R401A, 87, Waerme::CpA, 0.95, 0.95, 1.05, 1.039, 1.105, 1.105,
     1.105, 0.824, 0.834},
    {"R409A", Dampf::R401A, Liquid::R401A, 97.4, Waerme::CpA, 0.832, 0.832, 0.855, 1.033, 1.045,
     1.045, 1.045, 1.12, 1.25},
    {"R410A", Dampf::R401A, Liquid::R401A, 81, Waerme::CpA, 0.97, 0.97, 1.2, 1.043, 1.045, 1.045,
     1.045, 1.12, 1.25},
    {"R413A", Dampf::R134A, Liquid::R134A, 102, Waerme::CpA, 1.028, 1.029, 1.125},
    {"ISC_49", Dampf::R134A, Liquid::R134A, 102.46208805, Waerme::CpA, 1.036, 0.92, 1.013},
    {"R417A", Dampf::R22, Liquid::R22, 106.6, Waerme::CpA, 1.41, 0.909, 1.348},
    {"ISC_59", Dampf::R22, Liquid::R22, 106.6, Waerme::CpA, 1.41, 0.909, 1.348},
    {"R422A", Dampf::R22, Liquid::R22, 113.5, Waerme::CpA, 1.02, 1.11, 1.348},
    {"ISC_79", Dampf::R22, Liquid::R22, 113.5, Waerme::CpA, 1.02, 1.11, 1.348},
    {"R422D", Dampf::R22, Liquid::R22, 109.8, Waerme::CpA, 1.02, 1.08, 1.233},
    {"ISC_29", Dampf::R22, Liquid::R22, 109.8, Waerme::CpA, 1.02, 1.08, 1.233},
    {"ISC_89", Dampf::R22, Liquid::R22, 113.9, Waerme::CpA, 0.842, 0.93, 1.12},
    {"RS45", Dampf::R22, Liquid::R22, 106.6, Waerme::CpA, 1.05, 0.94, 1.2},
    {"FX_90", Dampf::R22, Liquid::R22, 109.3, Waerme::CpA, 0.98, 1.06, 1.07},
    {"R427A", Dampf::R407C, Liquid::R407C, 90.4, Waerme::CpA, 0.9, 0.965, 0.985, 1.041},
    {"R437A", Dampf::R134A, Liquid::R134A, 99.404542, Waerme::CpA, 1.058, 0.97, 1.12},
    {"R438A", Dampf::R407C, Liquid::R407C, 104.645914, Waerme::CpA, 0.89, 0.87, 0.945, 1.041},
    {"R448A", Dampf::R407C, Liquid::R407C, 96.9304, Waerme::CpA, 0.845, 0.831, 1.179, 1.041},
    {"R449A", Dampf::R407C, Liquid::R407C, 97.3418, Waerme::CpA, 0.855, 0.845, 1.175},
    {"R450A", Dampf::R134A, Liquid::R134A, 108.96, Waerme::CpA, 1.058, 0.97, 1.145},
    {"R452A", Dampf::R407C, Liquid::R407C, 103.5, Waerme::CpA, 0.928, 0.91, 1.16},
    {"R454A", Dampf::R407C, Liquid::R407C, 80.5, Waerme::CpA, 1.015, 0.966, 1.228, 1.041},
    {"R454B", Dampf::R401A, Liquid::R401A, 62.6, Waerme::CpA, 1.187, 1.052, 1.326, 1.043, 1.045,
     1.045, 1.045, 1.12, 1.25},
    {"R454C", Dampf::R401A, Liquid::R401A, 90.8, Waerme::CpA, 0.96, 0.98, 1.234, 1.043, 1.045,
     1.045, 1.045, 1.12, 1.25},
    {"R455A", Dampf::R407C, Liquid::R407C, 98.5743, Waerme::CpA, 0.895, 0.88, 1.273},
    {"R502", Dampf::R502, Liquid::R502, 111.6, Waerme::R502, 1, 1, 0.908},
    {"R507", Dampf::R502, Liquid::R507, 98.9, Waerme::R507, 1, 1, 1, 1.043, 1, 1, 0.92, 0.78, 0.78},
    {"R508A", Dampf::R23, Liquid::R23, 95.39, Waerme::R508, 1.067, 1.116, 1.141},
    {"R508B", Dampf::R23, Liquid::R23, 95.39, Waerme::R508, 1.067, 1.116, 1.141},
    {"R513A", Dampf::R134A, Liquid::R134A, 108.72, Waerme::CpA, 1.058, 0.97, 1.155},
    {"HX4", Dampf::R404A, Liquid::R404A, 94.5, Waerme::CpA_linear, 0.9, 0.9, 0.97},
};

constexpr bool in_gleicher_ordnung() {
  if (std::size(korrelationen) != std::size(katalog)) return false;
  for (std::size_t i = 0; i < std::size(katalog); ++i)
    if (korrelationen[i].name != katalog[i].name) return false;
  return true;
}
static_assert(in_gleicher_ordnung(), "every entry of the catalogue has its correlations");

}  // namespace

const Korrelation& korrelation(const KMEintrag& eintrag) {
  return korrelationen[&eintrag - katalog];
}

}  // namespace polarkreis
