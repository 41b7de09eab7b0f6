#include <array>

#include "climate/jahresgang.h"

namespace polarkreis {

namespace {

using Tagesgang = std::array<double, 24>;

// Share of the difference between day and night by which an hour is colder than the day's figure.
constexpr Tagesgang Kuehle{.7,  .8,  .9, .97, 1,   .99, .92, .84, .74, .64, .51, .38,
                           .18, .04, 0,  .01, .04, .11, .18, .26, .34, .42, .53, .61};
// Share in % of the difference between night and day by which an hour's load is above the night's.
constexpr Tagesgang Lastanteil{10, 10, 5,   5,  0,  5,  10, 15, 25, 35, 50, 60,
                               75, 90, 100, 90, 75, 60, 50, 40, 30, 25, 20, 15};
constexpr double Feuchte_Nacht = 92;

double der_Stunde(const Tagesgang& gang, int Stunde) {
  if (Stunde < 1 || Stunde > 24) return leer;
  return gang[static_cast<std::size_t>(Stunde - 1)];
}

}  // namespace

double Stundentemperatur(double T_Tag, double T_Nacht, int Stunde) {
  const double f = der_Stunde(Kuehle, Stunde);
  // T_Tag - (T_Tag - T_Nacht) may miss T_Nacht by its last bit, but 5:00 is the night's figure.
  if (f == 1) return T_Nacht;
  return T_Tag - f * (T_Tag - T_Nacht);
}

double Stundenlast_Anteil(int Stunde) {
  return der_Stunde(Lastanteil, Stunde);
}

double Stundenlast(double Last_Tag, double Last_Nacht, int Stunde) {
  return Last_Nacht + (Last_Tag - Last_Nacht) * Stundenlast_Anteil(Stunde) / 100;
}

double Stundenfeuchte(double R, double T, double T_Tag, double T_Nacht) {
  return R + Int((Feuchte_Nacht - R) * (1 - (T - T_Nacht) / (T_Tag - T_Nacht)));
}

}  // namespace polarkreis
