#include "fuzz_desk.h"
#include "platform/arbeitsmappen.h"
#include "platform/xlsx_blatt.h"

using namespace polarkreis;

namespace {

/// Gives a sheet that was read already.
class GeleseneMappe : public Arbeitsmappenleser {
 public:
  explicit GeleseneMappe(const Arbeitsmappe& mappe) : mappe_(mappe) {}
  std::unique_ptr<Arbeitsmappe> oeffne(const std::string&, std::string&) override {
    return std::make_unique<Arbeitsmappe>(mappe_);
  }

 private:
  const Arbeitsmappe& mappe_;
};

/// XML parts, one behind the other with a NUL between: worksheet, shared texts, styles.
std::unique_ptr<Arbeitsmappe> aus_Teilen(std::string_view text, std::string& grund) {
  const std::size_t erster = std::min(text.find('\0'), text.size());
  const std::size_t zweiter = std::min(text.find('\0', erster + 1), text.size());
  Xlsxteile teile;
  teile.Blatt = text.substr(0, erster);
  if (erster < text.size()) teile.Texte = text.substr(erster + 1, zweiter - erster - 1);
  if (zweiter < text.size()) teile.Stile = text.substr(zweiter + 1);
  return Blatt_aus_Teilen(std::move(teile), grund);
}

std::unique_ptr<Arbeitsmappe> aus_Datei(std::string_view inhalt, std::string& grund) {
  TempOrdner ordner;
  ordner.schreib("a.xls", inhalt);
  return Arbeitsmappen().oeffne(ordner.pfad("a.xls"), grund);
}

void importiere(const Arbeitsmappe& mappe) {
  GeleseneMappe leser(mappe);
  ImportDesk clima;
  pruefe(clima, clima.import.CC_excel_Import("", leser, [](double strom) { return 1 - strom; }));
  for (const int kind : {1, 2}) {
    ImportDesk testo;
    pruefe(testo, testo.import.Testo_Excel_import("", leser, kind));
  }
}

}  // namespace

/// A worksheet of either format, or the XML parts of one (which the fuzzer can change without
/// breaking an archive's checksum).
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  const std::string_view text = als_Text(bytes, anzahl);
  std::string grund;
  const auto mappe = text.starts_with('<') ? aus_Teilen(text, grund) : aus_Datei(text, grund);
  if ((mappe == nullptr) == grund.empty()) __builtin_trap();
  if (mappe) importiere(*mappe);
  return 0;
}
