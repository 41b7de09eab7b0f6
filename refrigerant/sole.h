#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/wert.h"

namespace polarkreis {

/// Secondary fluids. Brines are named by the lines of "SoleBez.<language>"; product names and
/// series are the same in all languages. Sources of the figures: docs/data-brines.md.
class Solen {
 public:
  Solen(Ablage& ablage, const Captions& captions) : ablage_(ablage), captions_(captions) {}

  /// The names in the order of the file.
  std::vector<std::string> Namen();
  /// True for a name of the list, in any case and in any language present.
  bool bekannt(std::string_view name);
  /// Lowest temperature in °C; empty for an unknown name.
  double Sole_Grenzen(std::string_view name);
  /// Concentration in % that protects down to `t` [°C]; empty for an unknown name. A series fluid
  /// that is sold ready for use has 100.
  double Konzentration(std::string_view name, double t);

  /// Density in kg/m³ and specific heat in kJ/(kg K) at `t` [°C] and the concentration `c` [%].
  /// Outside the published range the nearest published state counts. Empty for an unknown name.
  double Dichte(std::string_view name, double t, double c);
  double Waermekapazitaet(std::string_view name, double t, double c);

  /// The frost protection input: a value at or above 0 is replaced by -15; one below the limit
  /// gives the message and no concentration.
  struct Frostschutz {
    double t = leer;              ///< the temperature that counts, °C
    double Konzentration = leer;  ///< %
    std::string Meldung;          ///< why there is none
    std::string Text;             ///< temperature and concentration as the dialog shows them
  };
  Frostschutz Frostschutz_Eingabe(std::string_view name, std::string_view eingabe);

 private:
  int nummer(std::string_view name);  // line in "SoleBez", from 1; 0 for an unknown name
  Ablage& ablage_;
  const Captions& captions_;
};

/// Water at atmospheric pressure: density in kg/m³ and specific heat in kJ/(kg K), 0 to 100 °C.
double Wasser_Dichte(double t);
double Wasser_Waermekapazitaet(double t);

}  // namespace polarkreis
