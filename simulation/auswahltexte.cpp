#include "simulation/auswahltexte.h"

#include <algorithm>
#include <array>

#include "shell/text.h"

namespace polarkreis {

namespace {

using J = JMapCap;

constexpr std::array<Auswahltext, 7> kAnwendung{
    J::Klima_Sommer,    J::Klima_lang, J::Klima_laenger,  J::Produktionskuehlung,
    J::Prozesskuehlung, J::Kaelteraum, J::Kaelteraum_zwei};
constexpr std::array<Auswahltext, 3> kGroesse{Heatcap::Klein, PedCap::Mittel, Heatcap::Gross};
constexpr std::array<Auswahltext, 4> kKlimaklasse{PedCap::Niedrig, Heatcap::Normal, PedCap::Hoch,
                                                  Heatcap::Sehr_hoch};
constexpr std::array<Auswahltext, 4> kBereich{J::Bereich_hoch, J::Bereich_mittel, J::Bereich_tief,
                                              Heatcap::Normal};
constexpr std::array<Auswahltext, 3> kWartung{J::Wartung_gut, J::Wartung_mittel,
                                              J::Wartung_schlecht};
constexpr std::array<Auswahltext, 3> kFuellung{J::Fuellung_richtig, J::Fuellung_knapp,
                                               J::Fuellung_Mangel};
constexpr std::array<Auswahltext, 4> kDaemmung{PedCap::Ohne, PedCap::Niedrig, Heatcap::Normal,
                                               PedCap::Hoch};
constexpr std::array<Auswahltext, 3> kBauart{Caption::Offen, Caption::Halbhermetisch,
                                             Caption::Hermetisch};
constexpr std::array<Auswahltext, 5> kRegelung{J::Regelung_Drehzahl, J::Regelung_ohne,
                                               J::Regelung_Stufen, J::Regelung_zwei_Drehzahlen,
                                               J::Regelung_stetig};
constexpr std::array<Auswahltext, 8> kWinter{PedCap::Ohne, "10 °C", "15 °C", "20 °C",
                                             "25 °C",      "30 °C", "35 °C", "40 °C"};
constexpr std::array<Auswahltext, 3> kVentil{J::Ventil_thermostatisch, J::Ventil_elektronisch,
                                             Caption::Schwimmerventil};
constexpr std::array<Auswahltext, 4> kVerdichter{Caption::Hubkolben, "Scroll", Caption::Schraube,
                                                 "Turbo"};
constexpr std::array<Auswahltext, 3> kAbtauart{"0", "1", "2"};
constexpr std::array<Auswahltext, 10> kVerdampfer_dT{"3", "4", "5",  "6",  "7",
                                                     "8", "9", "10", "11", "12"};
constexpr std::array<Auswahltext, 16> kVerfluessiger_dT{
    "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17", "18"};
constexpr std::array<Auswahltext, 7> kKlassen{"A+", "A", "B", "C", "D", "E", "F"};
constexpr std::array<Auswahltext, 2> kNormstufen{"2016", "2018"};
constexpr std::array<Auswahltext, 4> kLamellen{"4", "7", "10", "12"};
constexpr std::array<Auswahltext, 1> kKaeltemittel{J::Kaeltemittelwort};

constexpr std::array<Auswahltext, 2> kStufen{Caption::Einstufig, Caption::Zweistufig};
constexpr std::array<Auswahltext, 3> kMerkmale{Caption::Direktverdampfung, Caption::Zwischenkuehler,
                                               Caption::Einspritzung};

struct Auswahlliste {
  std::string_view item;
  std::span<const Auswahltext> texte;
};

constexpr std::array kListen{
    Auswahlliste{"KaelteM", kKaeltemittel},
    Auswahlliste{"AnwendBereich", kAnwendung},
    Auswahlliste{"vdsize", kGroesse},
    Auswahlliste{"AnlGroesse", kGroesse},
    Auswahlliste{"VFlsize", kGroesse},
    Auswahlliste{"AmbientT", kKlimaklasse},
    Auswahlliste{"Tempbereich", kBereich},
    Auswahlliste{"WartungI", kWartung},
    Auswahlliste{"Fullzustand", kFuellung},
    Auswahlliste{"Leitungsdimension", kGroesse},
    Auswahlliste{"WaermeD", kDaemmung},
    Auswahlliste{"Verdichterbauart", kBauart},
    Auswahlliste{"RGart", kRegelung},
    Auswahlliste{"WinterRGart", kWinter},
    Auswahlliste{"Combo1", kVentil},
    Auswahlliste{"RGartP", kRegelung},
    Auswahlliste{"RGartL", kRegelung},
    Auswahlliste{"Abtauart", kAbtauart},
    Auswahlliste{"verdichter_typ", kVerdichter},
    Auswahlliste{"dtVerfl", kVerfluessiger_dT},
    Auswahlliste{"DT_v_combo", kVerdampfer_dT},
    Auswahlliste{"VERFL_Eff_combo", kKlassen},
    Auswahlliste{"VERDA_Eff_combo", kKlassen},
    Auswahlliste{"ErP_Vers", kNormstufen},
    Auswahlliste{"Lamm_AB_combo", kLamellen},
};

}  // namespace

bool benennt(const std::string& caption, std::string_view text) {
  return !caption.empty() && gleich(caption, text);
}

std::span<const Auswahltext> Auswahltexte(std::string_view item) {
  const auto liste = std::find_if(kListen.begin(), kListen.end(),
                                  [item](const Auswahlliste& l) { return l.item == item; });
  return liste == kListen.end() ? std::span<const Auswahltext>{} : liste->texte;
}

std::span<const Auswahltext> Anlagenart_Stufen() {
  return kStufen;
}

std::span<const Auswahltext> Anlagenart_Merkmale() {
  return kMerkmale;
}

std::span<const Auswahltext> Verdichtertypen() {
  static constexpr std::array<Auswahltext, 4> kTypen{Caption::Hubkolben, Caption::Schraube,
                                                     "Scroll", "Turbo"};
  return kTypen;
}

std::span<const Auswahltext> Bauformen() {
  static constexpr std::array<Auswahltext, 3> kFormen{Caption::Offen, Caption::Halbhermetisch,
                                                      Caption::Hermetisch};
  return kFormen;
}

int Nummer_in(const Captions& captions, std::span<const Auswahltext> liste, std::string_view text) {
  for (std::size_t i = 0; i < liste.size(); ++i)
    if (benennt(liste[i].text(captions), text)) return static_cast<int>(i) + 1;
  return 0;
}

bool ist_Kaelteraum(const Captions& captions, std::string_view anwendung) {
  return benennt(captions.text(JMapCap::Kaelteraum), anwendung) ||
         benennt(captions.text(JMapCap::Kaelteraum_zwei), anwendung);
}

}  // namespace polarkreis
