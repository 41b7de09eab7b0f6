#pragma once

namespace polarkreis {

/// Factor of the compressor design, the inverse of its efficiency.
double Bauart_Faktor(int Bauart);

}  // namespace polarkreis
