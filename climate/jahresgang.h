#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "climate/klima.h"

namespace polarkreis {

/// Shares of the 24 hours; `Stunde` 1 to 24. Another hour gives an empty result.
/// Temperature in °C: `T_Tag` at 15:00, `T_Nacht` at 5:00.
double Stundentemperatur(double T_Tag, double T_Nacht, int Stunde);
/// Load in %: `Last_Tag` at 15:00, `Last_Nacht` at 5:00. The table's share itself, %, is
/// `Stundenlast_Anteil`.
double Stundenlast(double Last_Tag, double Last_Nacht, int Stunde);
double Stundenlast_Anteil(int Stunde);
/// Relative humidity in %, from the month's figure `R` at 15:00 up to 92 % at 5:00. Not finite
/// where day and night have the same temperature: the caller's figure then stays.
double Stundenfeuchte(double R, double T, double T_Tag, double T_Nacht);

/// The number of an application (1 to 7) in the order of its selection and of the profile files; 0
/// if it is none.
int Anwendung_Nummer(const Captions& captions, std::string_view anwendung);
/// The text of application n.
const std::string& Anwendung_Text(const Captions& captions, int n);

/// One month as the run reads it.
struct Monatszeile {
  std::string Monat, T_Tag, T_Nacht, Last_Tag, Last_Nacht;
};
/// Month m in the language in force: a course that was made in another language names its months in
/// that. A text that is no language's name of the month stays.
std::string Monatsname(const Captions& captions, int m, const std::string& text);
/// "JG_Temp.dat" as the run reads it: ten heading items (country, city, eight blanks), twelve
/// groups of ten items (month, T_Tag, T_Nacht, Last_Tag, Last_Nacht, five blanks).
struct Monatstabelle {
  std::string Land, Stadt;
  std::array<Monatszeile, 12> monate;
  bool da = false;  ///< the file is there and not empty
};
/// Reads the file without creating it; what it doesn't hold is the empty text.
Monatstabelle Monatstabelle_lesen(Ablage& ablage);

/// The dialog of the annual course: place and application in, the month table out.
class JahresGang {
 public:
  JahresGang(Ablage& ablage, const Captions& captions, Klima& klima);

  std::string Combo1;         ///< country
  std::string OrteListe;      ///< city
  std::string AnwendBereich;  ///< application
  int Spitze_Option = 2;      ///< summer level: `Option3d1` to `Option3d3` as 1 to 3
  int Sockel_Option = 5;      ///< winter level: `Option3d4` to `Option3d6` as 4 to 6
  /// Month table: 12 rows, columns 1 to 10 (month, T_Tag, T_Nacht, Last_Tag, Last_Nacht, five
  /// blanks). Temperatures in °C with one decimal, loads in % of the design load.
  std::array<std::array<std::string, 10>, 12> Spread1;
  std::vector<std::string> Laender, Orte;
  bool Gang_da = false;  ///< a course exists: the run takes "JG_Temp.dat" as it stands

  /// Opens on the current selection and the application: fills the lists, the temperatures and the
  /// loads.
  void oeffnen(std::string_view anwendung);
  /// Takes the country over as `Land` and fills the list of its cities; the chosen city stays if
  /// it is in that list, otherwise the first one is chosen.
  void Combo1_aendern(std::string_view land);
  /// A changed city or application loads the profile anew.
  void OrteListe_aendern(std::string_view stadt);
  void AnwendBereich_aendern(std::string_view anwendung);
  /// One of the six option buttons, 1 to 6.
  void Option3d(int nummer);
  /// Temperatures and loads anew, over hand edits in all four columns.
  void rechbutt();
  bool SpeichButt() { return Profil_speichern(AnwendBereich); }
  /// Takes country and city over into the selection (the caller takes the application), marks the
  /// course as there and writes "JG_Temp.dat"; false if it could not be written.
  bool OKbutt();

  /// Columns 2 and 3 for the city in `OrteListe`; a figure that its table doesn't give counts as 0.
  /// The southern hemisphere is not shifted.
  void Temperaturverlauf_rechnen();
  /// Columns 4 and 5 from the application's profile file, which is first written with its default
  /// table where it is missing or empty. An unknown application leaves them as they are, and so
  /// does an item that the file doesn't hold.
  void Profil_laden(std::string_view anwendung);
  /// Writes columns 4 and 5 to the application's profile file; false if it could not be written or
  /// the application is unknown.
  bool Profil_speichern(std::string_view anwendung);
  /// Writes "JG_Temp.dat"; false if it could not be written.
  bool Monatstabelle_schreiben();
  /// Copies the cell of row 1 to 12, column 4 or 5, to all twelve months; other cells do nothing.
  void Spalte_fuellen(int zeile, int spalte);
  /// Headings of the five columns in use.
  std::array<std::string, 5> Spaltenkoepfe() const;

  /// Intermediate figures of the temperature course, for display and test: levels `a`, `b`, `c`,
  /// `e`, `Sockel`, `Spitze`, in °C, and the steps `K1` to `K7` in K.
  struct Stufen {
    double a = leer, b = leer, c = leer, e = leer, Sockel = leer, Spitze = leer;
    std::array<double, 7> K{};
  };
  const Stufen& stufen() const { return stufen_; }

 private:
  void Monatsnamen_setzen();
  void Stufen_rechnen(const Klimasatz& satz);
  void Monat_rechnen(std::size_t m, double D);

  Ablage& ablage_;
  const Captions& captions_;
  Klima& klima_;
  Stufen stufen_;
};

}  // namespace polarkreis
