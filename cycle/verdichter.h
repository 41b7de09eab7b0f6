#pragma once

namespace polarkreis {

/// Factor of the compressor design, the inverse of its efficiency.
double Bauart_Faktor(int Bauart);

/// What the discharge temperature takes from the pressures and the inlet, whatever the compressor's
/// size.
struct Verdichtung {
  double a = 0, b = 0, c = 0;
  double T_1 = 0, T_2 = 0;  ///< K
};

}  // namespace polarkreis
