#include "diagnostics/einheiten_funktion.h"

#include "shell/text.h"

namespace polarkreis {

namespace {

/// The functions in the order in which a text is compared with them: the first hit counts, and what
/// none of them fits is an ordinary compressor.
constexpr std::array<Funktionscode, 11> Vergleichsfolge = {
    F_Luftseite,  F_transkritisch, F_Pumpe,        F_Ventilator, F_Fernfuehler, F_Zwischenkuehler,
    F_zweistufig, F_Booster,       F_Einspritzung, F_Economiser, F_Verdichter};

constexpr std::string_view Zusatz_zweistufig = " 2st.";
constexpr int Letzte_Einheit = 4;

VerbCapt Bezeichnung(Funktionscode code) {
  switch (code) {
    case F_Luftseite:
      return VerbCapt::Luftseite;
    case F_Pumpe:
      return VerbCapt::Pumpe;
    case F_Ventilator:
      return VerbCapt::Ventilator;
    case F_Fernfuehler:
      return VerbCapt::Verdichter_Fernfuehler;
    case F_Zwischenkuehler:
      return VerbCapt::Zweistufig_Zwischenkuehler;
    case F_zweistufig:
      return VerbCapt::Zweistufig;
    case F_Booster:
      return VerbCapt::Zweistufig_Booster;
    case F_Einspritzung:
      return VerbCapt::Zweistufig_Einspritzung;
    case F_Economiser:
      return VerbCapt::Economiser;
    default:
      return VerbCapt::Verdichter;
  }
}

std::string Funktionstext(Funktionscode code, const Captions& captions) {
  if (code == F_transkritisch) return std::string(Text_transkritisch);
  std::string text = captions.text(Bezeichnung(code));
  if (code == F_zweistufig && !text.empty()) text += Zusatz_zweistufig;
  return text;
}

/// A caption that its language doesn't have fits no text, not even the empty one.
Funktionscode Code_von(std::string_view text, const std::vector<std::string>& texte) {
  if (getrimmt(text).empty()) return F_Verdichter;
  for (std::size_t k = 0; k < texte.size(); ++k)
    if (gleich(text, texte[k])) return Vergleichsfolge[k];
  return F_Verdichter;
}

/// The unit that a name ends in; 0 for none.
int Einheit_von(std::string_view name) {
  name = getrimmt(name);
  const int ziffer = name.empty() ? 0 : name.back() - '0';
  return ziffer >= 1 && ziffer <= Letzte_Einheit ? ziffer : 0;
}

void sonst(std::string& text, std::string&& vorgabe) {
  if (text.empty()) text = std::move(vorgabe);
}

}  // namespace

Einheitenfunktion SP_Zuweis(const Einheitentabelle& tabelle, const Captions& captions) {
  using T = Einheitentabelle;
  const std::vector<std::string> texte = Funktionstexte(captions);
  Einheitenfunktion funktion;
  for (int zeile = 1; zeile <= T::Zeilen; ++zeile) {
    const int einheit = Einheit_von(tabelle(zeile, T::Einheit));
    if (einheit == 0) continue;
    const auto i = static_cast<std::size_t>(einheit);
    funktion.Sensor_Zeile[i] = zeile;
    funktion.Sensor_Name[i] = tabelle(zeile, T::Name);
    funktion.Sensor_Code[i] = Code_von(tabelle(zeile, T::Funktion), texte);
    if (funktion.Sensor_Code[i] == F_Luftseite) funktion.Druck_Art = 2;
  }
  return funktion;
}

std::vector<std::string> Funktionstexte(const Captions& captions) {
  std::vector<std::string> texte;
  for (Funktionscode code : Vergleichsfolge) texte.push_back(Funktionstext(code, captions));
  return texte;
}

std::string Einheit_Standardliste(int zeile, const Captions& captions) {
  if (zeile == 1) return captions.text(VerbCapt::Verdichter);
  if (zeile == 2) return captions.text(VerbCapt::Verfluessiger);
  return captions.text(VerbCapt::Verdampfer) + " " + std::to_string(zeile - 2);
}

std::string Einheit_Standardname(int zeile) {
  return zeile <= 3 ? "Leitkiste" : "Orbiter " + std::to_string(zeile - 2);
}

void Einheiten_Standard(Einheitentabelle& tabelle, const Captions& captions) {
  using T = Einheitentabelle;
  for (int zeile = 1; zeile <= T::Zeilen; ++zeile) {
    sonst(tabelle(zeile, T::Liste), Einheit_Standardliste(zeile, captions));
    sonst(tabelle(zeile, T::Einheit), Einheit_Standardname(zeile));
  }
}

}  // namespace polarkreis
