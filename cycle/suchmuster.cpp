#include "cycle/suchmuster.h"

#include <algorithm>
#include <map>

#include "shell/cp850.h"
#include "shell/text.h"

namespace polarkreis {

Suchmuster::Suchmuster(std::string_view text) {
  std::map<std::string, char> vertreter;  // by the capital
  for (std::size_t b = 0; b < vertreter_.size(); ++b) {
    const char byte = static_cast<char>(b);
    vertreter_[b] = vertreter.emplace(gross(aus_CP850({&byte, 1})), byte).first->second;
  }
  const std::string grosser = gross(getrimmt(text));
  for (std::string_view rest = grosser; !rest.empty();) {
    const std::string zeichen(erste_zeichen(rest, 1));
    const auto gefunden = vertreter.find(zeichen);
    moeglich_ = moeglich_ && gefunden != vertreter.end();
    if (moeglich_) gesucht_ += gefunden->second;
    rest.remove_prefix(zeichen.size());
  }
}

bool Suchmuster::in(std::string_view bytes) const {
  const auto gleich = [this](char byte, char vertreter) {
    return vertreter_[nummer(byte)] == vertreter;
  };
  if (gesucht_.empty()) return moeglich_;
  return moeglich_ && std::search(bytes.begin(), bytes.end(), gesucht_.begin(), gesucht_.end(),
                                  gleich) != bytes.end();
}

}  // namespace polarkreis
