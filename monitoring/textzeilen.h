#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace polarkreis {

/// Takes one quoted text a line off the register's and the plants' files, which other hands may
/// have written. A text that is quoted as this program does it (a quote inside twice, line ends
/// kept) may go over several lines. Any other line is one text by itself: where it begins with a
/// quote, without that and the one at its end, and with those inside as they stand, so that a quote
/// too many or too few spoils no other line. Blanks and tabs around a line are dropped; lines end
/// with LF or CR LF. Each text by itself is UTF-8 or else Windows-1252; a byte order mark at the
/// file's beginning is dropped.
class Textzeilen {
 public:
  /// `eigen`: the whole text was written by this program, and its quotes count. Otherwise a line of
  /// nothing but quotes ends an open text, too: it is an empty text of its own.
  explicit Textzeilen(std::string_view bytes, bool eigen = false);

  /// True when no line is left; the last line end adds none.
  bool ende() const { return ort_ >= text_.size(); }
  /// The next text; the empty text at the end.
  std::string lies();
  /// Lines so far whose quotes were broken.
  int gebrochen() const { return gebrochen_; }

 private:
  bool lies_in_Anfuehrung(std::string& target);
  std::string lies_zeile();
  bool bricht_ab(std::size_t ende) const;
  std::size_t zeilenende(std::size_t von) const;

  std::string_view text_;
  bool eigen_;
  std::size_t ort_ = 0;
  int gebrochen_ = 0;
};

}  // namespace polarkreis
