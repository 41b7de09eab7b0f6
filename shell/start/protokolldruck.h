#pragma once

#include "diagnostics/protokoll.h"
#include "simulation/bericht.h"

namespace polarkreis {

/// Prints the result of a measurement: opens its protocol in the report editor, whose pages go to
/// the printer. False, and no lines, where no protocol was written.
inline bool DiaG_print(ErgebEdit& editor) {
  return editor.oeffnen(Protokolldatei);
}

}  // namespace polarkreis
