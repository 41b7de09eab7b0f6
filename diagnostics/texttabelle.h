#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace polarkreis {

/// A table of texts of fixed size, as a form shows it: rows from `Erste`, columns from 1.
template <int Zeilen, int Spalten, int Erste = 1>
class Texttabelle {
 public:
  static constexpr int Erste_Zeile = Erste;
  static constexpr int Letzte_Zeile = Erste + Zeilen - 1;
  static constexpr int Spaltenzahl = Spalten;

  std::string& operator()(int zeile, int spalte) { return zellen_[ort(zeile, spalte)]; }
  const std::string& operator()(int zeile, int spalte) const { return zellen_[ort(zeile, spalte)]; }
  bool operator==(const Texttabelle&) const = default;

 private:
  static std::size_t ort(int zeile, int spalte) {
    return static_cast<std::size_t>((zeile - Erste) * Spalten + spalte - 1);
  }
  std::array<std::string, static_cast<std::size_t>(Zeilen* Spalten)> zellen_;
};

}  // namespace polarkreis
