#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "shell/ablage.h"
#include "shell/dialog.h"
#include "simulation/energk.h"
#include "simulation/parameter.h"
#include "simulation/projektdaten.h"

namespace polarkreis {

/// The dialog of the numbers that stand behind the calculation.
class Vorgaben {
 public:
  Vorgaben(Projektdaten& projekt, Dialog& dialog) : projekt_(projekt), dialog_(dialog) {}

  static constexpr std::size_t SubActZahl = 7;

  /// --- The fields, as texts.
  std::array<std::string, 4> JMapOpt;          ///< pressure differences, bar
  std::array<std::string, SubActZahl> SubAct;  ///< the first seven items of "SubAct.dat"
  Energiedaten energie;                        ///< "energk.dat" of the project folder
  bool JMapOpt_sichtbar = false;               ///< the pressure differences are shown and stored
  bool offen = false;

  /// Opens in the mode of the caller, its module tag; the pressure differences belong to "SIM" and
  /// "SIM_PRO" alone. A "SubAct.dat" that is missing or empty is created first.
  void oeffnen(std::string_view modul);
  /// Puts the factory values into the fields; the files stay as they are. Without "Armstd.rdm" the
  /// fields of "SubAct.dat" stay too.
  void StandardButt();
  /// Stores and leaves. The last four items of "SubAct.dat" stay as they stand in the file, and the
  /// form of the project takes the cost figures over. False, the reason shown, and the dialog still
  /// open, if a file can't be written.
  bool Command3D2();
  /// Leaves without storing.
  void Command3D3() { offen = false; }

 private:
  Projektdaten& projekt_;
  Dialog& dialog_;
};

}  // namespace polarkreis
