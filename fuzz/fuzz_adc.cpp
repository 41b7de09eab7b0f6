#include "fuzz_desk.h"

/// A logger's file; its first byte chooses the function of the first unit, and a part.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  const std::string_view text = als_Text(bytes, anzahl);
  ImportDesk desk;
  if (!text.empty() && text[0] % 2 == 1) desk.funktion(polarkreis::Text_transkritisch);
  pruefe(desk, desk.adc(text));
  desk.m.DiaG_loesch();
  pruefe(desk, desk.adc(text, text.empty() ? 0 : text[0] % 4));
  return 0;
}
