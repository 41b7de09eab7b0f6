#include "shell/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace polarkreis {

namespace {

constexpr std::string_view Leerraum = " \t";

bool ist_folgebyte(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

bool ist_ascii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

char gross_ascii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

void zeichen_anhaengen(std::string& target, char32_t zeichen) {
  const auto byte = [&target](char32_t b) { target += static_cast<char>(b); };
  if (zeichen < 0x80) {
    byte(zeichen);
  } else if (zeichen < 0x800) {
    byte(0xC0 | (zeichen >> 6));
    byte(0x80 | (zeichen & 0x3F));
  } else {
    byte(0xE0 | (zeichen >> 12));
    byte(0x80 | ((zeichen >> 6) & 0x3F));
    byte(0x80 | (zeichen & 0x3F));
  }
}

/// In most of these blocks capital and small letter stand side by side.
bool ungerade_sind_klein(char32_t z) {
  return (z >= 0x100 && z <= 0x137) || (z >= 0x14A && z <= 0x177) || (z >= 0x218 && z <= 0x21B) ||
         (z >= 0x460 && z <= 0x481) || (z >= 0x48A && z <= 0x4BF) || (z >= 0x4D0 && z <= 0x52F);
}

bool gerade_sind_klein(char32_t z) {
  return (z >= 0x139 && z <= 0x148) || (z >= 0x179 && z <= 0x17E);
}

char32_t gross_einzeln(char32_t z) {
  switch (z) {
    case 0xFF:
      return 0x178;
    case 0x131:  // dotless i
      return U'I';
    case 0x3AC:
      return 0x386;
    case 0x3AD:
    case 0x3AE:
    case 0x3AF:
      return z - 37;
    case 0x3C2:  // final sigma
      return 0x3A3;
    case 0x3CC:
      return 0x38C;
    case 0x3CD:
    case 0x3CE:
      return z - 63;
    default:
      return z;
  }
}

/// Upper case of a letter of two bytes.
char32_t gross_zeichen(char32_t z) {
  if (z >= 0xE0 && z <= 0xFE) return z == 0xF7 ? z : z - 0x20;
  if (const char32_t einzeln = gross_einzeln(z); einzeln != z) return einzeln;
  if (ungerade_sind_klein(z)) return z % 2 == 1 ? z - 1 : z;
  if (gerade_sind_klein(z)) return z % 2 == 0 ? z - 1 : z;
  if ((z >= 0x3B1 && z <= 0x3CB) || (z >= 0x430 && z <= 0x44F)) return z - 0x20;
  if (z >= 0x450 && z <= 0x45F) return z - 0x50;
  return z;
}

}  // namespace

std::string_view links_getrimmt(std::string_view text) {
  const std::size_t anfang = text.find_first_not_of(Leerraum);
  return anfang == std::string_view::npos ? std::string_view{} : text.substr(anfang);
}

std::string_view rechts_getrimmt(std::string_view text) {
  return text.substr(0, text.find_last_not_of(Leerraum) + 1);
}

std::string_view getrimmt(std::string_view text) {
  return rechts_getrimmt(links_getrimmt(text));
}

std::string gross(std::string_view text) {
  std::string ergebnis;
  ergebnis.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 0xC2 && byte < 0xE0 && i + 1 < text.size() && ist_folgebyte(text[i + 1])) {
      const auto folge = static_cast<unsigned char>(text[++i]);
      zeichen_anhaengen(ergebnis, gross_zeichen(((byte & 0x1FU) << 6) | (folge & 0x3FU)));
    } else {
      ergebnis += gross_ascii(text[i]);
    }
  }
  return ergebnis;
}

bool gleich(std::string_view a, std::string_view b) {
  a = getrimmt(a);
  b = getrimmt(b);
  const std::size_t gemeinsam = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < gemeinsam; ++i) {
    if (!ist_ascii(a[i]) || !ist_ascii(b[i])) return gross(a.substr(i)) == gross(b.substr(i));
    if (gross_ascii(a[i]) != gross_ascii(b[i])) return false;
  }
  return a.size() == b.size();
}

std::size_t zeichenzahl(std::string_view text) {
  std::size_t anzahl = 0;
  for (char c : text) anzahl += ist_folgebyte(c) ? 0 : 1;
  return anzahl;
}

std::string_view erste_zeichen(std::string_view text, std::size_t n) {
  for (std::size_t i = 0; i < text.size(); ++i)
    if (!ist_folgebyte(text[i]) && n-- == 0) return text.substr(0, i);
  return text;
}

namespace {

/// Length of the UTF-8 sequence at the text's beginning, 0 if there is none: no overlong forms, no
/// surrogates, nothing above U+10FFFF.
std::size_t folgenlaenge(std::string_view text) {
  const auto byte = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const auto folgt = [&byte](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
  const unsigned kopf = byte(0);
  if (kopf < 0x80) return 1;
  if (kopf < 0xC2) return 0;
  if (kopf < 0xE0) return folgt(1) ? 2 : 0;
  if (kopf < 0xF0) {
    if (kopf == 0xE0 && byte(1) < 0xA0) return 0;
    if (kopf == 0xED && byte(1) >= 0xA0) return 0;
    return folgt(1) && folgt(2) ? 3 : 0;
  }
  if (kopf > 0xF4) return 0;
  if (kopf == 0xF0 && byte(1) < 0x90) return 0;
  if (kopf == 0xF4 && byte(1) >= 0x90) return 0;
  return folgt(1) && folgt(2) && folgt(3) ? 4 : 0;
}

/// Length of the text's beginning that is UTF-8.
std::size_t utf8_laenge(std::string_view text) {
  const std::size_t ganz = text.size();
  while (!text.empty()) {
    std::uint64_t acht = 0;
    while (text.size() >= sizeof acht) {
      std::memcpy(&acht, text.data(), sizeof acht);
      if ((acht & 0x8080808080808080U) != 0) break;
      text.remove_prefix(sizeof acht);
    }
    if (text.empty()) break;
    const std::size_t laenge = folgenlaenge(text);
    if (laenge == 0) return ganz - text.size();
    text.remove_prefix(laenge);
  }
  return ganz;
}

/// True if all that is wrong with a UTF-8 text is its end: a character cut off, as a write that
/// stopped midway leaves it, and perhaps a tail of NUL bytes. `gut` is the length of what is right.
bool nur_abgeschnitten(std::string_view bytes, std::size_t gut) {
  std::string_view rest = bytes.substr(gut);
  rest = rest.substr(0, rest.find_last_not_of('\0') + 1);
  const auto kopf = static_cast<unsigned char>(rest.front());
  if (rest.size() > 3 || kopf < 0xC2 || kopf > 0xF4) return false;
  if (!std::all_of(rest.begin() + 1, rest.end(), ist_folgebyte)) return false;
  return !std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(gut), ist_ascii);
}

/// Windows-1252, bytes 0x80 to 0x9F; the five that mean nothing keep their number.
constexpr std::array<char32_t, 32> Windows_1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string aus_windows_1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    zeichen_anhaengen(text, byte >= 0x80 && byte < 0xA0 ? Windows_1252[byte - 0x80U] : byte);
  }
  return text;
}

}  // namespace

std::string als_utf8(std::string bytes) {
  if (bytes.starts_with(Bytemarke)) bytes.erase(0, Bytemarke.size());
  return Teil_als_utf8(std::move(bytes));
}

std::string Teil_als_utf8(std::string bytes) {
  const std::size_t gut = utf8_laenge(bytes);
  if (gut == bytes.size()) return bytes;
  const std::size_t ab = nur_abgeschnitten(bytes, gut) ? gut : 0;
  return bytes.substr(0, ab) + aus_windows_1252(std::string_view(bytes).substr(ab));
}

}  // namespace polarkreis
