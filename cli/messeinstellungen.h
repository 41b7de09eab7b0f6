#pragma once

#include <string>

#include "ausgabe.h"
#include "diagnostics/messung.h"
#include "refrigerant/sole.h"
#include "shell/captions.h"

namespace polarkreis::cli {

/// The settings of a measurement: the form's controls under their names, as a JSON file hands them
/// over. They override what a measurement file holds.
class Messeinstellungen {
 public:
  /// None.
  Messeinstellungen() = default;
  /// Reads and checks the file; an empty name gives none. Throws `Abbruch` with what to do for a
  /// file that is none, an unknown name or a value that doesn't fit.
  explicit Messeinstellungen(const std::string& datei);

  /// The same from an object at hand.
  static Messeinstellungen von_json(Json objekt);

  /// What a load must know before it reads: the plausibility filter.
  void vor_dem_laden(Messung& messung) const;
  /// All of them, in the order of the file. Throws `Abbruch` for a secondary fluid that isn't
  /// known, before any is set.
  void anwenden(Messung& messung, Solen& solen, const Captions& captions) const;

  bool hat(const std::string& name) const { return json_.contains(name); }

 private:
  void pruefen() const;
  Json json_ = Json::object();
};

/// The names, with commas between.
std::string messeinstellungen_namen();

}  // namespace polarkreis::cli
