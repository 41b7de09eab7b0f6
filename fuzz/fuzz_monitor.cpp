#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "monitoring/ftp_desk.h"
#include "monitoring/textzeilen.h"

using namespace polarkreis;

namespace {

/// A register file: what was read comes back from a saved one, and reading changed no file.
void pruefe_Register(FtpDesk& desk, std::string_view text) {
  desk.ordner.schreib(Register::Datei, text);
  Register gelesen, wieder;
  gelesen.lies(desk.ablage);
  if (desk.ordner.lies(Register::Datei) != text) __builtin_trap();
  if (!gelesen.schreib(desk.ablage) || !wieder.lies(desk.ablage)) __builtin_trap();
  for (int z = 1; z <= Register::Zeilen; ++z)
    for (int s = 1; s <= Register::Spalten; ++s)
      if (gelesen.zelle(z, s) != wieder.zelle(z, s)) __builtin_trap();
}

/// A settings record: the record that is made of the fields fills another desk's fields alike, but
/// for values of several lines.
void pruefe_Einstellungen(FtpDesk& desk, std::string_view text) {
  desk.ordner.schreib("FMD_Temp/K17SETTINGS", text);
  desk.anlage(1, "K17", "2");
  desk.desk.set_download();
  bool einzeilig = true;
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    einzeilig &= (desk.desk.*feld.text).find('\n') == std::string::npos;
  ftp_server andere(desk.ablage, desk.texte.captions, desk.dialog, desk.klient);
  andere.Einstellsatz_uebernehmen(desk.desk.Einstellsatz());
  for (const ftp_server::Feld& feld : ftp_server::Felder()) {
    const bool vergleichbar = feld.spalte != Registerspalte::nt && einzeilig;
    if (vergleichbar && andere.*feld.text != desk.desk.*feld.text) __builtin_trap();
  }
}

/// True if the text is one of those that the field offers.
bool bekannt(const Captions& captions, Regelzeile zeile, const std::string& text) {
  for (const std::string& eintrag : Regelauswahl(captions, zeile))
    if (eintrag == text) return true;
  return false;
}

/// A rule file: the rule is packed and taken apart again; three fields come back as one of their
/// words, and the others up to their first ";".
void pruefe_Regel(FtpDesk& desk, std::string_view text) {
  desk.ordner.schreib("FMD_Temp/K17ALERT1", text);
  desk.anlage(1, "K17");
  desk.desk.al_download();
  const Captions& captions = desk.texte.captions;
  const Alarmregel& regel = desk.desk.AlertSpread[0];
  if (Regel_packen(captions, regel) != desk.desk.Alarmtexte[0]) __builtin_trap();
  for (int i = 1; i <= Regelzeilen; ++i) {
    const auto zeile = static_cast<Regelzeile>(i);
    const std::string kopf = std::string(Regelschluessel(zeile)) + "=";
    const Alarmtext wieder = alerts_find(captions, kopf + regel[zeile] + ";");
    const bool in_Worten =
        zeile == Regelzeile::en || zeile == Regelzeile::cm || zeile == Regelzeile::nt;
    if (wieder.Zeile != i) __builtin_trap();
    if (in_Worten && !bekannt(captions, zeile, wieder.Text)) __builtin_trap();
    if (!in_Worten && wieder.Text != regel[zeile].substr(0, regel[zeile].find(';')))
      __builtin_trap();
  }
  desk.desk.al_speich();
  if (desk.desk.FTPSpread.zelle(1, Regelspalte(1)) != desk.desk.Alarmtexte[0]) __builtin_trap();
}

/// The clipboard: a block comes back from its own text, and a paste stays in the table.
void pruefe_Zellblock(FtpDesk& desk, std::string_view text) {
  const Zellblock block = Text_Block(text);
  if (Text_Block(Block_Text(block)) != block) __builtin_trap();
  desk.desk.FTPSpread_Auswahl = {90, 95, 95, 90};
  desk.desk.FTPSpreadpaste(text);
  desk.desk.FTPSpreadcopy();
}

}  // namespace

/// The files that other hands write for remote monitoring. The first byte chooses the reader.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
  if (anzahl == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(bytes) + 1, anzahl - 1);
  Textzeilen leser(text);
  while (!leser.ende()) leser.lies();
  FtpDesk desk;
  switch (bytes[0] % 4) {
    case 0:
      pruefe_Register(desk, text);
      break;
    case 1:
      pruefe_Einstellungen(desk, text);
      break;
    case 2:
      pruefe_Regel(desk, text);
      break;
    default:
      pruefe_Zellblock(desk, text);
  }
  return 0;
}
