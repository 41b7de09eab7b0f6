#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "diagnostics/import_desk.h"

/// What a fuzzer's bytes look like to the program.
inline std::string_view als_Text(const std::uint8_t* bytes, std::size_t anzahl) {
  return {reinterpret_cast<const char*>(bytes), anzahl};
}

/// What must hold after every import, whatever the file was.
inline void pruefe(const ImportDesk& desk, const polarkreis::Importergebnis& ergebnis) {
  if (ergebnis.Zeilen > 0 && !ergebnis.grund.empty()) __builtin_trap();
  if (ergebnis.Zeilen == 0 && ergebnis.grund.empty() && !ergebnis.Teil_fehlt()) __builtin_trap();
  if (ergebnis.Zeilen != desk.m.Messpunkte()) __builtin_trap();
  if (ergebnis.Zeilen > 0 && desk.m.letzte_Zeile() < ergebnis.Zeilen + 2) __builtin_trap();
}
