#pragma once

#include <array>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// The file-fed source that stands in for the serial line: a control system writes its newest
/// values into a text file, quoted items, a time stamp and 32 values.
class Messquelle {
 public:
  explicit Messquelle(Ablage& ablage) : ablage_(ablage) {}

  static constexpr int aktiv = 111;
  /// `aktiv` while the source is, else 0.
  int Quelle_ISS = 0;
  /// Where the two kinds of control system write.
  std::array<std::string, 2> Pfad{"C:\\Daten\\KKP_FMD_TEMP.txt", "C:\\TK_output\\TK_FMD_TEMP.txt"};

  /// `kind` 1 or 2 chooses the path; an index above 1 inserts "_" and itself before ".txt". An
  /// index outside 1 to 5 is a probe: it sets `Quelle_ISS` to 111 where the file holds something,
  /// else to 0, and the result is empty. Index 1 to 5: the 32 values in the grammar of a logger's
  /// reply.
  std::string Check_ISS_da(int index, int kind);

 private:
  Ablage& ablage_;
};

}  // namespace polarkreis
