#include "diagnostics/diag_select.h"

#include <array>
#include <cstddef>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/messpunkte.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view Trenner = " - ";
constexpr std::string_view Text_Economizer = "Economizer";

/// Rows of the list of channels: the first point of each unit, and the headings of the remote ones.
constexpr int Master_Zeile = 2;
constexpr int Orbiter_1_Zeile = 18;
constexpr int Orbiter_2_Zeile = 35;

/// A scheme's text, parted at the first " - ".
struct Teile {
  std::string_view Art, Variante;
};

Teile geteilt(std::string_view text) {
  const std::size_t ort = text.find(Trenner);
  if (ort == std::string_view::npos) return {text, {}};
  return {text.substr(0, ort), text.substr(ort + Trenner.size())};
}

/// Equal to a caption that the language has.
bool ist(std::string_view text, const std::string& caption) {
  return !getrimmt(text).empty() && gleich(text, caption);
}

/// Where a point sits.
enum class Ort {
  Fluessigkeitsleitung,
  Verdampfer,
  Saugleitung,
  Druckleitung,
  Seite_Verdampfer,
  Seite_Verfluessiger,
  Druck,
  elektrisch,
  frei,
};
using Orte = std::array<Ort, Punkte_je_Einheit>;

constexpr Orte mit_elektrischen(Orte orte) {
  for (std::size_t k = 10; k < orte.size(); ++k) orte[k] = Ort::elektrisch;
  return orte;
}
constexpr Orte Orte_Leitkiste = mit_elektrischen(
    {Ort::Fluessigkeitsleitung, Ort::Verdampfer, Ort::Saugleitung, Ort::Druckleitung,
     Ort::Seite_Verdampfer, Ort::Seite_Verdampfer, Ort::Seite_Verfluessiger,
     Ort::Seite_Verfluessiger, Ort::Saugleitung, Ort::Druckleitung});
constexpr Orte Orte_Orbiter =
    mit_elektrischen({Ort::Fluessigkeitsleitung, Ort::Seite_Verdampfer, Ort::Seite_Verdampfer,
                      Ort::Seite_Verfluessiger, Ort::Seite_Verfluessiger, Ort::Verdampfer,
                      Ort::frei, Ort::frei, Ort::Druck, Ort::Druck});

std::string Ort_Text(Ort ort, VerbCapt elektrisch, const Captions& captions) {
  switch (ort) {
    case Ort::Fluessigkeitsleitung:
      return captions.text(Caption::Fluessigkeitsleitung);
    case Ort::Verdampfer:
      return captions.text(VerbCapt::Verdampfer);
    case Ort::Saugleitung:
      return captions.text(Caption::Saugleitung);
    case Ort::Druckleitung:
      return captions.text(Caption::Druckleitung);
    case Ort::Seite_Verdampfer:
      return captions.text(Caption::Sekundaerseite_Verdampfer);
    case Ort::Seite_Verfluessiger:
      return captions.text(Caption::Sekundaerseite_Verfluessiger);
    case Ort::Druck:
      return captions.text(Caption::Druck);
    case Ort::elektrisch:
      return captions.text(elektrisch);
    case Ort::frei:
      break;
  }
  return {};
}

/// Whose power the clamps measure.
VerbCapt Stromabnehmer(std::string_view text, const Captions& captions) {
  const std::string_view variante = geteilt(text).Variante;
  for (VerbCapt wort : {VerbCapt::Pumpe, VerbCapt::Ventilator})
    if (ist(text, captions.text(wort)) || ist(variante, captions.text(wort))) return wort;
  return VerbCapt::Verdichter;
}

}  // namespace

std::string Schema_Text(const Anlagenschema& schema, const Captions& captions) {
  std::string text = captions.text(schema.zweistufig ? Caption::Zweistufig : Caption::Einstufig);
  if (schema.Variante == Anlagenschema::transkritisch) text.append(Trenner) += Text_transkritisch;
  if (schema.Variante == Anlagenschema::Economizer) text.append(Trenner) += Text_Economizer;
  return text;
}

std::optional<Anlagenschema> Schema_von(std::string_view text, const Captions& captions) {
  const auto [art, variante] = geteilt(text);
  const bool zweistufig = ist(art, captions.text(Caption::Zweistufig));
  if (text.find(Text_transkritisch) != std::string_view::npos)
    return Anlagenschema{zweistufig, Anlagenschema::transkritisch};
  if (!zweistufig && !ist(art, captions.text(Caption::Einstufig))) return std::nullopt;
  if (gleich(variante, Text_Economizer))
    return Anlagenschema{zweistufig, Anlagenschema::Economizer};
  if (!getrimmt(variante).empty()) return std::nullopt;
  return Anlagenschema{zweistufig, Anlagenschema::einfach};
}

std::vector<std::string> DiaG_Select::Combo3_Liste() const {
  std::vector<std::string> texte;
  for (bool zweistufig : {false, true})
    for (auto variante :
         {Anlagenschema::einfach, Anlagenschema::Economizer, Anlagenschema::transkritisch})
      texte.push_back(Schema_Text({zweistufig, variante}, captions_));
  return texte;
}

void DiaG_Select::Type_Select(std::string_view text) {
  Combo3 = std::string(text);  // by a copy: the text may be a part of it
  Bilder_zeigen(Schema_von(Combo3, captions_));
  info_spread_lad(Combo3);
}

void DiaG_Select::TransM_Select() {
  const Anlagenschema bisher = Schema_von(Combo3, captions_).value_or(Anlagenschema{});
  Type_Select(Schema_Text({bisher.zweistufig, Anlagenschema::transkritisch}, captions_));
}

void DiaG_Select::Bilder_zeigen(const std::optional<Anlagenschema>& schema) {
  const bool da = schema.has_value();
  const bool zweistufig = da && schema->zweistufig;
  const bool transkritisch = da && schema->Variante == Anlagenschema::transkritisch;
  Komp1 = da && !zweistufig && !transkritisch;
  Komp2 = zweistufig && !transkritisch;
  Komp3 = transkritisch && !zweistufig;
  Komp4 = transkritisch && zweistufig;
  Econ = da && schema->Variante == Anlagenschema::Economizer;
  Cond1 = da && !transkritisch;
  Air_duct = transkritisch;
  Chanel = da;
}

void DiaG_Select::info_spread_lad(std::string_view text) {
  const VerbCapt elektrisch = Stromabnehmer(text, captions_);
  Pos_Spread = {};
  Einheit_eintragen(Master_Zeile, 1, elektrisch);
  std::string& erster_Ort = Pos_Spread(Master_Zeile, Pos_Ort);
  erster_Ort = "Master" + std::string(Trenner) + erster_Ort;
  Pos_Spread(Orbiter_1_Zeile, Pos_Ort) = "Orbiter 1";
  Einheit_eintragen(Orbiter_1_Zeile + 1, 2, elektrisch);
  Pos_Spread(Orbiter_2_Zeile, Pos_Ort) = "Orbiter 2";
  Einheit_eintragen(Orbiter_2_Zeile + 1, 3, elektrisch);
}

void DiaG_Select::Einheit_eintragen(int erste_zeile, int einheit, VerbCapt elektrisch) {
  const Orte& orte = einheit == 1 ? Orte_Leitkiste : Orte_Orbiter;
  for (int punkt = 1; punkt <= Punkte_je_Einheit; ++punkt) {
    const int zeile = erste_zeile + punkt - 1;
    const Ort ort = orte[static_cast<std::size_t>(punkt - 1)];
    Pos_Spread(zeile, Pos_Punkt) = Messpunkt(einheit, punkt);
    Pos_Spread(zeile, Pos_Ort) = Ort_Text(ort, elektrisch, captions_);
    Pos_Spread(zeile, Pos_Kanal) = Kanaltext(einheit, punkt);
  }
}

}  // namespace polarkreis
