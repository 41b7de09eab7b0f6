#include "shell/wert.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

namespace polarkreis {

namespace {

bool ist_ziffer(char c) {
  return c >= '0' && c <= '9';
}

/// The leading number of a text, laid out for std::from_chars.
struct Zahlvorsatz {
  std::size_t laenge = 0;    // of the prefix that is a number; 0 if there is none
  std::size_t exponent = 0;  // place of the exponent's letter; 0 if there is none
  std::size_t komma = 0;     // place of the comma that counts as a point, + 1; 0 if there is none
  std::int64_t zehnerhoch = 0;  // decimal exponent of the first digit that is not 0
};

std::size_t ziffern_ab(std::string_view text, std::size_t i) {
  while (i < text.size() && ist_ziffer(text[i])) ++i;
  return i;
}

/// Value of the exponent's digits, held at a size that can't overflow.
std::int64_t exponentwert(std::string_view ziffern, bool negativ) {
  std::int64_t wert = 0;
  for (char c : ziffern)
    if (wert < 1'000'000'000) wert = wert * 10 + (c - '0');
  return negativ ? -wert : wert;
}

std::int64_t erste_stelle(std::string_view ganze, std::string_view bruch) {
  for (std::size_t i = 0; i < ganze.size(); ++i)
    if (ganze[i] != '0') return static_cast<std::int64_t>(ganze.size() - i) - 1;
  for (std::size_t i = 0; i < bruch.size(); ++i)
    if (bruch[i] != '0') return -static_cast<std::int64_t>(i) - 1;
  return 0;
}

Zahlvorsatz zahlvorsatz(std::string_view text, bool komma_ist_punkt) {
  Zahlvorsatz zahl;
  const std::size_t anfang = !text.empty() && text[0] == '-' ? 1 : 0;
  std::size_t i = ziffern_ab(text, anfang);
  const std::string_view ganze = text.substr(anfang, i - anfang);
  std::string_view bruch;
  if (i < text.size() && text[i] == (komma_ist_punkt ? ',' : '.')) {
    const std::size_t ende = ziffern_ab(text, i + 1);
    bruch = text.substr(i + 1, ende - i - 1);
    if (komma_ist_punkt) zahl.komma = i + 1;
    i = ende;
  }
  if (ganze.empty() && bruch.empty()) return {};
  zahl.zehnerhoch = erste_stelle(ganze, bruch);
  zahl.laenge = i;
  if (i < text.size() && std::strchr("eEdD", text[i]) != nullptr && text[i] != '\0') {
    std::size_t ziffer = i + 1;
    const bool zeichen = ziffer < text.size() && (text[ziffer] == '+' || text[ziffer] == '-');
    if (zeichen) ++ziffer;
    const std::size_t ende = ziffern_ab(text, ziffer);
    if (ende > ziffer) {
      zahl.exponent = i;
      zahl.laenge = ende;
      zahl.zehnerhoch +=
          exponentwert(text.substr(ziffer, ende - ziffer), zeichen && text[ziffer - 1] == '-');
    }
  }
  return zahl;
}

double gewandelt(const char* text, const Zahlvorsatz& zahl) {
  double wert = 0;
  const auto ergebnis = std::from_chars(text, text + zahl.laenge, wert);
  if (ergebnis.ec == std::errc::result_out_of_range) return zahl.zehnerhoch > 0 ? leer : 0;
  return wert == 0 ? 0 : wert;
}

}  // namespace

double Wert(std::string_view text) {
  const std::size_t anfang = text.find_first_not_of(" \t");
  if (anfang == std::string_view::npos) return 0;
  text.remove_prefix(anfang);
  const bool komma_ist_punkt = text.find('.') == std::string_view::npos;
  if (text[0] == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text[0] == '-') return 0;
  }
  const Zahlvorsatz zahl = zahlvorsatz(text, komma_ist_punkt);
  if (zahl.laenge == 0) return 0;
  if (zahl.komma == 0 && zahl.exponent == 0) return gewandelt(text.data(), zahl);
  std::array<char, 64> kurz;
  std::string lang;
  char* kopie = kurz.data();
  if (zahl.laenge > kurz.size()) {
    lang.resize(zahl.laenge);
    kopie = lang.data();
  }
  std::memcpy(kopie, text.data(), zahl.laenge);
  if (zahl.komma > 0) kopie[zahl.komma - 1] = '.';
  if (zahl.exponent > 0) kopie[zahl.exponent] = 'e';
  return gewandelt(kopie, zahl);
}

namespace {

constexpr int Ziffern_hoechstens = 15;

/// A number's significant digits, without trailing zeros, and the power of ten of the first.
struct Dezimal {
  std::array<char, 32> ziffern;
  int anzahl = 0;
  int exponent = 0;
};

/// Takes a text like "1.234e-05" apart.
Dezimal zerlegt(const char* text, const char* ende) {
  Dezimal zahl;
  for (; text != ende && *text != 'e'; ++text)
    if (*text != '.') zahl.ziffern[static_cast<std::size_t>(zahl.anzahl++)] = *text;
  ++text;
  if (*text == '+') ++text;
  std::from_chars(text, ende, zahl.exponent);
  while (zahl.anzahl > 1 && zahl.ziffern[static_cast<std::size_t>(zahl.anzahl - 1)] == '0')
    --zahl.anzahl;
  return zahl;
}

/// Rounds the digits to 15; they must not stand exactly between two such numbers.
void gerundet_auf_15(Dezimal& zahl) {
  const bool auf = zahl.ziffern[Ziffern_hoechstens] >= '5';
  zahl.anzahl = Ziffern_hoechstens;
  if (auf) {
    while (zahl.anzahl > 0 && zahl.ziffern[static_cast<std::size_t>(zahl.anzahl - 1)] == '9')
      --zahl.anzahl;
    if (zahl.anzahl > 0) {
      ++zahl.ziffern[static_cast<std::size_t>(zahl.anzahl - 1)];
      return;
    }
    zahl.ziffern[0] = '1';
    zahl.anzahl = 1;
    ++zahl.exponent;
  }
  while (zahl.anzahl > 1 && zahl.ziffern[static_cast<std::size_t>(zahl.anzahl - 1)] == '0')
    --zahl.anzahl;
}

/// The digits of a positive number, at most 15. The shortest digits that mean the number are
/// rounded on: no number of 16 digits lies between them and the number, so the result is that of
/// rounding the number itself, but for a tie.
Dezimal dezimal(double betrag) {
  std::array<char, 40> puffer;
  const auto kurz = std::to_chars(puffer.data(), puffer.data() + puffer.size(), betrag,
                                  std::chars_format::scientific);
  Dezimal zahl = zerlegt(puffer.data(), kurz.ptr);
  if (zahl.anzahl <= Ziffern_hoechstens) return zahl;
  if (zahl.anzahl > Ziffern_hoechstens + 1 || zahl.ziffern[Ziffern_hoechstens] != '5') {
    gerundet_auf_15(zahl);
    return zahl;
  }
  const auto genau = std::to_chars(puffer.data(), puffer.data() + puffer.size(), betrag,
                                   std::chars_format::scientific, Ziffern_hoechstens - 1);
  return zerlegt(puffer.data(), genau.ptr);
}

void exponentform_anhaengen(std::string& target, const Dezimal& zahl) {
  target += zahl.ziffern[0];
  if (zahl.anzahl > 1) {
    target += '.';
    target.append(zahl.ziffern.data() + 1, static_cast<std::size_t>(zahl.anzahl - 1));
  }
  target += zahl.exponent < 0 ? "E-" : "E+";
  const int betrag = zahl.exponent < 0 ? -zahl.exponent : zahl.exponent;
  if (betrag < 10) target += '0';
  std::array<char, 8> puffer;
  const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), betrag);
  target.append(puffer.data(), ende.ptr);
}

void dezimal_anhaengen(std::string& target, const Dezimal& zahl) {
  const char* ziffern = zahl.ziffern.data();
  const auto anzahl = static_cast<std::size_t>(zahl.anzahl);
  if (zahl.exponent < -5 || zahl.exponent >= Ziffern_hoechstens) {
    exponentform_anhaengen(target, zahl);
  } else if (zahl.exponent < 0) {
    target += "0.";
    target.append(static_cast<std::size_t>(-zahl.exponent) - 1, '0');
    target.append(ziffern, anzahl);
  } else {
    const auto ganze = static_cast<std::size_t>(zahl.exponent) + 1;
    if (anzahl <= ganze) {
      target.append(ziffern, anzahl);
      target.append(ganze - anzahl, '0');
    } else {
      target.append(ziffern, ganze);
      target += '.';
      target.append(ziffern + ganze, anzahl - ganze);
    }
  }
}

/// Appends `teile` / 10^stellen without trailing zeros.
void festkomma_anhaengen(std::string& target, std::int64_t teile, std::int64_t teiler,
                         int stellen) {
  std::array<char, 32> puffer;
  char* ende = std::to_chars(puffer.data(), puffer.data() + 20, teile / teiler).ptr;
  std::int64_t rest = teile % teiler;
  if (rest > 0) {
    while (rest % 10 == 0) {
      rest /= 10;
      --stellen;
    }
    *ende++ = '.';
    ende += stellen;
    for (char* ziffer = ende; stellen-- > 0; rest /= 10) {
      *--ziffer = static_cast<char>('0' + rest % 10);
    }
  }
  target.append(puffer.data(), ende);
}

/// Most numbers that are stored have two or four decimals, but for the noise of their calculation:
/// they need integer formatting only. Noise below 4e-16 of the number is less than half a unit of
/// its fifteenth digit.
bool kurze_anhaengen(std::string& target, double betrag) {
  if (!(betrag < 1e9)) return false;
  for (const auto& [teiler, stellen] : {std::pair{100, 2}, {10000, 4}}) {
    const std::int64_t teile = std::llrint(betrag * teiler);
    if (std::fabs(static_cast<double>(teile) / teiler - betrag) > 4e-16 * betrag) continue;
    festkomma_anhaengen(target, teile, teiler, stellen);
    return true;
  }
  return false;
}

}  // namespace

void Zahl_anhaengen(std::string& target, double value) {
  if (!std::isfinite(value)) return;
  if (value < 0) target += '-';
  const double betrag = std::fabs(value);
  if (!kurze_anhaengen(target, betrag)) dezimal_anhaengen(target, dezimal(betrag));
}

std::string Zahl_Text(double value) {
  std::string text;
  Zahl_anhaengen(text, value);
  return text;
}

}  // namespace polarkreis
