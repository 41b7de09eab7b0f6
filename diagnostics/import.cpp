#include "diagnostics/import.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "diagnostics/einheiten_funktion.h"

namespace polarkreis {

namespace {

constexpr std::int64_t Hoechstgroesse = std::int64_t{256} << 20;

}  // namespace

bool Messimport::weiter(int nummer, int anzahl) const {
  return fortschritt_.schritt(captions_.text(Caption::Logger_auslesen), nummer, anzahl);
}

bool Messimport::lies(std::string_view path, std::string& text, std::string& grund) const {
  const auto nicht = [&](const char* warum) {
    grund = "The file " + ablage_.pfad(path) + warum;
    return false;
  };
  std::error_code fehler;
  if (!std::filesystem::exists(ablage_.pfad(path), fehler)) return nicht(" does not exist.");
  if (ablage_.Dateigroesse(path) > Hoechstgroesse)
    return nicht(" is larger than 256 MB: please split it.");
  auto inhalt = ablage_.lies_ganz(path);
  if (!inhalt) return nicht(" can't be read: it is a folder, or you have no right to read it.");
  if (inhalt->empty()) return nicht(" is empty.");
  text = std::move(*inhalt);
  return true;
}

std::unique_ptr<Arbeitsmappe> Messimport::oeffne(std::string_view path, Arbeitsmappenleser& leser,
                                                 std::string& grund) const {
  return leser.oeffne(ablage_.pfad(path), grund);
}

Kanalzeile Messimport::kanalzeile() const {
  return {kanaele_, SP_Zuweis(messung_.OrbiN_spread, captions_).Sensor_Code[1]};
}

/// Names the kind that the file shows where another one was asked for: what can be read is taken
/// all the same.
void Messimport::vergleiche(std::string_view path, Importform gefragt, Importform gezeigt,
                            Importergebnis& ergebnis) const {
  if (gezeigt == gefragt || gezeigt == Importform::keine) return;
  ergebnis.eher = gezeigt;
  ablage_.meldungen().melde(
      "import", path,
      "looks like " + std::string(Importform_Text(gezeigt)) + "; it was read as asked");
}

/// What follows an import that took rows: the measurement's name, and the log.
void Messimport::beenden(std::string_view path, std::string_view name,
                         const Importergebnis& ergebnis) {
  if (ergebnis.Zeilen > 0 && messung_.ProjektNam.empty()) messung_.ProjektNam = name;
  if (!ergebnis.hinweis.empty()) ablage_.meldungen().melde("import", path, ergebnis.hinweis);
}

Importergebnis Messimport::DiaG_import(std::string_view path, int mode, int teil) {
  Importergebnis ergebnis;
  if (mode != I_Logger && mode != I_Steuertext) {
    ergebnis.grund = "No text file is imported by the mode " + std::to_string(mode) + ".";
    return ergebnis;
  }
  std::string text;
  if (!lies(path, text, ergebnis.grund)) return ergebnis;
  ergebnis = mode == I_Logger ? Logger_import(text, teil) : Steuertext_import(text);
  vergleiche(path, mode == I_Logger ? Importform::Logger : Importform::Steuertext,
             Textform_von(text), ergebnis);
  beenden(path, Dateiname_von(path), ergebnis);
  return ergebnis;
}

}  // namespace polarkreis
