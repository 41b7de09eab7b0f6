#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/einstellungen.h"
#include "shell/start/version.h"

namespace polarkreis {

/// The language form, opened at the first start, when the language is not yet fixed.
class Begruess {
 public:
  Begruess(Ablage& ablage, Einstellungen& einstellungen, Dialog& dialog)
      : ablage_(ablage), einstellungen_(einstellungen), dialog_(dialog) {}

  /// An option: its language code, and its text in the language itself.
  struct Option {
    std::string_view code;
    std::string_view text;
  };
  static constexpr int Optionszahl = 21;
  static const std::array<Option, Optionszahl>& Optionen();

  int Option_gewaehlt = 0;            ///< 1 to 21; 0 before a choice
  std::vector<std::string> Vorschau;  ///< the lines of the language's `Caption` file

  /// Takes option 1 to 21: writes its code to "kparam.dat" and shows the preview. False for another
  /// number, and where the code could not be written: the message is shown then, and the stored
  /// language stays.
  bool LanguageCheck(int option);

  /// The name of a language's `Caption` file; on the disk it may stand in any case.
  static std::string Captiondatei(std::string_view code);
  /// The option's text needs a wider field.
  static bool breiter_Text(std::string_view code) { return code == "TWA"; }
  /// Name and version of the program.
  static std::string Versionstext() { return Versionszeile(); }

 private:
  Ablage& ablage_;
  Einstellungen& einstellungen_;
  Dialog& dialog_;
};

}  // namespace polarkreis
