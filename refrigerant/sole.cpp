#include "refrigerant/sole.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "refrigerant/sole_daten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr double Frostschutz_Vorgabe = -15;  // °C, in place of a value at or above 0

/// The part of the base value that every glycol takes, and the steps that correct it per kelvin
/// below -15 °C: the n-th fluid takes the first n of them.
constexpr double Grundanteil = 0.803;
constexpr std::array Korrekturschritte = {0.0109, -0.0043, -0.0019, -0.00115, -0.00115};

double glykol_konzentration(const Soledaten& sole, double t) {
  const double x = 258.15 - (t + 273.15);
  double korrektur = 0;
  for (int n = 0; n < sole.Korrekturen; ++n)
    korrektur = korrektur + Korrekturschritte[static_cast<std::size_t>(n)] * x;
  const double c = sole.Basis * (Grundanteil + korrektur);
  return Int(c * 1000) / 10;
}

double konzentrat_konzentration(double t) {
  const double c = -((t - 41.2) / 1.02);
  return Int(c * 10) / 10;
}

double konzentration(const Soledaten& sole, double t) {
  switch (sole.regel) {
    case Konzentrationsregel::Glykol:
      return glykol_konzentration(sole, t);
    case Konzentrationsregel::Konzentrat:
      return konzentrat_konzentration(t);
    case Konzentrationsregel::fertig:
      break;
  }
  return 100;
}

double eigenschaft(const Soledaten* sole, Solepolynom Soledaten::*welche, double t, double c) {
  if (!sole || ist_leer(t) || ist_leer(c)) return leer;
  const double c_da = std::clamp(c, sole->c_von(), sole->c_bis());
  const double t_da = std::clamp(t, sole->Gefriertemperatur(c_da), sole->t_bis);
  return (sole->*welche).wert(t_da, c_da);
}

// From 1; 0 for a text that is not in the list.
std::size_t zeile(const std::vector<std::string>& liste, const std::string& gesucht) {
  const auto stelle = std::find(liste.begin(), liste.end(), gesucht);
  return stelle == liste.end() ? 0 : static_cast<std::size_t>(stelle - liste.begin()) + 1;
}

std::string sprachdatei(std::string_view sprache) {
  return "SoleBez." + std::string(sprache);
}

std::string einheit(std::string_view zeichen) {
  return " /[" + std::string(zeichen) + "]";
}

}  // namespace

Solen::Solen(Ablage& ablage, const Captions& captions)
    : ablage_(ablage), captions_(captions), dateien_(Sprachen().size()) {
  for (const Soledaten& sole : Sole_Daten()) feste_namen_.push_back(gross(sole.name));
}

const Solen::Sprachnamen& Solen::namen_in(std::size_t sprache) {
  const auto lesen = [](std::optional<std::string>&& inhalt) {
    Sprachnamen gelesen;
    const std::string text = std::move(inhalt).value_or("");
    ItemLeser leser(text);
    for (std::string item; gelesen.namen.size() < Sole_Daten().size() && leser.lies(item);) {
      gelesen.namen.emplace_back(getrimmt(item));
      gelesen.gross.push_back(gross(gelesen.namen.back()));
    }
    return gelesen;
  };
  return dateien_[sprache].hol(ablage_, sprachdatei(Sprachen()[sprache]), lesen);
}

// Its line in the file, from 1, for a name of that language; 0 for any other.
std::size_t Solen::zeile_in(std::size_t sprache, const std::string& gesucht) {
  return zeile(namen_in(sprache).gross, gesucht);
}

const Soledaten* Solen::finde(std::string_view name) {
  const std::string gesucht = gross(getrimmt(name));
  if (gesucht.empty()) return nullptr;
  std::size_t n = zeile(feste_namen_, gesucht);
  if (n == 0) n = zeile_in(gefunden_in_, gesucht);
  for (std::size_t sprache = 0; n == 0 && sprache < dateien_.size(); ++sprache) {
    n = zeile_in(sprache, gesucht);
    if (n != 0) gefunden_in_ = sprache;
  }
  return n == 0 ? nullptr : &Sole_Daten()[n - 1];
}

// The name on that line: of the present language, or the one that the program knows itself, or
// that of any other language.
std::string Solen::name(std::size_t n) {
  const auto in_sprache = [&](std::size_t sprache) -> std::string_view {
    const auto& namen = namen_in(sprache).namen;
    return n <= namen.size() ? std::string_view(namen[n - 1]) : std::string_view();
  };
  const auto sprachen = Sprachen();
  const auto heutige = std::find(sprachen.begin(), sprachen.end(), captions_.Sprache);
  std::string_view gefunden;
  if (heutige != sprachen.end())
    gefunden = in_sprache(static_cast<std::size_t>(heutige - sprachen.begin()));
  if (gefunden.empty()) gefunden = Sole_Daten()[n - 1].name;
  for (std::size_t i = 0; gefunden.empty() && i < sprachen.size(); ++i) gefunden = in_sprache(i);
  return std::string(gefunden);
}

std::vector<std::string> Solen::Namen() {
  std::vector<std::string> namen;
  for (std::size_t n = 1; n <= Sole_Daten().size(); ++n)
    if (std::string einer = name(n); !einer.empty()) namen.push_back(std::move(einer));
  return namen;
}

bool Solen::bekannt(std::string_view name) {
  return finde(name) != nullptr;
}

double Solen::Sole_Grenzen(std::string_view name) {
  const Soledaten* sole = finde(name);
  return sole ? sole->tmin : leer;
}

double Solen::Konzentration(std::string_view name, double t) {
  const Soledaten* sole = finde(name);
  return sole && !ist_leer(t) ? konzentration(*sole, t) : leer;
}

double Solen::Gefriertemperatur(std::string_view name, double c) {
  const Soledaten* sole = finde(name);
  return sole && !ist_leer(c) ? sole->Gefriertemperatur(c) : leer;
}

double Solen::Dichte(std::string_view name, double t, double c) {
  return eigenschaft(finde(name), &Soledaten::Dichte, t, c);
}

double Solen::Waermekapazitaet(std::string_view name, double t, double c) {
  return eigenschaft(finde(name), &Soledaten::Waerme, t, c) / 1000;
}

Solen::Frostschutz Solen::Frostschutz_Eingabe(std::string_view name, std::string_view eingabe,
                                              const Einheiten& einheiten) {
  Frostschutz ergebnis;
  const Soledaten* sole = finde(name);
  if (!sole) return ergebnis;
  const double gelesen = einheiten.Temperatur_gelesen(Wert(eingabe));
  ergebnis.t = gelesen < 0 ? gelesen : Frostschutz_Vorgabe;
  const std::string_view zeichen = einheiten.Temperatureinheit();
  if (ergebnis.t < sole->tmin) {
    ergebnis.Meldung = captions_.text(SoleCapt::Frostschutz) +
                       " < tmin !\r\n  tmin =" + Zahl_Text(einheiten.Temperatur(sole->tmin)) +
                       std::string(zeichen) + " !";
    return ergebnis;
  }
  ergebnis.Konzentration = konzentration(*sole, ergebnis.t);
  ergebnis.Text = Zahl_Text(einheiten.Temperatur(ergebnis.t)) + einheit(zeichen) + " " +
                  Zahl_Text(ergebnis.Konzentration) + einheit("%");
  return ergebnis;
}

double Wasser_Dichte(double t) {
  const double w = std::clamp(t, 0.0, 100.0);
  return (999.83952 +
          w * (16.945176 + w * (-7.9870401e-3 +
                                w * (-46.170461e-6 + w * (105.56302e-9 - w * 280.54253e-12))))) /
         (1 + 16.879850e-3 * w);
}

double Wasser_Waermekapazitaet(double t) {
  const double w = std::clamp(t, 0.0, 100.0);
  const double wurzel = std::sqrt(w);
  return 4.2174356 + w * (-0.0056181625 + wurzel * (0.0012992528 + wurzel * (-0.00011535353 +
                                                                             wurzel * 4.14964e-6)));
}

}  // namespace polarkreis
