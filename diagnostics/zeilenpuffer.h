#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// Cuts what comes from the line, bit by bit, into lines that end with CR LF. "error" ends the
/// transfer: what stands behind it is dropped, the lines before it count.
class Zeilenpuffer {
 public:
  /// Characters without a line end that are taken for noise.
  static constexpr std::size_t Laenge_max = 20000;

  /// Takes what was read; false if it was the last: nothing, an "error", or noise.
  bool nimm(std::string_view gelesen) {
    puffer_.erase(0, vorn_);
    vorn_ = 0;
    puffer_ += gelesen;
    const std::size_t fehler = puffer_.find("error");
    if (fehler != std::string::npos) puffer_.resize(fehler);
    return !gelesen.empty() && fehler == std::string::npos &&
           (puffer_.size() < Laenge_max || puffer_.find("\r\n") != std::string::npos);
  }
  /// The next whole line, without its end; valid until the next `nimm`.
  bool naechste(std::string_view& zeile) {
    const std::size_t ende = puffer_.find("\r\n", vorn_);
    if (ende == std::string::npos) return false;
    zeile = std::string_view(puffer_).substr(vorn_, ende - vorn_);
    vorn_ = ende + 2;
    return true;
  }

 private:
  std::string puffer_;
  std::size_t vorn_ = 0;  // where the next line begins
};

}  // namespace polarkreis
