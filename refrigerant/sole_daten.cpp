#include "refrigerant/sole_daten.h"

namespace polarkreis {

namespace {

// Ethylene glycol and propylene glycol in water, % by mass: Melinder 2010.
constexpr Solepolynom kEthylenDichte{31.728,
                                     30.8462,
                                     {{{1034, 131.1, 0.749, -106.2, -96.23, 489.1},
                                       {-0.4781, -0.6876, 0.7855, 1.229, -7.211},
                                       {-0.002692, 0.004805, -0.003995, -0.01153},
                                       {4.725e-06, 1.69e-06, 4.982e-05}}}};
constexpr Solepolynom kEthylenWaerme{31.728,
                                     30.8462,
                                     {{{3737, -1799, -993.3, 2610, 1537, -16180},
                                       {2.93, 10.46, 3.516, -1.189, -42.72},
                                       {-0.004675, -0.04147, 0.05109, -0.1643},
                                       {-1.389e-05, 1.847e-05, -0.0007138}}}};
constexpr Gefrierstelle kEthylenGefrieren[] = {
    {0, 0},      {5, -1.6},   {10, -3.4},  {15, -5.4}, {20, -7.9},  {25, -11},  {30, -14.6},
    {35, -18.8}, {40, -23.8}, {45, -29.5}, {50, -36},  {55, -43.2}, {60, -51.2}};
constexpr Solepolynom kPropylenDichte{32.7083,
                                      30.7031,
                                      {{{1018, 76.04, -24.98, -155, -113.1, 234.2},
                                        {-0.5406, -0.945, 0.27, 2.829, -2.221},
                                        {-0.002666, 0.005541, -0.004018, -0.007175},
                                        {1.347e-05, -1.343e-05, 3.376e-05}}}};
constexpr Solepolynom kPropylenWaerme{32.7083,
                                      30.7031,
                                      {{{3882, -1304, -1598, 353.9, 5000, -4959},
                                        {2.699, 5.07, 0.9534, 31.02, -71.35},
                                        {-0.001659, -0.004752, 0.1167, -0.295},
                                        {-1.032e-05, 0.0001522, -0.000487}}}};
constexpr Gefrierstelle kPropylenGefrieren[] = {
    {0, 0},      {5, -1.2},   {10, -2.9},  {15, -4.9},  {20, -7.2},  {25, -9.8}, {30, -12.8},
    {35, -16.3}, {40, -20.6}, {45, -25.8}, {50, -32.2}, {55, -40.2}, {60, -50}};

// Inhibited glycols, % by volume of the product: fitted to the tables of their makers.
constexpr Solepolynom kAntifrogenNDichte{20,
                                         35,
                                         {{{1057.87, 167.782, -24.8226, -86.8173},
                                           {-0.4074, -0.654584, -0.116984, -0.019009},
                                           {-0.00287757, 0.0048536, 0.000867968},
                                           {9.46587e-06, -7.26304e-06}}}};
constexpr Solepolynom kAntifrogenNWaerme{20,
                                         35,
                                         {{{3629.68, -2060.06, -416.777, 3403.76},
                                           {1.86916, 9.21286, 4.39192, -36.5449},
                                           {0.00565562, -0.00611885, -0.0357474},
                                           {1.18428e-06, -3.46026e-05}}}};
constexpr Gefrierstelle kAntifrogenNGefrieren[] = {
    {10, -4.9},  {15, -7.7},  {20, -10.6}, {25, -13.6}, {30, -16.9}, {35, -20.7},
    {40, -25.2}, {45, -30.5}, {50, -36.7}, {55, -44.1}, {60, -52.7}};
constexpr Solepolynom kAntifrogenLDichte{20,
                                         35,
                                         {{{1034.21, 100.572, -32.5968, -115.854},
                                           {-0.526303, -0.72357, -0.12245, 1.31869},
                                           {-0.00281597, 0.0015894, 0.0034115},
                                           {1.23939e-05, 6.55239e-06}}}};
constexpr Solepolynom kAntifrogenLWaerme{20,
                                         35,
                                         {{{3808, -1526.09, -1220.52, 63.1184},
                                           {2.24571, 8.32987, 1.0385, -1.9314},
                                           {0.00181602, -0.0216073, 0.00860622},
                                           {5.01569e-06, 0.000128945}}}};
constexpr Gefrierstelle kAntifrogenLGefrieren[] = {
    {10, -3},    {15, -4.8},  {20, -7.2},  {25, -10.1}, {30, -13.5}, {35, -17.5},
    {40, -22.1}, {45, -27.2}, {50, -32.9}, {55, -39.2}, {60, -46}};
constexpr Solepolynom kGlykosolNDichte{20,
                                       35,
                                       {{{1051.98, 157.989, -26.2516, -2.29911},
                                         {-0.507199, -0.484779, -0.081587, 0.433661},
                                         {-0.00139693, 9.02878e-05, 0.00200387},
                                         {1.43072e-06, -2.69276e-06}}}};
constexpr Solepolynom kGlykosolNWaerme{20,
                                       35,
                                       {{{3623.22, -1895.91, 48.6247, -178.046},
                                         {2.24135, 5.62307, -0.824274, 7.78139},
                                         {0.00136399, -0.00122829, 0.00468752},
                                         {-1.01726e-05, 5.37532e-06}}}};
constexpr Gefrierstelle kGlykosolNGefrieren[] = {{10, -3},  {15, -5},  {20, -8},  {25, -12},
                                                 {30, -16}, {35, -21}, {40, -26}, {45, -32},
                                                 {50, -38}, {55, -45}, {60, -53}};

// Potassium acetate, % by volume of the concentrate: fitted to the table of its maker.
constexpr Solepolynom kTyfoxitDichte{
    20, 70, {{{1175.24, 259.268, 27.2736}, {-0.399487, -0.00386118}}}};
constexpr Solepolynom kTyfoxitWaerme{20, 70, {{{3183.5, -1084.39, 416.324}, {2.41735, 1.61133}}}};
constexpr Gefrierstelle kTyfoxitGefrieren[] = {{40.1, -10}, {60, -20}, {79.6, -40}, {94.3, -55}};

/// A fluid that is sold ready for use: the figures at `t0` and their change with temperature.
constexpr Solepolynom fertig(double t0, double a, double b, double c = 0, double d = 0) {
  return {t0, 100, {{{a}, {b}, {c}, {d}}}};
}
template <int t>
constexpr Gefrierstelle kFertigGefrieren[] = {{100, t}};

constexpr double kTemperBis = 30;    // °C, the end of the maker's figures
constexpr double kThermeraBis = 60;  // °C, where the estimate ends

/// Temper, potassium acetate and formate: the maker's polynomials.
template <int t>
constexpr Soledaten temper(std::string_view name, Solepolynom dichte, Solepolynom waerme) {
  return {name,   t,     Konzentrationsregel::fertig, 0, 0, kTemperBis, kFertigGefrieren<t>,
          dichte, waerme};
}

/// Thermera, betaine: estimated from the share of betaine.
template <int t>
constexpr Soledaten thermera(std::string_view name, double rho20, double cp20, double anstieg) {
  return {name,
          t,
          Konzentrationsregel::fertig,
          0,
          0,
          kThermeraBis,
          kFertigGefrieren<t>,
          fertig(20, rho20, -0.45),
          fertig(20, cp20, anstieg)};
}

constexpr Soledaten kSolen[] = {
    {"", -30, Konzentrationsregel::Glykol, 1, 0.3799, 100, kEthylenGefrieren, kEthylenDichte,
     kEthylenWaerme},
    {"", -30, Konzentrationsregel::Glykol, 2, 0.4142, 100, kPropylenGefrieren, kPropylenDichte,
     kPropylenWaerme},
    {"Antifrogen N", -30, Konzentrationsregel::Glykol, 3, 0.3388, 80, kAntifrogenNGefrieren,
     kAntifrogenNDichte, kAntifrogenNWaerme},
    {"Antifrogen L", -30, Konzentrationsregel::Glykol, 4, 0.3973, 80, kAntifrogenLGefrieren,
     kAntifrogenLDichte, kAntifrogenLWaerme},
    {"Glykosol N", -30, Konzentrationsregel::Glykol, 5, 0.3587, 100, kGlykosolNGefrieren,
     kGlykosolNDichte, kGlykosolNWaerme},
    {"TYFOXIT_1.XX", -55, Konzentrationsregel::Konzentrat, 0, 0, 40, kTyfoxitGefrieren,
     kTyfoxitDichte, kTyfoxitWaerme},
    temper<-10>("Temper -10", fertig(0, 1090, -0.2), fertig(0, 3541.83, 2.01, -0.0132589)),
    temper<-15>("Temper -15", fertig(0, 1118.5, -0.210714285, -0.000714285),
                fertig(0, 3402.175, 2.435, -0.0127631)),
    temper<-20>("Temper -20", fertig(0, 1147, -0.22142857, -0.00142857),
                fertig(0, 3262.52, 2.86, -0.0122673)),
    temper<-30>("Temper -30", fertig(0, 1183.859307, -0.31085859, -0.00103896, 1.76768e-05),
                fertig(0, 3075.04, 2.99, -0.0270232)),
    temper<-40>("Temper -40", fertig(0, 1214.839827, -0.37819865, -0.00109307, 1.6835e-05),
                fertig(0, 2977.88, 2.28, -0.0387227)),
    temper<-55>("Temper -55", fertig(0, 1249.753467, -0.47629615, -0.00117189, 1.98824e-05),
                fertig(0, 2839.85, 2.29, -0.0248618)),
    thermera<-10>("Thermera -10", 1047, 3619, 3.02),
    thermera<-15>("Thermera -15", 1059, 3489, 3.71),
    thermera<-20>("Thermera -20", 1069, 3392, 4.23),
    thermera<-25>("Thermera -25", 1076, 3313, 4.65),
    thermera<-30>("Thermera -30", 1082, 3248, 5),
    thermera<-35>("Thermera -35", 1088, 3192, 5.3),
    thermera<-40>("Thermera -40", 1093, 3143, 5.56),
};

}  // namespace

double Solepolynom::wert(double t, double c) const {
  const double x = (c - c0) / 100;
  double summe = 0;
  for (std::size_t i = a.size(); i-- > 0;) {
    double zeile = 0;
    for (std::size_t j = a[i].size(); j-- > 0;) zeile = zeile * x + a[i][j];
    summe = summe * (t - t0) + zeile;
  }
  return summe;
}

double Soledaten::Gefriertemperatur(double c) const {
  if (!(c > c_von())) return Gefrierkurve.front().t;
  for (std::size_t i = 1; i < Gefrierkurve.size(); ++i) {
    const Gefrierstelle &unten = Gefrierkurve[i - 1], &oben = Gefrierkurve[i];
    if (c < oben.c) return unten.t + (oben.t - unten.t) * (c - unten.c) / (oben.c - unten.c);
  }
  return Gefrierkurve.back().t;
}

std::span<const Soledaten> Sole_Daten() {
  return kSolen;
}

}  // namespace polarkreis
