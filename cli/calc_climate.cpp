#include <array>
#include <optional>

#include "calc.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

/// Columns of the month table, by their names.
enum Spalte : std::size_t { S_Monat, S_T_Tag, S_T_Nacht, S_Last_Tag, S_Last_Nacht };
struct Monatsspalte {
  std::string_view name;
  Spalte spalte;
};
constexpr std::array<Monatsspalte, 4> kMonatsspalten{{{"T_Tag", S_T_Tag},
                                                      {"T_Nacht", S_T_Nacht},
                                                      {"Last_Tag", S_Last_Tag},
                                                      {"Last_Nacht", S_Last_Nacht}}};

Antwort klima_dateiname(Rechenstand& r, const Argumente& a) {
  r.klima.Land = a.text("Land");
  return {Klima::Klima_Dateiname(r.klima.Land), {}};
}

Antwort klima_wert(Rechenstand& r, const Argumente& a) {
  return {zahl(r.klima.Klima_Wert(a.text("Stadt"), a.ganz("Selektor"))), {}};
}

/// The place of the course is the state's.
void ort_uebernehmen(Rechenstand& r) {
  r.jahresgang.Combo1 = Klima::land_anzeige(r.klima.Land);
  r.jahresgang.OrteListe = r.klima.Stadt;
}

/// An option button by its number or name; nothing outside `erste` to `letzte`.
std::optional<int> option_von(const Argumente& a, std::string_view name, int erste, int letzte) {
  constexpr std::string_view knopf = "OPTION3D";
  std::string text = gross(getrimmt(a.text(name)));
  if (text.starts_with(knopf)) text.erase(0, knopf.size());
  const double nummer = Int(Wert(text));
  if (!(nummer >= erste && nummer <= letzte)) return std::nullopt;
  return static_cast<int>(nummer);
}

std::string optionen_setzen(JahresGang& gang, const Argumente& a) {
  const auto spitze = a.da("Spitze") ? option_von(a, "Spitze", 1, 3) : gang.Spitze_Option;
  const auto sockel = a.da("Sockel") ? option_von(a, "Sockel", 4, 6) : gang.Sockel_Option;
  if (!spitze) return "\"Spitze\" must be 1, 2 or 3 (Option3d1 to Option3d3)";
  if (!sockel) return "\"Sockel\" must be 4, 5 or 6 (Option3d4 to Option3d6)";
  gang.Spitze_Option = *spitze;
  gang.Sockel_Option = *sockel;
  return {};
}

Antwort temperaturverlauf(Rechenstand& r, const Argumente& a) {
  if (std::string fehler = optionen_setzen(r.jahresgang, a); !fehler.empty())
    return misslingt(std::move(fehler));
  ort_uebernehmen(r);
  r.jahresgang.Temperaturverlauf_rechnen();
  Json zeilen = Json::array();
  for (const auto& monat : r.jahresgang.Spread1)
    zeilen.push_back({{"Monat", monat[S_Monat]},
                      {"T_Tag", zahl(Wert(monat[S_T_Tag]))},
                      {"T_Nacht", zahl(Wert(monat[S_T_Nacht]))}});
  return {std::move(zeilen), {}};
}

/// Text of the application, which is given by its number or text; nothing for another.
std::optional<std::string> anwendung_von(const Rechenstand& r, const Argumente& a) {
  std::string text = a.text("Anwendung");
  if (Anwendung_Nummer(r.captions, text) > 0) return text;
  text = Anwendung_Text(r.captions, als_ganz(text));
  if (text.empty()) return std::nullopt;
  return text;
}

constexpr const char* kKeine_Anwendung =
    "\"Anwendung\" must be 1 to 7 or the text of an application in the current language";

Json spalte_json(const JahresGang& gang, Spalte spalte) {
  Json werte = Json::array();
  for (const auto& monat : gang.Spread1) werte.push_back(zahl(Wert(monat[spalte])));
  return werte;
}

Antwort profil_laden(Rechenstand& r, const Argumente& a) {
  const std::optional<std::string> anwendung = anwendung_von(r, a);
  if (!anwendung) return misslingt(kKeine_Anwendung);
  r.jahresgang.Profil_laden(*anwendung);
  return {{{"Last_Tag", spalte_json(r.jahresgang, S_Last_Tag)},
           {"Last_Nacht", spalte_json(r.jahresgang, S_Last_Nacht)}},
          {}};
}

/// Takes the columns over that the line holds, as typing them into the table would; all or none.
std::string spalten_setzen(JahresGang& gang, const Argumente& a) {
  auto neu = gang.Spread1;
  for (const auto& [name, spalte] : kMonatsspalten) {
    const Json* werte = a.roh(name);
    if (!werte) continue;
    const std::string einwand = "\"" + std::string(name) + "\" must be an array of twelve numbers";
    if (!werte->is_array() || werte->size() != neu.size()) return einwand;
    for (std::size_t m = 0; m < neu.size(); ++m) {
      if (!ist_einfach((*werte)[m])) return einwand;
      neu[m][spalte] = als_text((*werte)[m]);
    }
  }
  gang.Spread1 = neu;
  return {};
}

Antwort geschrieben(const Rechenstand& r, bool gelungen) {
  if (gelungen) return {};
  return misslingt("the file could not be written: " + r.ablage.letzter_fehler());
}

Antwort profil_speichern(Rechenstand& r, const Argumente& a) {
  const std::optional<std::string> anwendung = anwendung_von(r, a);
  if (!anwendung) return misslingt(kKeine_Anwendung);
  if (std::string fehler = spalten_setzen(r.jahresgang, a); !fehler.empty())
    return misslingt(std::move(fehler));
  return geschrieben(r, r.jahresgang.Profil_speichern(*anwendung));
}

Antwort monatstabelle_schreiben(Rechenstand& r, const Argumente& a) {
  if (std::string fehler = spalten_setzen(r.jahresgang, a); !fehler.empty())
    return misslingt(std::move(fehler));
  ort_uebernehmen(r);
  return geschrieben(r, r.jahresgang.Monatstabelle_schreiben());
}

Antwort stundentemperatur(Rechenstand&, const Argumente& a) {
  return {zahl(Stundentemperatur(a.zahl("T_Tag"), a.zahl("T_Nacht"), a.ganz("Stunde"))), {}};
}

Antwort stundenlast(Rechenstand&, const Argumente& a) {
  return {zahl(Stundenlast(a.zahl("Last_Tag"), a.zahl("Last_Nacht"), a.ganz("Stunde"))), {}};
}

Antwort stundenfeuchte(Rechenstand&, const Argumente& a) {
  return {zahl(Stundenfeuchte(a.zahl("R"), a.zahl("T"), a.zahl("T_Tag"), a.zahl("T_Nacht"))), {}};
}

constexpr std::array<Operation, 9> kOperationen{{
    {"Klima_Dateiname", "Land", "", klima_dateiname},
    {"Klima_Wert", "Stadt Selektor", "", klima_wert},
    {"Temperaturverlauf_rechnen", "", "Spitze Sockel", temperaturverlauf},
    {"Profil_laden", "Anwendung", "", profil_laden},
    {"Profil_speichern", "Anwendung", "", profil_speichern},
    {"Monatstabelle_schreiben", "", "", monatstabelle_schreiben},
    {"Stundentemperatur", "T_Tag T_Nacht Stunde", "", stundentemperatur},
    {"Stundenlast", "Last_Tag Last_Nacht Stunde", "", stundenlast},
    {"Stundenfeuchte", "R T T_Tag T_Nacht", "", stundenfeuchte},
}};

}  // namespace

std::span<const Operation> Klimaoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
