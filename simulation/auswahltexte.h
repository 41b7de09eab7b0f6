#pragma once

#include <span>
#include <string>
#include <string_view>

#include "shell/captions.h"

namespace polarkreis {

/// One text that a selection can hold: a caption line, or a text that is the same in every
/// language.
struct Auswahltext {
  constexpr Auswahltext(JMapCap z) : stamm(Stamm::JMapCap), zeile(static_cast<int>(z)) {}
  constexpr Auswahltext(Heatcap z) : stamm(Stamm::heatcap), zeile(static_cast<int>(z)) {}
  constexpr Auswahltext(PedCap z) : stamm(Stamm::PEDcap), zeile(static_cast<int>(z)) {}
  constexpr Auswahltext(Caption z) : stamm(Stamm::Caption), zeile(static_cast<int>(z)) {}
  constexpr Auswahltext(SoleCapt z) : stamm(Stamm::SoleCapt), zeile(static_cast<int>(z)) {}
  constexpr Auswahltext(const char* text) : fest(text) {}

  Stamm stamm = Stamm::JMapCap;
  int zeile = 0;          ///< 0: a fixed text
  std::string_view fest;  ///< the text where there is no line

  std::string text(const Captions& captions) const {
    return zeile ? captions.text(stamm, zeile) : std::string(fest);
  }
};

/// True if the text of a selection is this caption. A caption that is missing names nothing, so
/// that an empty selection does not turn into its meaning.
bool benennt(const std::string& caption, std::string_view text);

/// The texts that the selection `item` of a project offers, in order; empty for an item that is no
/// selection of captions. Composed selections (`Anlagenart_Combo`, `Vfl_typ`) are not in here.
std::span<const Auswahltext> Auswahltexte(std::string_view item);

/// Compressor types and constructions in the order of their numbers, from 1.
std::span<const Auswahltext> Verdichtertypen();
std::span<const Auswahltext> Bauformen();
/// The number of the text in such a list; 0 if it is none of them.
int Nummer_in(const Captions& captions, std::span<const Auswahltext> liste, std::string_view text);

/// True for the two cold-room applications.
bool ist_Kaelteraum(const Captions& captions, std::string_view anwendung);

/// --- The pieces of the composed selections.

/// Kind of plant: number of stages, then what distinguishes it, with `kAnlagenart_Trenner` between.
std::span<const Auswahltext> Anlagenart_Stufen();
std::span<const Auswahltext> Anlagenart_Merkmale();
inline constexpr std::string_view kAnlagenart_Trenner = " - ";
/// Condenser kind: the dry-cooler word and "air-cooled" may stand together, with a blank between.
inline constexpr std::string_view kKuehlturm = "Kühlturm";
inline constexpr std::string_view kAdiabat = "/adiabt";

}  // namespace polarkreis
