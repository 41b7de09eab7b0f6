#pragma once

namespace polarkreis {

/// What the logger's jobs report to. All calls come from the thread that runs the job.
class Messempfaenger {
 public:
  virtual ~Messempfaenger() = default;
  /// Lets events through: a press of STOP is served here.
  virtual void Ereignisse() {}
  /// The start button, the port box or the progress bar changed.
  virtual void Zustand() {}
  /// Row 3 has been computed.
  virtual void Messwert() {}
  /// The busy cursor is shown, or goes.
  virtual void Sanduhr(bool) {}
};

}  // namespace polarkreis
