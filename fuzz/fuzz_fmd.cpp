#include "diagnostics/messdatei.h"
#include "fuzz_desk.h"
#include "support/test_dialog.h"
#include "support/test_uhr.h"

using namespace polarkreis;

/// A measurement file: it is loaded, appended to as the working copy of a run, saved, and loaded
/// again. Its first byte chooses the answers and the filter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  ImportDesk desk;
  TestDialog dialog;
  TestUhr uhr;
  Messdatei datei(desk.m, desk.ablage, desk.captions, dialog, uhr);
  datei.Anhaengen = Haltbarkeit::wiederholbar;
  const int wahl = anzahl > 0 ? bytes[0] : 0;
  dialog.antwort = wahl % 2 == 0;
  desk.m.Auto_corr_Check = wahl / 2 % 2;
  desk.captions.Sprache = wahl / 4 % 2 == 0 ? "ENG" : "GER";
  desk.ordner.schreib("FM_diag.dat", als_Text(bytes, anzahl));
  datei.LoadDiaG("FM_diag.dat");
  const int zeilen = desk.m.Messpunkte();
  datei.Zeile_anhaengen();
  datei.SaveDiaG("saved.fmd");
  dialog.antwort = true;
  desk.m.Auto_corr_Check = 0;
  datei.LoadDiaG("saved.fmd");
  if (desk.m.Messpunkte() != zeilen) __builtin_trap();
  return 0;
}
