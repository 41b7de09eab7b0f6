#include "monitoring/zellblock.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace polarkreis {

namespace {

constexpr char kAnfuehrung = '"';

bool braucht_Anfuehrung(std::string_view zelle) {
  return zelle.starts_with(kAnfuehrung) || zelle.find_first_of("\t\r\n") != std::string_view::npos;
}

void zelle_anhaengen(std::string& text, std::string_view zelle) {
  if (!braucht_Anfuehrung(zelle)) {
    text += zelle;
    return;
  }
  text += kAnfuehrung;
  for (char c : zelle) text.append(c == kAnfuehrung ? 2 : 1, c);
  text += kAnfuehrung;
}

/// Takes cells off a text.
class Zellenleser {
 public:
  explicit Zellenleser(std::string_view text) : text_(text) {}

  bool ende() const { return ort_ >= text_.size(); }

  std::vector<std::string> zeile() {
    std::vector<std::string> zellen{zelle()};
    while (!ende() && text_[ort_] == '\t') {
      ++ort_;
      zellen.push_back(zelle());
    }
    if (!ende()) ort_ += text_.substr(ort_).starts_with("\r\n") ? 2 : 1;
    return zellen;
  }

 private:
  std::string zelle() {
    std::string text;
    if (!ende() && text_[ort_] == kAnfuehrung && in_Anfuehrung(text)) return text;
    const std::size_t bis = std::min(text_.find_first_of("\t\r\n", ort_), text_.size());
    text = text_.substr(ort_, bis - ort_);
    ort_ = bis;
    return text;
  }

  // Quotes that are no pair around the whole cell belong to it.
  bool in_Anfuehrung(std::string& target) {
    std::string text;
    for (std::size_t i = ort_ + 1; i < text_.size(); ++i) {
      if (text_[i] != kAnfuehrung) {
        text += text_[i];
        continue;
      }
      const bool letzte = i + 1 == text_.size();
      if (!letzte && text_[i + 1] == kAnfuehrung) {
        text += text_[i++];
        continue;
      }
      if (!letzte && std::string_view("\t\r\n").find(text_[i + 1]) == std::string_view::npos)
        return false;
      target = std::move(text);
      ort_ = i + 1;
      return true;
    }
    return false;
  }

  std::string_view text_;
  std::size_t ort_ = 0;
};

}  // namespace

// A last row of one empty cell would be gone, since the last line end adds no row.
std::string Block_Text(const Zellblock& block) {
  const bool endet_leer = !block.empty() && block.back() == std::vector<std::string>{""};
  std::string text;
  for (std::size_t z = 0; z < block.size(); ++z) {
    if (z > 0) text += '\r';
    for (std::size_t s = 0; s < block[z].size(); ++s) {
      if (s > 0) text += '\t';
      zelle_anhaengen(text, block[z][s]);
    }
  }
  if (endet_leer) text += '\r';
  return text;
}

Zellblock Text_Block(std::string_view text) {
  Zellblock block;
  Zellenleser leser(text);
  while (!leser.ende()) block.push_back(leser.zeile());
  return block;
}

}  // namespace polarkreis
