#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cycle/kompsuch.h"
#include "cycle/mittelliste.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

constexpr const char* kDateien[] = {"I650.DAT", "katalg.lst", "Prodhide.dat", "R134A.LST",
                                    "AAAAAAAI.rdm"};

/// Catalogue files, one behind the other with a line of "%" between; the last is the components'.
void auslegen(const TempOrdner& ordner, std::string_view text) {
  constexpr std::string_view trenner = "%\n";
  for (const char* name : kDateien) {
    const std::size_t ende = text.find(trenner);
    if (ende == std::string_view::npos) break;
    ordner.schreib(name, text.substr(0, ende));
    text.remove_prefix(ende + trenner.size());
  }
  ordner.schreib("AAAAAAAN.rdm", text);
}

}  // namespace

/// A data folder with catalogues of the code AAAAAAA.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  TempOrdner ordner;
  auslegen(ordner, {reinterpret_cast<const char*>(bytes), anzahl});
  Meldungen meldungen;
  Ablage ablage(ordner.pfad(), meldungen);
  KompSuch suche(ablage);
  suche.Listen_fuellen();
  suche.Suchen();
  for (const KompSuch::Ergebnis& e : suche.Ergebnisse) {
    if (e.verborgen && !e.Treffer.empty()) __builtin_trap();
    if (e.Treffer.size() > static_cast<std::size_t>(KompSuch::Satzzahl)) __builtin_trap();
  }
  Katalogdateien dateien(ablage);
  for (const Mittelzeile& zeile : KM_Liste(dateien, "R134A"))
    if (Listenbauteile(dateien, zeile).size() > static_cast<std::size_t>(Listenblock))
      __builtin_trap();
  return 0;
}
