#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// Blanks and tabs off both sides, or off one.
std::string_view getrimmt(std::string_view text);
std::string_view links_getrimmt(std::string_view text);
std::string_view rechts_getrimmt(std::string_view text);

/// Upper case of a UTF-8 text: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters ("ß"
/// stays).
std::string gross(std::string_view text);

/// Equal after trimming both sides and upper-casing: how captions and designations are compared.
bool gleich(std::string_view a, std::string_view b);

/// Number of characters (code points) of a UTF-8 text, and its first n characters.
std::size_t zeichenzahl(std::string_view text);
std::string_view erste_zeichen(std::string_view text, std::size_t n);

/// The mark at the beginning of some files of UTF-8.
inline constexpr std::string_view Bytemarke = "\xEF\xBB\xBF";
/// The text as UTF-8: a leading byte order mark is dropped, and bytes that are no UTF-8 are read as
/// Windows-1252, so that old files open.
std::string als_utf8(std::string bytes);
/// The same for a part of a file: nothing is dropped.
std::string Teil_als_utf8(std::string bytes);

}  // namespace polarkreis
