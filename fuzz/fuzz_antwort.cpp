#include "diagnostics/antwort.h"
#include "fuzz_desk.h"
#include "shell/wert.h"

using namespace polarkreis;

/// A logger's reply, worked through as a sample is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  const std::string_view antwort = als_Text(bytes, anzahl);
  Antwort_brauchbar(antwort);
  const int typ = Box_Typ_von(antwort);
  if (typ < 0 || typ > 2) __builtin_trap();
  AntwortLeser leser(antwort);
  Plausibilitaet plausibel(0.1);
  std::string_view token;
  std::size_t gelesen = 0;
  for (int position = 1; leser.lies(token); ++position) {
    if (leser.Position() != position) __builtin_trap();
    if (Zeit_des_Tokens(token).size() > 8) __builtin_trap();
    gelesen += token.size();
    const double wert = Wert(token);
    plausibel.verworfen(position, wert);
    const Kanalart art = Kanalart_von(position);
    for (const int code : {F_Verdichter, F_Ventilator, F_transkritisch})
      if (Zellentext(art, Messwert_von(art, wert, -0.2, Wandlung(position, code))).empty())
        __builtin_trap();
  }
  if (gelesen > anzahl) __builtin_trap();
  return 0;
}
