#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace polarkreis {

/// What a piece of work in a process of its own may take.
struct Arbeitsgrenzen {
  std::size_t speicher = std::size_t{768} << 20;  ///< bytes beside what this program holds already
  std::size_t ergebnis = std::size_t{256} << 20;  ///< bytes of its result
  int sekunden = 30;                              ///< of computing, and of waiting for it
};

/// Runs `arbeit` in a child process and gives its result; nothing if it crashed, threw, or went
/// beyond its limits. For libraries that a damaged file may bring down: the program itself doesn't
/// notice. What `arbeit` changes in memory is lost. Sanitizers need the memory's limit for
/// themselves, so under them it doesn't hold.
std::optional<std::string> abgeschirmt(const std::function<std::string()>& arbeit,
                                       const Arbeitsgrenzen& grenzen = {});

}  // namespace polarkreis
