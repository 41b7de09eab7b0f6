#include "monitoring/register.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "monitoring/textzeilen.h"
#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

/// Why there can be no register behind that path, though something is there: a link to nothing (a
/// disk that is not there now), a pipe.
std::string kein_Text(const std::string& pfad) {
  namespace fs = std::filesystem;
  std::error_code fehler;
  const bool da = fs::exists(fs::symlink_status(pfad, fehler));
  const fs::file_status ziel = fs::status(pfad, fehler);
  if (!da || fs::is_regular_file(ziel) || fs::is_directory(ziel)) return {};
  return fs::exists(ziel) ? "it is no file." : "it is a link to a file that is not there.";
}

std::size_t textzahl(std::string_view inhalt) {
  std::size_t anzahl = 0;
  for (Textzeilen zeilen(inhalt, true); !zeilen.ende(); ++anzahl) zeilen.lies();
  return anzahl;
}

std::string lage(int gelesen, int ueberzaehlig, int gebrochen) {
  std::string text;
  if (gelesen < Register::Zeilen * Register::Spalten)
    text = "ends after " + std::to_string(gelesen) + " cells, those behind stay as they were; ";
  if (ueberzaehlig > 0)
    text += std::to_string(ueberzaehlig) +
            " lines behind the last of 10,000 cells are left out, by the next save too; ";
  if (gebrochen > 0)
    text += std::to_string(gebrochen) + " lines with broken quotes were taken as they stand; ";
  if (!text.empty()) text.resize(text.size() - 2);
  return text;
}

}  // namespace

const std::string& Register::zelle(int zeile, int spalte) const {
  static const std::string nichts;
  return innen(zeile, spalte) ? zellen_[ort(zeile, spalte)] : nichts;
}

// A cell then reads alike before a save and after it.
void Register::setze(int zeile, int spalte, std::string text) {
  if (innen(zeile, spalte)) zellen_[ort(zeile, spalte)] = Teil_als_utf8(std::move(text));
}

int Register::Serverwahl(int zeile) const {
  const double zahl = Wert(zelle(zeile, Registerspalte::Server_Wahl));
  if (zahl == Standardserver) return Standardserver;
  return zahl == eigener_Server ? eigener_Server : 0;
}

int Register::suche(std::string_view ID) const {
  const std::string_view gesucht = getrimmt(ID);
  if (gesucht.empty()) return 0;
  for (int zeile = 1; zeile <= Zeilen; ++zeile)
    if (getrimmt(zelle(zeile, Registerspalte::ID)) == gesucht) return zeile;
  return 0;
}

int Register::freie_Zeile() const {
  for (int zeile = 1; zeile <= Zeilen; ++zeile)
    if (getrimmt(zelle(zeile, Registerspalte::ID)).empty()) return zeile;
  return 0;
}

bool Register::ist_leer(int zeile) const {
  for (int spalte = 1; spalte <= Spalten; ++spalte)
    if (!zelle(zeile, spalte).empty()) return false;
  return true;
}

// Only a file of exactly so many cells is taken as the program's own whole one.
bool Register::lies(Ablage& ablage) {
  ueberzaehlig = 0;
  hindernis = kein_Text(ablage.pfad(Datei));
  if (!hindernis.empty()) return false;
  const std::optional<std::string> inhalt = ablage.lies_bytes(Datei, &hindernis);
  if (!inhalt || inhalt->empty()) return false;
  Textzeilen zeilen(*inhalt, textzahl(*inhalt) == zellen_.size());
  std::size_t gelesen = 0;
  for (; gelesen < zellen_.size() && !zeilen.ende(); ++gelesen) zellen_[gelesen] = zeilen.lies();
  for (; !zeilen.ende(); ++ueberzaehlig) zeilen.lies();
  const std::string text = lage(static_cast<int>(gelesen), ueberzaehlig, zeilen.gebrochen());
  if (!text.empty()) ablage.meldungen().melde("read", ablage.pfad(Datei), text);
  return true;
}

bool Register::schreib(Ablage& ablage) const {
  if (!hindernis.empty()) {
    ablage.meldungen().melde("write", ablage.pfad(Datei), "left as it is: it could not be read");
    return false;
  }
  std::string inhalt;
  for (const std::string& text : zellen_) zeile_anhaengen(inhalt, {text});
  return ablage.schreib_ganz(Datei, inhalt, Haltbarkeit::sicher, Zugriff::nur_Eigner);
}

}  // namespace polarkreis
