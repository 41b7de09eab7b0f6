#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/einheiten.h"
#include "shell/wert.h"

namespace polarkreis {

struct Soledaten;

/// Secondary fluids. Brines are named by the lines of "SoleBez.<language>"; product names and
/// series are the same in all languages. A name is recognised in any case and in any language
/// present, so that a selection stays valid when the language changes.
///
/// The concentration of the two plain glycols is in % by mass, that of the products in % by volume
/// of the product, and a fluid that is sold ready for use has 100. Sources of the figures, and how
/// good they are: docs/data-brines.md.
class Solen {
 public:
  Solen(Ablage& ablage, const Captions& captions);

  /// The names in the order of the file, in the present language.
  std::vector<std::string> Namen();
  bool bekannt(std::string_view name);
  /// Lowest temperature in °C; empty for an unknown name.
  double Sole_Grenzen(std::string_view name);
  /// Concentration in % that the frost protection temperature `t` [°C] asks for; empty for an
  /// unknown name. The lowest temperature is not looked at.
  double Konzentration(std::string_view name, double t);
  /// Temperature in °C at which the first crystals form at the concentration `c` [%]. For glycols
  /// below -15 °C it lies above the frost protection temperature that asked for `c`: the fluid
  /// turns to slush on the way down (see docs/data-brines.md).
  double Gefriertemperatur(std::string_view name, double c);

  /// Density in kg/m³ and specific heat in kJ/(kg K) at `t` [°C] and the concentration `c` [%].
  /// Outside the published range the nearest published state counts. Empty for an unknown name.
  double Dichte(std::string_view name, double t, double c);
  double Waermekapazitaet(std::string_view name, double t, double c);

  /// The frost protection input: a value at or above 0 °C is replaced by -15 °C; one below the
  /// limit gives the message and no concentration. All is empty for an unknown name.
  struct Frostschutz {
    double t = leer;              ///< the temperature that counts, °C
    double Konzentration = leer;  ///< %
    std::string Meldung;          ///< why there is none
    std::string Text;             ///< temperature and concentration as the dialog shows them
  };
  /// `einheiten` are the units of the dialog, in which the input and the texts are.
  Frostschutz Frostschutz_Eingabe(std::string_view name, std::string_view eingabe,
                                  const Einheiten& einheiten = {});

 private:
  struct Sprachnamen {
    std::vector<std::string> namen;
    std::vector<std::string> gross;  // as they are compared
  };
  const Soledaten* finde(std::string_view name);
  std::size_t zeile_in(std::size_t sprache, const std::string& gesucht);
  const Sprachnamen& namen_in(std::size_t sprache);
  std::string name(std::size_t n);

  Ablage& ablage_;
  const Captions& captions_;
  std::vector<std::string> feste_namen_;          // as they are compared; empty where there is none
  std::vector<Dateikopie<Sprachnamen>> dateien_;  // one for each language
  std::size_t gefunden_in_ = 0;  // the language of the last name found: it is looked at first
};

/// Water at atmospheric pressure: density in kg/m³ and specific heat in kJ/(kg K), 0 to 100 °C;
/// outside that range the value of its end. Kell, J. Chem. Eng. Data 20 (1975) 97; Popiel and
/// Wojtkowiak, Heat Transfer Eng. 19 (1998) 87.
double Wasser_Dichte(double t);
double Wasser_Waermekapazitaet(double t);

}  // namespace polarkreis
