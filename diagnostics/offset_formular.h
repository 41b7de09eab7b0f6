#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/kanaele.h"
#include "diagnostics/texttabelle.h"
#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// The form of the calibration: offsets of all channels, scaling of the free inputs, monitoring
/// switch. It edits the files only; a measurement takes its offsets over by `Offset_laden`.
class Offset {
 public:
  /// Tables stand with their default texts in the language of `captions`.
  Offset(Ablage& ablage, const Captions& captions);

  /// Columns of `Offset_Spread`: running number, measuring unit, point such as "-1.1", kind of
  /// quantity, sensor with the unit of its value, accuracy, offset, unit of the offset.
  enum Offset_Spalte {
    Nummer = 1,
    Einheit = 2,
    Punkt = 3,
    Art = 4,
    Fuehler = 5,
    Genauigkeit = 6,
    Korrektur = 7,
    Masseinheit = 8
  };
  /// One row a channel: 16 rows for the base unit, then 16 for each of `Orbiter` 1 to 5.
  Texttabelle<96, 8> Offset_Spread;

  /// Columns of `SP_Spread`.
  enum SP_Spalte { SP_Kanal = 1, SP_Min = 2, SP_Max = 3, SP_Units = 4 };
  /// Rows 0 to 11, three for each free input: its name with the headings "Min.", "Max.", "Units",
  /// its signal range, its physical range.
  Texttabelle<12, 4, 0> SP_Spread;
  /// 1: the base unit is a monitoring box.
  int Monitoring_Check = 0;

  /// The tabs, their titles, and the one that is open.
  enum Reiter { Offsets = 0, Firmware = 1, COM_Port = 2, Freie_Eingaenge = 3 };
  std::string Reiter_Text(Reiter reiter) const;
  Reiter Offen = Offsets;
  /// The text of the button on the tab of the firmware.
  static constexpr std::string_view Upload_Text = "     Upload";

  /// The current clamps to choose from, and the choice; no file keeps it.
  static std::vector<std::string> Stromzangen();
  std::string Stromzange;

  /// The units to choose from in that row of `SP_Spread`; none in a heading row or outside.
  static std::span<const std::string_view> Combo2_Liste(int zeile);
  /// Places the drop-down over the unit's cell of a row; false where there is nothing to choose.
  bool Combo2_zeigen(int zeile);
  /// Takes a unit of the list over into the cell and hides the drop-down; other texts are ignored.
  void Combo2_waehlen(std::string_view einheit);
  int Combo2_Zeile = -1;  ///< the row that the drop-down lies over; -1: hidden

  /// Reads both files. A missing one gives the default texts; a short one leaves what lies beyond
  /// its end.
  void OFFSET_lad();
  /// Writes both files: 96 offsets, then the scalings and the switch. False if one of them could
  /// not be written: `Fehlertext` tells why, and the other one is written nevertheless.
  bool Offset_Speich();
  std::string Fehlertext;

  /// Has no work of its own: always the empty value.
  double Kalibrier_festleg() const;

 private:
  void Standardtexte();
  void Zeile_Standard(int zeile);
  void Offsets_lesen();
  void Skalen_lesen();
  Eingangsskalierung Skalen() const;
  bool Datei_schreiben(const char* name, const std::string& inhalt);

  Ablage& ablage_;
  const Captions& captions_;
};

}  // namespace polarkreis
