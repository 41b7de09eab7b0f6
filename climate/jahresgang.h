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
/// "JG_Temp.dat" as the run reads it: ten heading items, twelve groups of ten.
struct Monatstabelle {
  std::string Land, Stadt;
  std::array<Monatszeile, 12> monate;
  bool da = false;  ///< the file is there and not empty
};
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
  /// blanks).
  std::array<std::array<std::string, 10>, 12> Spread1;
  std::vector<std::string> Laender, Orte;
  bool Gang_da = false;  ///< a course exists: the run takes "JG_Temp.dat" as it stands

  /// Opens on the current selection and the application: fills the lists, the temperatures and the
  /// loads.
  void oeffnen(std::string_view anwendung);
  void Combo1_aendern(std::string_view land);
  void OrteListe_aendern(std::string_view stadt);
  void AnwendBereich_aendern(std::string_view anwendung);
  /// One of the six option buttons, 1 to 6.
  void Option3d(int nummer);
  /// Temperatures and loads anew, over hand edits in all four columns.
  void rechbutt();
  bool SpeichButt() { return Profil_speichern(AnwendBereich); }
  /// Takes the selections over, writes "JG_Temp.dat"; false if it could not be written.
  bool OKbutt();

  void Temperaturverlauf_rechnen();
  void Profil_laden(std::string_view anwendung);
  bool Profil_speichern(std::string_view anwendung);
  bool Monatstabelle_schreiben();
  /// Copies the cell of columns 4 or 5 to all twelve months; other columns do nothing.
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
  Ablage& ablage_;
  const Captions& captions_;
  Klima& klima_;
  Stufen stufen_;
};

}  // namespace polarkreis
