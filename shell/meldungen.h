#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace polarkreis {

/// The message log: what was ignored, and what was taken instead. One line each, with time, place,
/// file and remedy, kept in memory (the newest 1000) for the desktop's list and `--verbose`, and
/// appended to "log/polarkreis.log" in the data folder, which is rotated to "polarkreis.log.1" at 1
/// MB. A log that can't be written is silent: it never disturbs the work that it tells of. Never
/// hand it a password.
class Meldungen {
 public:
  /// Lines go to memory only until a folder is named.
  void setze_ordner(std::string datenordner) { ordner_ = std::move(datenordner); }
  /// A listener that gets each line as it comes (`--verbose`); empty for none.
  void setze_hoerer(std::function<void(const std::string&)> hoerer) { hoerer_ = std::move(hoerer); }

  void melde(std::string_view ort, std::string_view datei, std::string_view text);

  /// Counts a failing statement of a calculation by its place, at no cost beyond one increment;
  /// `zaehler_melden` tells the counts once, at the calculation's end, and starts over.
  void zaehle(const char* ort) { ++zaehler_[ort]; }
  void zaehler_melden();

  const std::deque<std::string>& zeilen() const { return zeilen_; }

 private:
  std::string ordner_;
  std::deque<std::string> zeilen_;
  std::map<const char*, std::size_t> zaehler_;
  std::function<void(const std::string&)> hoerer_;
};

}  // namespace polarkreis
