#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulation/ergebnis.h"

namespace polarkreis {

/// Control marks of the reports: one before a heading, one between the label and the value columns,
/// one between the columns of a table.
inline constexpr std::string_view Marke_Kopf = "&$$";
inline constexpr std::string_view Marke_Spalte = "§$&";
inline constexpr std::string_view Marke_Tabelle = "&%!";

/// The report as text, as "ergEN1.DAT" holds it: lines with CR LF.
std::string Bericht_Text(const Projektdaten& projekt, const Laufergebnis& lauf,
                         const Ergebnis& ergebnis, std::string_view waehrung);

/// Writes "ergEN1.DAT"; false if it could not be put in place.
bool Ergebnis_Schreiben(const Projektdaten& projekt, const Laufergebnis& lauf,
                        const Ergebnis& ergebnis, std::string_view waehrung);

/// One line of a report as the editor lays it out.
struct Berichtszeile {
  bool kopf = false;
  bool lineal = false;
  std::string text;                       ///< the label, or the whole line
  std::string wert;                       ///< the value column; empty where the line has none
  std::vector<std::string> spalten = {};  ///< a table's columns behind the label
};

/// The report editor without its form: opens a report (lines as they stand, or each one quoted
/// text), splits its lines at the marks and turns pages.
class ErgebEdit {
 public:
  explicit ErgebEdit(Ablage& ablage) : ablage_(ablage) {}

  int Zeilen_je_Seite = 60;
  int Seite = 1;
  std::vector<Berichtszeile> zeilen;

  /// Reads the report; false, and no lines, where there is none.
  bool oeffnen(std::string_view name = "ergEN1.DAT");
  int Seitenzahl() const;
  /// The lines of the page in view, its heading first: title, page and number of pages.
  std::vector<Berichtszeile> seite() const;
  std::string PrintHead() const;
  /// Moves by pages; stays within the report.
  void Command3D(int seiten);

 private:
  Ablage& ablage_;
};

}  // namespace polarkreis
