#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace polarkreis {

/// Takes items, not lines, off a text: items stand between commas and line ends (LF or CR LF), in
/// double quotes or without. Blanks and tabs around an item are dropped, inside quotes kept; a
/// quoted item may hold commas, line ends and doubled quotes, which are read as one; what stands
/// between a closing quote and the next separator is dropped. An empty line is one empty item, a
/// comma at a line's end is followed by one empty item, and the last line end adds nothing.
class ItemLeser {
 public:
  explicit ItemLeser(std::string_view text) : rest_(text) {}

  /// True when no item is left.
  bool ende() const { return rest_.empty() && !komma_; }
  /// The next item into `target`; false, and `target` as it was, at the end.
  bool lies(std::string& target);
  /// The next item, or the empty text at the end.
  std::string lies();
  /// The next item without copying it where it holds no doubled quote; valid until the next call.
  bool lies_blick(std::string_view& target);

 private:
  std::string_view rest_;
  bool komma_ = false;  // a comma was the last separator: one more item follows, even an empty one
  std::string puffer_;
};

/// Appends one line to `target`: the items in double quotes (a quote inside is doubled), commas
/// between, CR LF.
void zeile_anhaengen(std::string& target, std::span<const std::string_view> items);
void zeile_anhaengen(std::string& target, std::initializer_list<std::string_view> items);

}  // namespace polarkreis
