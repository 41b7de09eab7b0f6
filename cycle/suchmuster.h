#pragma once

#include <array>
#include <string>
#include <string_view>

namespace polarkreis {

/// A text to be sought in bytes of the code page 850, whatever the case: as if both were UTF-8 in
/// capitals, but without making one of each field. Blanks around the text don't count.
class Suchmuster {
 public:
  explicit Suchmuster(std::string_view text);

  /// True if the bytes hold the text; the empty text is in all.
  bool in(std::string_view bytes) const;

 private:
  static std::size_t nummer(char byte) { return static_cast<unsigned char>(byte); }

  std::array<char, 256> vertreter_{};  // one byte for all those with the same capital
  std::string gesucht_;                // of such bytes
  bool moeglich_ = true;               // false for a text that the page can't write
};

}  // namespace polarkreis
