#include "monitoring/textzeilen.h"

#include <algorithm>
#include <utility>

#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr char kAnfuehrung = '"';

std::string_view ohne_Raender(std::string_view zeile) {
  if (zeile.ends_with('\r')) zeile.remove_suffix(1);
  return getrimmt(zeile);
}

}  // namespace

Textzeilen::Textzeilen(std::string_view bytes, bool eigen) : text_(bytes), eigen_(eigen) {
  if (text_.starts_with(Bytemarke)) text_.remove_prefix(Bytemarke.size());
}

std::size_t Textzeilen::zeilenende(std::size_t von) const {
  return std::min(text_.find('\n', von), text_.size());
}

std::string Textzeilen::lies() {
  if (ende()) return {};
  std::string text;
  const std::size_t anfang = text_.find_first_not_of(" \t", ort_);
  if (anfang == std::string_view::npos || text_[anfang] != kAnfuehrung) return lies_zeile();
  const std::size_t vorher = ort_;
  ort_ = anfang + 1;
  if (lies_in_Anfuehrung(text)) return Teil_als_utf8(std::move(text));
  ort_ = vorher;
  ++gebrochen_;
  return lies_zeile();
}

bool Textzeilen::bricht_ab(std::size_t ende) const {
  if (eigen_) return false;
  const std::string_view naechste =
      ohne_Raender(text_.substr(ende + 1, zeilenende(ende + 1) - ende - 1));
  return !naechste.empty() && naechste.size() % 2 == 0 &&
         naechste.find_first_not_of(kAnfuehrung) == std::string_view::npos;
}

// Goes on to the quote that closes the text and has nothing but blanks behind it. A file full of
// broken quotes takes no longer than a whole one: the next line from which such a search could go
// on ends this one.
bool Textzeilen::lies_in_Anfuehrung(std::string& target) {
  std::size_t i = ort_;
  for (; i < text_.size(); ++i) {
    if (text_[i] == '\n' && bricht_ab(i)) return false;
    if (text_[i] != kAnfuehrung) {
      target += text_[i];
    } else if (i + 1 < text_.size() && text_[i + 1] == kAnfuehrung) {
      target += kAnfuehrung;
      ++i;
    } else {
      break;
    }
  }
  if (i >= text_.size()) return false;
  const std::size_t ende = zeilenende(i);
  if (!ohne_Raender(text_.substr(i + 1, ende - i - 1)).empty()) return false;
  ort_ = std::min(ende + 1, text_.size());
  return true;
}

std::string Textzeilen::lies_zeile() {
  const std::size_t ende = zeilenende(ort_);
  std::string_view zeile = ohne_Raender(text_.substr(ort_, ende - ort_));
  ort_ = std::min(ende + 1, text_.size());
  if (zeile.starts_with(kAnfuehrung)) {
    zeile.remove_prefix(1);
    if (zeile.ends_with(kAnfuehrung)) zeile.remove_suffix(1);
  }
  return Teil_als_utf8(std::string(zeile));
}

}  // namespace polarkreis
