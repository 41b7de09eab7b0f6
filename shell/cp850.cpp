#include "shell/cp850.h"

#include <algorithm>
#include <array>

namespace polarkreis {

namespace {

constexpr std::size_t ASCII = 0x80;

/// The characters of the bytes 128 to 255.
constexpr std::array<std::string_view, ASCII> Zeichen = {
    "Ç",      "ü", "é", "â", "ä", "à", "å", "ç", "ê", "ë", "è", "ï", "î", "ì", "Ä", "Å",  // 80
    "É",      "æ", "Æ", "ô", "ö", "ò", "û", "ù", "ÿ", "Ö", "Ü", "ø", "£", "Ø", "×", "ƒ",  // 90
    "á",      "í", "ó", "ú", "ñ", "Ñ", "ª", "º", "¿", "®", "¬", "½", "¼", "¡", "«", "»",  // A0
    "░",      "▒", "▓", "│", "┤", "Á", "Â", "À", "©", "╣", "║", "╗", "╝", "¢", "¥", "┐",  // B0
    "└",      "┴", "┬", "├", "─", "┼", "ã", "Ã", "╚", "╔", "╩", "╦", "╠", "═", "╬", "¤",  // C0
    "ð",      "Ð", "Ê", "Ë", "È", "ı", "Í", "Î", "Ï", "┘", "┌", "█", "▄", "¦", "Ì", "▀",  // D0
    "Ó",      "ß", "Ô", "Ò", "õ", "Õ", "µ", "þ", "Þ", "Ú", "Û", "Ù", "ý", "Ý", "¯", "´",  // E0
    "\u00AD", "±", "‗", "¾", "¶", "§", "÷", "¸", "°", "¨", "·", "¹", "³", "²", "■", "\u00A0"};

bool ist_ascii(char c) {
  return static_cast<unsigned char>(c) < ASCII;
}

/// Length of the character at the text's beginning: a byte and what continues it.
std::size_t zeichenlaenge(std::string_view text) {
  std::size_t laenge = 1;
  if (ist_ascii(text.front())) return laenge;
  while (laenge < text.size() && (static_cast<unsigned char>(text[laenge]) & 0xC0U) == 0x80U)
    ++laenge;
  return laenge;
}

char byte_von(std::string_view zeichen) {
  if (ist_ascii(zeichen.front())) return zeichen.front();
  const auto* const gefunden = std::find(Zeichen.begin(), Zeichen.end(), zeichen);
  if (gefunden == Zeichen.end()) return '?';
  return static_cast<char>(ASCII + static_cast<std::size_t>(gefunden - Zeichen.begin()));
}

}  // namespace

std::string aus_CP850(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (char c : bytes) {
    if (ist_ascii(c))
      text += c;
    else
      text += Zeichen[static_cast<unsigned char>(c) - ASCII];
  }
  return text;
}

std::string nach_CP850(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::size_t laenge = zeichenlaenge(utf8);
    bytes += byte_von(utf8.substr(0, laenge));
    utf8.remove_prefix(laenge);
  }
  return bytes;
}

}  // namespace polarkreis
