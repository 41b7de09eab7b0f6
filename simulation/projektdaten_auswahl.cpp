#include "shell/text.h"
#include "shell/wert.h"
#include "simulation/auswahltexte.h"
#include "simulation/projektdaten.h"

namespace polarkreis {

namespace {

/// A kind of calculation with a norm's temperature: the fields that it sets.
struct Normart {
  std::string text;
  std::string_view Bewertung;
  JMapCap anwendung;
  Auswahltext bereich;
  std::string_view t0;
};

std::vector<Normart> Normarten(const Captions& captions) {
  using J = JMapCap;
  const std::string& wort = captions.text(Caption::Bewertung);
  const std::string sepr = wort + " SEPR " + captions.text(J::Prozesskuehlung) + " ";
  const std::string seer = wort + " SEER " + " " + captions.text(J::Klima_Sommer);
  return {
      {sepr + captions.text(J::Bereich_hoch), "SEPR", J::Prozesskuehlung, J::Bereich_hoch, "3"},
      {sepr + captions.text(J::Bereich_mittel), "SEPR", J::Prozesskuehlung, J::Bereich_mittel,
       "-10"},
      {sepr + captions.text(J::Bereich_tief), "SEPR", J::Prozesskuehlung, J::Bereich_tief, "-35"},
      {seer, "SEER", J::Klima_Sommer, Heatcap::Normal, "3"},
  };
}

std::string Auslegungsart(const Captions& captions) {
  return captions.text(JMapCap::Auslegungspunkt) + " VDI 2067";
}

std::string Jahresart(const Captions& captions) {
  return captions.text(JMapCap::Jahresrechnung) + ": " + captions.text(Caption::Bewertung) + " " +
         captions.text(AirCoCap::Januar) + "-" + captions.text(AirCoCap::Dezember);
}

/// Captions of the condenser kinds.
struct Verfluessigerworte {
  explicit Verfluessigerworte(const Captions& captions)
      : luft(captions.text(PedCap::Luftgekuehlt)),
        trocken(captions.text(SoleCapt::Trockenkuehler)),
        wasser(captions.text(PedCap::Wassergekuehlt)) {}
  std::string luft, trocken, wasser;
};

std::vector<std::string> Verfluessigertypen(const Captions& captions) {
  const Verfluessigerworte wort(captions);
  const std::string adiabat(kAdiabat);
  return {wort.luft,
          wort.trocken,
          wort.trocken + " " + wort.luft,
          wort.wasser,
          std::string(kKuehlturm),
          wort.luft + adiabat,
          wort.trocken + adiabat};
}

std::vector<std::string> Anlagenarten(const Captions& captions) {
  const std::string trenner(kAnlagenart_Trenner);
  const std::string einstufig = captions.text(Caption::Einstufig) + trenner;
  const std::string zweistufig = captions.text(Caption::Zweistufig) + trenner;
  return {einstufig + captions.text(Caption::Direktverdampfung),
          zweistufig + captions.text(Caption::Zwischenkuehler),
          zweistufig + captions.text(Caption::Einspritzung)};
}

std::vector<std::string> Kaeltemittelnamen() {
  std::vector<std::string> namen;
  for (const KMEintrag& eintrag : KM_Katalog()) namen.emplace_back(eintrag.name);
  return namen;
}

}  // namespace

std::vector<std::string> Projektdaten::Auswahl(std::string_view item) const {
  if (item == "KaelteM") return Kaeltemittelnamen();
  if (item == "Anlagenart_Combo") return Anlagenarten(captions);
  if (item == "Vfl_typ") return Verfluessigertypen(captions);
  if (item == "Rechart_combo") return Rechart_Auswahl();
  std::vector<std::string> texte;
  for (const Auswahltext& text : Auswahltexte(item)) texte.push_back(text.text(captions));
  return texte;
}

std::vector<std::string> Projektdaten::Rechart_Auswahl() const {
  std::vector<std::string> texte{Auslegungsart(captions), Jahresart(captions)};
  for (const Normart& art : Normarten(captions)) texte.push_back(art.text);
  return texte;
}

void Projektdaten::Rechart_waehlen(std::string_view text) {
  Rechart_combo = text;
  Rechart = std::to_string(Rechenart_von(captions, text).Rechart);
  for (const Normart& art : Normarten(captions)) {
    if (!gleich(art.text, text)) continue;
    AnwendBereich = captions.text(art.anwendung);
    Tempbereich = art.bereich.text(captions);
    t0 = art.t0;
    break;
  }
  Zahlen_ableiten();
}

bool Projektdaten::Betriebszahlen_wirksam() const {
  return Rechenart_von(captions, Rechart_combo).Rechart == 0;
}

void Projektdaten::Rechart_zeigen() {
  Rechart_combo = Wert(Rechart) == 1 ? Jahresart(captions) : Auslegungsart(captions);
}

Rechenart Rechenart_von(const Captions& captions, std::string_view text) {
  if (gleich(text, Auslegungsart(captions))) return {0, "ESEER"};
  for (const Normart& art : Normarten(captions))
    if (gleich(text, art.text)) return {1, art.Bewertung};
  return {1, "SEER/SEPR"};
}

Verfluessigerart Verfluessigerart_von(const Captions& captions, std::string_view text) {
  const Verfluessigerworte wort(captions);
  if (benennt(wort.wasser, text)) return Verfluessigerart::Wasser;
  if (gleich(text, kKuehlturm)) return Verfluessigerart::Kuehlturm;
  const std::string adiabat(kAdiabat);
  if (gleich(text, wort.luft + adiabat) || gleich(text, wort.trocken + adiabat))
    return Verfluessigerart::Adiabat;
  return Verfluessigerart::Luft;
}

}  // namespace polarkreis
