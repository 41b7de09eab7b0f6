#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/wert.h"

namespace polarkreis {

/// The nine climate figures of a city; empty (NaN) where the table gives none. An item without a
/// number is 0, but a figure behind the end of a file that was cut off is empty.
struct Klimasatz {
  double T_Sommer_hoch = leer;        ///< upper summer temperature, °C
  double Feuchte_Sommer_hoch = leer;  ///< relative humidity that belongs to it, %
  double T_Diff_Tag_Nacht = leer;     ///< difference between day and night, K
  double T_Sommer_tief = leer;        ///< lower summer temperature, °C
  double Feuchte_Sommer_tief = leer;  ///< relative humidity that belongs to it, %
  double T_Winter_hoch = leer;        ///< upper winter temperature, °C
  double T_Winter_tief = leer;        ///< lower winter temperature, °C
  double Hoehe = leer;                ///< height above sea level, m
  double Breite = leer;               ///< latitude without its S, degrees
  bool suedlich = false;              ///< the latitude carried an S; nothing acts on it

  /// False where a temperature or humidity is empty: a course counts it as 0. None uses height and
  /// latitude.
  bool vollstaendig() const;
};

/// Selectors of `Klima_Wert`.
enum class Klimawahl {
  T_Sommer_hoch = 1,
  T_Winter_tief = 2,
  T_Diff_Tag_Nacht = 3,
  Breite = 4,
  T_Sommer_tief = 5,
  T_Winter_hoch = 6,
  Hoehe = 7,
  Feuchte_Monat = 8,
  Feuchte_Sommer_tief = 9
};

/// The climate tables, and the current selection. Every query reads the tables afresh.
class Klima {
 public:
  static constexpr int Laenderzahl = 138;
  static constexpr int Staedtezahl = 50;
  static constexpr int Stadtfelder = 10;

  Klima(Ablage& ablage, const Captions& captions) : ablage_(ablage), captions_(captions) {}

  std::string Land;           ///< the country; padded with "_" once its file has been named
  std::string Stadt;          ///< the city
  std::string Monat_aktuell;  ///< a month name exactly as it stands in the caption table

  /// Name of the city file of `land`, which is padded with "_" to 8 characters in place; a blank
  /// one stays and names "AC_CITY.DAT", as "Germany" in any case does. Empty for a text that would
  /// lead out of the data folder: one with "/" or "\" in its first 8 characters is no country.
  static std::string Klima_Dateiname(std::string& land);
  /// One number of the city out of the file of `Land` (see `Klimawahl`), or the humidity of the
  /// current month in % (selector 8). Empty for an unknown selector or month and for a city that
  /// isn't found; only the humidity takes 0 % as an empty summer figure. `Land` is padded.
  double Klima_Wert(std::string_view stadt, int selektor);
  /// All figures of the city, or nothing if the table doesn't hold it. Names are compared trimmed,
  /// with case; the first of equal names counts.
  std::optional<Klimasatz> satz(std::string_view stadt);

  /// The city file of `Land`; empty, and told in the message log, where that is no country.
  std::string Stadtdatei();

  /// The countries in file order, up to the first blank line; the cities of `Land` in file order
  /// without blanks (a blank `Land` becomes "GERMANY_").
  std::vector<std::string> laender();
  std::vector<std::string> staedte();

  /// `Land` without the "_" at its end, as people write it.
  static std::string land_anzeige(std::string_view land);
  /// Equal countries: "_" at the end, blanks around and case ignored.
  static bool gleiches_land(std::string_view a, std::string_view b);

 private:
  /// A city file as parsed: its records in file order, at most 50, those with a blank name too.
  struct Stadt_mit_Satz {
    std::string name;
    Klimasatz satz;
  };
  using Stadttabelle = std::vector<Stadt_mit_Satz>;

  /// The texts of a record; those behind the file's end are none.
  using Stadttexte = std::array<std::optional<std::string>, Stadtfelder>;

  Stadttabelle zerlegt(std::string_view inhalt, std::string_view datei);
  static Klimasatz satz_aus(const Stadttexte& felder);
  const Stadttabelle& tabelle();
  const Stadt_mit_Satz* suche(std::string_view stadt);
  double Feuchte_Monat(double F) const;
  void melde_einmal(std::string_view datei, const std::string& text);

  Ablage& ablage_;
  const Captions& captions_;
  Dateikopie<Stadttabelle> kopie_;
  std::string gemeldet_;  // what was told last
};

/// The editor of the climate tables: 138 countries, 50 cities with their ten texts.
class editcity {
 public:
  editcity(Ablage& ablage, const Captions& captions, Klima& klima);

  using Stadtzeile = std::array<std::string, Klima::Stadtfelder>;
  std::array<Stadtzeile, Klima::Staedtezahl> Spread1;     ///< texts as typed, unchecked
  std::array<std::string, Klima::Laenderzahl> CountrySp;  ///< texts as typed, in file order
  int Rueckgabe = 0;                                      ///< 3 after OK

  /// Reads the city file of the current country, up to the first record whose first three items are
  /// blank, and the country list.
  void oeffnen();
  /// Takes the country of the row (1 to 138; any other does nothing) and reads its cities; unsaved
  /// edits of the cities are lost.
  void Command3D1(int zeile);
  /// Writes the cities of the current country (not where it is blank) and the country list; false
  /// if a file could not be written, the other one is written all the same.
  bool SPS_Sich();
  /// As `SPS_Sich`, and sets the return mark whatever came of it.
  bool OKbutt();
  /// Headings of the ten columns; the unit of temperature without brackets, as "°C".
  std::array<std::string, Klima::Stadtfelder> Spaltenkoepfe(
      std::string_view temperatureinheit) const;

 private:
  void lies_Staedte();
  void lies_Laender();
  bool schreib_Staedte();
  bool schreib_Laender();

  Ablage& ablage_;
  const Captions& captions_;
  Klima& klima_;
};

}  // namespace polarkreis
