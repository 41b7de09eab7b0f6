#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/texttabelle.h"
#include "shell/captions.h"

namespace polarkreis {

/// A plant scheme. Its text is the kind (`Caption::Einstufig`, `Caption::Zweistufig`), and for a
/// plant that is not plain " - " and the variant.
struct Anlagenschema {
  enum Variantenart { einfach, Economizer, transkritisch };
  bool zweistufig = false;
  Variantenart Variante = einfach;
  bool operator==(const Anlagenschema&) const = default;
};

/// The text of a scheme in the language in force.
std::string Schema_Text(const Anlagenschema& schema, const Captions& captions);
/// The scheme of a text, compared with the transcritical text first, then with the economizer
/// texts, then with the plain ones; nothing for another text. A text that holds the transcritical
/// one is transcritical whatever its kind says.
std::optional<Anlagenschema> Schema_von(std::string_view text, const Captions& captions);

/// The form that asks what plant is measured, and shows where each channel sits.
class DiaG_Select {
 public:
  explicit DiaG_Select(const Captions& captions) : captions_(captions) {}

  std::string Combo3;  ///< the plant scheme
  /// The schemes to choose from, in the language in force.
  std::vector<std::string> Combo3_Liste() const;

  /// Which pictures show. One compressor picture at a time: `Komp1` single-stage, `Komp2`
  /// two-stage, `Komp3` and `Komp4` the same of a transcritical plant.
  bool Komp1 = false, Komp2 = false, Komp3 = false, Komp4 = false;
  bool Econ = false;      ///< the economiser
  bool Cond1 = false;     ///< the condenser
  bool Air_duct = false;  ///< in its place the gas cooler in its air duct, of a transcritical plant
  bool Chanel = false;    ///< the measuring points on the scheme, for every scheme that is known

  /// Columns of `Pos_Spread`: point number, where it sits, what it measures.
  enum Pos_Spalte { Pos_Punkt = 1, Pos_Ort = 2, Pos_Kanal = 3 };
  /// Row 1 is left for headings, rows 2 to 17 are the base unit, whose first place begins with
  /// "Master", row 18 is "Orbiter 1" and row 35 "Orbiter 2", each with its 16 points below; row 52
  /// is empty.
  Texttabelle<52, 3> Pos_Spread;

  /// Takes the scheme over and shows its pictures and its channels. A text that is no scheme shows
  /// no picture.
  void Type_Select(std::string_view text);
  /// Makes the scheme a transcritical one of the same kind, single-stage where there was none.
  void TransM_Select();
  /// Fills `Pos_Spread`. The electrical points sit at the pump or the fan where `text`, or the
  /// variant behind its " - ", is that function's caption, else at the compressor.
  void info_spread_lad(std::string_view text);

 private:
  void Bilder_zeigen(const std::optional<Anlagenschema>& schema);
  void Einheit_eintragen(int erste_zeile, int einheit, VerbCapt elektrisch);

  const Captions& captions_;
};

}  // namespace polarkreis
