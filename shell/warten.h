#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// Date and clock time.
struct Zeitpunkt {
  int Jahr = 2000, Monat = 1, Tag = 1;
  int Stunde = 0, Minute = 0, Sekunde = 0, Millisekunde = 0;
};
/// "hh:mm:ss", "dd.mm.yyyy", and the two as they stand in a file's name: "yyyy-mm-dd hh-mm-ss".
std::string Uhrzeit_Text(const Zeitpunkt& zeit);
std::string Datum_Text(const Zeitpunkt& zeit);
std::string Zeitstempel_Dateiname(const Zeitpunkt& zeit);

/// Clock of the program: a test's clock makes hours take milliseconds.
class Uhr {
 public:
  virtual ~Uhr() = default;
  /// The present time, in the system's time zone and in UTC.
  virtual Zeitpunkt Ortszeit() = 0;
  virtual Zeitpunkt UTC() = 0;
  /// Pauses for n milliseconds and yields to the interface where there is one.
  virtual void Warten(int n) = 0;
};

/// What a long job reports to.
class Fortschritt {
 public:
  virtual ~Fortschritt() = default;
  /// A step of the job with its text; the named yield point. The desktop waits and repaints here,
  /// the command line only paints. False asks the job to stop.
  virtual bool schritt(std::string_view text, int nummer, int anzahl) = 0;
};

}  // namespace polarkreis
