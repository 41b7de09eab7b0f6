#include "fuzz_desk.h"

/// A control system's text file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  ImportDesk desk;
  pruefe(desk, desk.steuertext(als_Text(bytes, anzahl)));
  return 0;
}
