#include "reports/csv.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Byte_order_mark = "\xEF\xBB\xBF";

bool ist_blank(char c) {
  return c == ' ' || c == '\t';
}

bool liest_sich_als_Zahl(std::string text, const Csv_Form& form) {
  std::replace(text.begin(), text.end(), form.Dezimalzeichen, '.');
  return std::holds_alternative<double>(als_Tabellenzelle(text));
}

bool braucht_Anfuehrung(std::string_view text, const Csv_Form& form) {
  if (text.empty()) return false;
  const auto stoert = [&form](char c) {
    return c == form.Trenner || c == '"' || c == '\r' || c == '\n';
  };
  return std::ranges::any_of(text, stoert) || ist_blank(text.front()) || ist_blank(text.back()) ||
         liest_sich_als_Zahl(std::string(text), form);
}

void schreib(std::string& csv, const std::string& text, const Csv_Form& form) {
  if (!braucht_Anfuehrung(text, form)) {
    csv += text;
    return;
  }
  csv += '"';
  for (const char c : text) csv.append(c == '"' ? 2 : 1, c);
  csv += '"';
}

void schreib(std::string& csv, double zahl, const Csv_Form& form) {
  if (!std::isfinite(zahl)) return;
  const std::size_t anfang = csv.size();
  Zahl_anhaengen(csv, zahl);
  std::replace(csv.begin() + static_cast<std::ptrdiff_t>(anfang), csv.end(), '.',
               form.Dezimalzeichen);
}

void schreib_Zelle(std::string& csv, const Tabellenzelle& zelle, const Csv_Form& form) {
  if (const auto* zahl = std::get_if<double>(&zelle)) return schreib(csv, *zahl, form);
  if (const auto* text = std::get_if<std::string>(&zelle)) return schreib(csv, *text, form);
}

template <class Zeile>
void schreib_Zeile(std::string& csv, const Zeile& zeile, const Csv_Form& form) {
  bool weitere = false;
  for (const auto& zelle : zeile) {
    if (weitere) csv += form.Trenner;
    weitere = true;
    schreib_Zelle(csv, zelle, form);
  }
  csv += "\r\n";
}

}  // namespace

std::string als_Csv(const Tabelle& tabelle, const Csv_Form& form) {
  std::string csv(Byte_order_mark);
  for (const auto& zeile : tabelle.Kopf) schreib_Zeile(csv, zeile, form);
  for (const auto& zeile : tabelle.Zeilen) schreib_Zeile(csv, zeile, form);
  return csv;
}

}  // namespace polarkreis
