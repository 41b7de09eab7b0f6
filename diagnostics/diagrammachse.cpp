#include "diagnostics/diagrammachse.h"

#include <algorithm>
#include <cmath>

#include "diagnostics/kern.h"

namespace polarkreis {

namespace {

/// The largest of 1, 2 and 5 times a power of ten that parts the span into at least five steps.
double schritt_von(double spanne) {
  const double zehner = std::pow(10, std::floor(std::log10(spanne / 5)));
  const double rest = spanne / 5 / zehner;
  if (rest >= 5) return 5 * zehner;
  return rest >= 2 ? 2 * zehner : zehner;
}

Achsbereich ab_null(double oben) {
  Achsbereich bereich;
  if (oben > 0) bereich = {0, oben};
  return bereich;
}

}  // namespace

std::string Groesse_Name(Groesse groesse, const Captions& captions) {
  switch (groesse) {
    case Groesse::Druck:
      return captions.text(Caption::Druck);
    case Groesse::Temperatur:
      return captions.text(Caption::Temperatur);
    case Groesse::Leistung:
      return captions.text(Caption::Leistung);
    case Groesse::Leistungszahl:
      return captions.text(Caption::Leistungszahl);
    case Groesse::Spannung:
      return "Spannung";
    case Groesse::Strom:
      return "Stromstärke";
  }
  return {};
}

std::string Groesse_Einheit(Groesse groesse) {
  switch (groesse) {
    case Groesse::Druck:
      return "bar g";
    case Groesse::Temperatur:
      return "°C";
    case Groesse::Leistung:
      return "kW";
    case Groesse::Leistungszahl:
      return "-";
    case Groesse::Spannung:
      return "V";
    case Groesse::Strom:
      return "A";
  }
  return {};
}

void Achsbereich::nimm(double wert) {
  if (!std::isfinite(wert)) return;
  unten = std::fmin(unten, wert);
  oben = std::fmax(oben, wert);
}

Achsbereich Skalenbereich(Groesse groesse, const Skala& skala) {
  switch (groesse) {
    case Groesse::Druck:
      return ab_null(skala.p_max - Atmosphaere);
    case Groesse::Temperatur:
      return skala.t0_min <= skala.tc_max ? Achsbereich{skala.t0_min, skala.tc_max} : Achsbereich{};
    case Groesse::Leistung:
      return ab_null(skala.Q_max);
    case Groesse::Leistungszahl:
      return ab_null(skala.EER_max);
    case Groesse::Spannung:
    case Groesse::Strom:
      break;
  }
  return {};
}

Achsbereich geglaettet(Achsbereich bereich) {
  if (!std::isfinite(bereich.unten) || !std::isfinite(bereich.oben)) return {0, 1};
  double spanne = bereich.oben - bereich.unten;
  if (spanne == 0) spanne = std::max(std::abs(bereich.oben), 1.0);
  const double schritt = schritt_von(spanne);
  Achsbereich glatt{std::floor(bereich.unten / schritt) * schritt,
                    std::ceil(bereich.oben / schritt) * schritt};
  if (glatt.unten == glatt.oben) {
    glatt.unten -= schritt;
    glatt.oben += schritt;
  }
  return std::isfinite(glatt.oben - glatt.unten) ? glatt : bereich;
}

}  // namespace polarkreis
