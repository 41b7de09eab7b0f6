#pragma once

#include <array>
#include <optional>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// What a token position of a reply measures.
enum class Kanalart {
  elektrisch,  ///< positions 1-6, 17-22, 33-38, 51-53
  analog,      ///< pressures: 7, 8, 23, 24, 39, 40
  Temperatur,  ///< 9-16, 25-32, 41-48
  keine,       ///< 49, 50 and whatever lies beyond
};
Kanalart Kanalart_von(int position);

/// Voltage-true conversion of a pressure value to the sensor that is really there. `kind` 2 a small
/// differential pressure in Pa, 3 bar to Pa, 4 and 5 sensors up to 100 and 120 bar, 1 and all
/// others up to 50 bar. Cut to three decimals, except kind 3.
double P_convert(double value, int kind);

/// The kind of conversion that a position needs, by the function code of the first unit; nothing
/// where it needs none.
std::optional<int> Wandlung(int position, int Sensor_Code_1);

/// One channel of the scaling of the free inputs: signal and physical range.
struct Skalierung {
  struct Bereich {
    std::string Min, Max, Units;
    bool operator==(const Bereich&) const = default;
  };
  Bereich Signal, Groesse;
  bool operator==(const Skalierung&) const = default;
};

/// "FMD_SP_CAL.dat": the four free inputs " Orbiter 1 inX7" to " Orbiter 2 inX8", and the
/// monitoring switch.
struct Eingangsskalierung {
  std::array<Skalierung, 4> Kanal;
  std::optional<std::string> Monitoring_Check;  ///< "0" or "1"; nothing where no file told it
  bool operator==(const Eingangsskalierung&) const = default;
};
/// Reads the file's text. A missing (or empty) file makes every text empty and the switch "0"; a
/// short one leaves in `target` what lies beyond its end.
void Eingangsskalierung_lesen(const std::optional<std::string>& text, Eingangsskalierung& target);
/// The file's text: 24 lines and the switch.
std::string Eingangsskalierung_schreiben(const Eingangsskalierung& skalierung);

/// The two files of the calibration.
inline constexpr const char* Offsetdatei = "FMD_OFFS.dat";
inline constexpr const char* Skalierungsdatei = "FMD_SP_CAL.dat";

/// Channels: where the positions of a reply go, their offsets and scalings. One object serves the
/// link, the imports and the kernel.
class Kanaele {
 public:
  explicit Kanaele(Ablage& ablage) : ablage_(ablage) {}

  /// Reply class of the base unit: 0 none, 1 a monitoring box (three inputs wired otherwise), 2 a
  /// reply with an "A".
  int Box_Typ = 0;
  /// Offsets, slots 1 to 48 (index 0 is not used).
  std::array<double, 49> Offset_Wert{};
  /// Caption of the mode, set by `Kablib_x7_8`.
  std::string Label21;

  /// Mode 1: the table column of a position, 67 for one without. Mode 2 (positions 1 to 8): columns
  /// of a foreign source's temperatures. Mode 3 (positions 9 to 16): the offset slot. Others: 0.
  int Chanel_festleg(int position, int mode) const;

  /// Reads "FMD_OFFS.dat": the first 32 values, so the slots of the second remote unit stay as they
  /// were. A short file leaves the slots beyond its end, a missing one gives zeros.
  void Offset_laden();
  /// Writes the 48 values, one a line; false if the file could not be written (see
  /// `Ablage::letzter_fehler`).
  bool Offset_Speich();

  /// Scales a free input by "FMD_SP_CAL.dat": `channel` 1 to 4. Mass flow in kg/h, volume flow in
  /// m³/h; empty where there is no scaling. `kind` has no meaning, callers give 0. Sets `Box_Typ`
  /// and `Label21` by the switch in the same file: a missing file gives 0, a file that ends before
  /// the switch leaves both as they are.
  double Kablib_x7_8(double value, int kind, int channel);
  /// The scalings in force; a form shows the first two. Valid until the next call.
  const Eingangsskalierung& Skalierungen();

 private:
  void Modus_setzen(const std::optional<std::string>& schalter);

  Ablage& ablage_;
  Dateikopie<Eingangsskalierung> skalierung_;
};

}  // namespace polarkreis
