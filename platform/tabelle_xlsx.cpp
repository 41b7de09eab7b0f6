#include "platform/tabelle_xlsx.h"

#include <stdlib.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string_view>
#include <utility>

#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t Hoechstzeilen = 1'048'576, Hoechstspalten = 16'384;
constexpr std::size_t Namenslaenge = 31, Textlaenge = 32'767;
constexpr double Spaltenbreite = 12;
/// Midnight of 1 January 2000: the file's stamp, so that equal tables give equal files.
constexpr std::time_t Stempel = 946'684'800;

/// A folder of its own among the temporary ones, gone with the object.
class Arbeitsordner {
 public:
  Arbeitsordner() {
    std::error_code fehler;
    std::string muster = (fs::temp_directory_path(fehler) / "polarkreis-XXXXXX").string();
    if (!fehler && ::mkdtemp(muster.data()) != nullptr) pfad_ = muster;
  }
  ~Arbeitsordner() {
    std::error_code fehler;
    if (!pfad_.empty()) fs::remove_all(pfad_, fehler);
  }
  Arbeitsordner(const Arbeitsordner&) = delete;
  Arbeitsordner& operator=(const Arbeitsordner&) = delete;
  const std::string& pfad() const { return pfad_; }

 private:
  std::string pfad_;
};

/// A sheet's name has at most 31 characters, none of "[]:*?/\", and no apostrophe at its ends.
std::string Blattname(std::string_view name) {
  std::string erlaubt(erste_zeichen(getrimmt(name), Namenslaenge));
  for (char& c : erlaubt)
    if (std::string_view("[]:*?/\\'").find(c) != std::string_view::npos) c = '-';
  return erlaubt.empty() ? "Polarkreis" : erlaubt;
}

std::size_t groesste_Breite(const Tabelle& tabelle) {
  std::size_t breite = 0;
  for (const auto& zeile : tabelle.Kopf) breite = std::max(breite, zeile.size());
  for (const auto& zeile : tabelle.Zeilen) breite = std::max(breite, zeile.size());
  return breite;
}

/// Writes cell by cell from the top, which lets the library keep a row at a time only.
class Blattschreiber {
 public:
  Blattschreiber(lxw_workbook* mappe, const std::string& name)
      : blatt_(::workbook_add_worksheet(mappe, name.c_str())), fett_(::workbook_add_format(mappe)) {
    ::format_set_bold(fett_);
  }

  void alles(const Tabelle& tabelle) {
    const std::size_t breite = groesste_Breite(tabelle);
    if (breite > 0)
      ::worksheet_set_column(blatt_, 0, static_cast<lxw_col_t>(breite - 1), Spaltenbreite, nullptr);
    ::worksheet_freeze_panes(blatt_, static_cast<lxw_row_t>(tabelle.Kopf.size()), 0);
    for (const auto& zeile : tabelle.Kopf) {
      lxw_col_t spalte = 0;
      for (const auto& text : zeile) schreib(spalte++, text, fett_);
      ++zeile_;
    }
    for (const auto& zeile : tabelle.Zeilen) {
      lxw_col_t spalte = 0;
      for (const auto& zelle : zeile) schreib(spalte++, zelle);
      ++zeile_;
    }
  }
  lxw_error fehler() const { return fehler_; }

 private:
  void schreib(lxw_col_t spalte, std::string_view text, lxw_format* format) {
    if (text.empty()) return;
    const std::string gekuerzt(erste_zeichen(text, Textlaenge));
    merke(::worksheet_write_string(blatt_, zeile_, spalte, gekuerzt.c_str(), format));
  }
  void schreib(lxw_col_t spalte, const Tabellenzelle& zelle) {
    if (const auto* text = std::get_if<std::string>(&zelle)) schreib(spalte, *text, nullptr);
    if (const auto* zahl = std::get_if<double>(&zelle); zahl != nullptr && std::isfinite(*zahl))
      merke(::worksheet_write_number(blatt_, zeile_, spalte, *zahl, nullptr));
  }
  void merke(lxw_error fehler) {
    if (fehler != LXW_NO_ERROR && fehler_ == LXW_NO_ERROR) fehler_ = fehler;
  }

  lxw_worksheet* blatt_;
  lxw_format* fett_;
  lxw_row_t zeile_ = 0;
  lxw_error fehler_ = LXW_NO_ERROR;
};

lxw_error schreib_Datei(const Tabelle& tabelle, const Arbeitsordner& ordner,
                        const std::string& datei) {
  std::string tmpdir = ordner.pfad();
  lxw_workbook_options optionen{};
  optionen.constant_memory = LXW_TRUE;
  optionen.tmpdir = tmpdir.data();
  lxw_workbook* mappe = ::workbook_new_opt(datei.c_str(), &optionen);
  if (mappe == nullptr) return LXW_ERROR_MEMORY_MALLOC_FAILED;
  lxw_doc_properties eigenschaften{};
  eigenschaften.created = Stempel;
  ::workbook_set_properties(mappe, &eigenschaften);
  Blattschreiber blatt(mappe, Blattname(tabelle.Name));
  blatt.alles(tabelle);
  const lxw_error schluss = ::workbook_close(mappe);
  return blatt.fehler() != LXW_NO_ERROR ? blatt.fehler() : schluss;
}

}  // namespace

std::optional<std::string> als_Xlsx(const Tabelle& tabelle, std::string& grund) {
  if (tabelle.Kopf.size() + tabelle.Zeilen.size() > Hoechstzeilen ||
      groesste_Breite(tabelle) > Hoechstspalten) {
    grund = "The table is larger than a worksheet can be.";
    return std::nullopt;
  }
  const Arbeitsordner ordner;
  const std::string datei = ordner.pfad() + "/tabelle.xlsx";
  std::string bytes;
  if (ordner.pfad().empty()) {
    grund = "The worksheet can't be made: there is no folder for temporary files.";
  } else if (const lxw_error fehler = schreib_Datei(tabelle, ordner, datei)) {
    grund = std::string("The worksheet can't be made: ") + ::lxw_strerror(fehler);
  } else if (const int nummer = platte::lies(datei, bytes)) {
    grund = "The worksheet can't be made: " + platte::grund(nummer);
  } else {
    return bytes;
  }
  return std::nullopt;
}

}  // namespace polarkreis
