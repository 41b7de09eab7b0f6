#pragma once

#include <functional>

#include "diagnostics/messung.h"
#include "shell/warten.h"

namespace polarkreis {

/// Which view a replay drives.
enum class Wiedergabeart { Zeitdiagramm, logph };

/// Replay: steps through the stored rows in time order as if they were measured now. It only says
/// which row is in view; the view takes what it shows from `DiaG_Dia::Real_time_DiaG`, `RI_Chart`
/// or the row's cycle.
class Wiedergabe {
 public:
  Wiedergabe(const Messung& messung, Uhr& uhr) : messung_(messung), uhr_(uhr) {}

  int Takt_ms = 500;  ///< pace: the wait between two rows
  int Pause = 0;      ///< pause mark, 0 or 1: the replay waits in front of the next row
  int zeile = 0;      ///< row in view; 0 in front of the first one
  /// Called after each step, with the row in view.
  std::function<void(Wiedergabeart art, int zeile)> beim_schritt;

  /// Replays from the row behind the one in view, from the first one where the last is in view.
  /// Returns behind the last row, or after `Stopp`. A call during a replay does nothing.
  void Play_DiaG();
  void Play_logph();
  /// Toggles the pause mark.
  void Pause_Logph() { Pause = Pause == 0 ? 1 : 0; }
  /// Ends the replay at its next step; the row in view stays.
  void Stopp() { gestoppt_ = true; }
  bool laeuft() const { return laeuft_; }

 private:
  void spiele(Wiedergabeart art);
  bool warte();

  const Messung& messung_;
  Uhr& uhr_;
  bool laeuft_ = false;
  bool gestoppt_ = false;
};

}  // namespace polarkreis
