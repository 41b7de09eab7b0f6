#include "diagnostics/arbeitsmappe.h"

#include <utility>

namespace polarkreis {

namespace {

const Zellinhalt Leere_Zelle;

constexpr int Buchstaben = 26;

}  // namespace

Zellort Zellort_von(std::string_view name) {
  Zellort ort;
  std::size_t i = 0;
  for (; i < name.size() && name[i] >= 'A' && name[i] <= 'Z'; ++i)
    if ((ort.spalte = ort.spalte * Buchstaben + (name[i] - 'A' + 1)) > Arbeitsmappe::Hoechstspalte)
      return {};
  const std::size_t ziffern = i;
  for (; i < name.size() && name[i] >= '0' && name[i] <= '9'; ++i)
    if ((ort.zeile = ort.zeile * 10 + (name[i] - '0')) > Arbeitsmappe::Hoechstzeile) return {};
  const bool ganz = ziffern > 0 && i > ziffern && i == name.size() && ort.zeile > 0;
  return ganz ? ort : Zellort{};
}

const Zellinhalt& Arbeitsmappe::Range(std::string_view name) const {
  const Zellort ort = Zellort_von(name);
  return Zelle(ort.zeile, ort.spalte);
}

const Zellinhalt& Arbeitsmappe::Zelle(int zeile, int spalte) const {
  const auto gefunden = zellen_.find({zeile, spalte});
  return gefunden == zellen_.end() ? Leere_Zelle : gefunden->second;
}

void Arbeitsmappe::setze(int zeile, int spalte, Zellinhalt inhalt) {
  if (zeile < 1 || zeile > Hoechstzeile || spalte < 1 || spalte > Hoechstspalte) return;
  if (std::holds_alternative<std::monostate>(inhalt)) return;
  // Cells come in the order of rows and columns as a rule.
  zellen_.insert_or_assign(zellen_.end(), {zeile, spalte}, std::move(inhalt));
}

}  // namespace polarkreis
