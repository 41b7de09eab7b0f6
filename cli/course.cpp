#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "ort.h"
#include "projektwahl.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr std::size_t kSpalten = 5;
constexpr const char* kNamen[kSpalten] = {"Monat", "T_Tag", "T_Nacht", "Last_Tag", "Last_Nacht"};

struct Wuensche {
  std::string land, stadt;
  int anwendung = 0, sommer = 2, winter = 5;
  bool json = false;
};

Json gang_json(const JahresGang& gang) {
  Json zeilen = Json::array(), texte = Json::array();
  for (const auto& zeile : gang.Spread1) {
    Json werte{{"Monat", zeile[0]}}, text = Json::array();
    for (std::size_t i = 1; i < kSpalten; ++i) werte[kNamen[i]] = zahl(Wert(zeile[i]));
    for (std::size_t i = 0; i < kSpalten; ++i) text.push_back(zeile[i]);
    zeilen.push_back(werte);
    texte.push_back(text);
  }
  return {{"Land", gang.Combo1},
          {"Stadt", gang.OrteListe},
          {"AnwendBereich", gang.AnwendBereich},
          {"rows", zeilen},
          {"Spread1", texte}};
}

void drucke_fuer_leute(const JahresGang& gang) {
  std::printf("%s, %s: %s\n\n", gang.OrteListe.c_str(), gang.Combo1.c_str(),
              gang.AnwendBereich.c_str());
  const auto koepfe = gang.Spaltenkoepfe();
  Tabelle tabelle{{koepfe.begin(), koepfe.end()}, {}};
  for (const auto& zeile : gang.Spread1)
    tabelle.zeilen.emplace_back(zeile.begin(), zeile.begin() + kSpalten);
  drucke(tabelle);
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  texte_pruefen(p, p.captions.Sprache);
  land_waehlen(p.klima, w.land);
  klimaluecken_melden(p.klima, stadt_waehlen(p.klima, w.stadt));
  JahresGang& gang = p.jahresgang;
  gang.Spitze_Option = w.sommer;
  gang.Sockel_Option = w.winter;
  gang.oeffnen(Anwendung_Text(p.captions, w.anwendung));
  if (!gang.OKbutt())
    throw Abbruch(grund(p.ablage, "The annual course (JG_Temp.dat) could not be written."));
  if (w.json)
    drucke(gang_json(gang));
  else
    drucke_fuer_leute(gang);
}

}  // namespace

void course_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand(
      "course", "Make the annual course of a place and an application (JG_Temp.dat)");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("--country", w->land, "Country")->required()->type_name("NAME");
  befehl->add_option("--city", w->stadt, "City")->required()->type_name("NAME");
  befehl->add_option("--application", w->anwendung, "Application 1 to 7, in the selection's order")
      ->required()
      ->type_name("N")
      ->check(CLI::Range(1, 7).description(""));
  befehl->add_option("--summer", w->sommer, "Summer level: 1 high, 2 middle, 3 low")
      ->type_name("1|2|3")
      ->check(CLI::Range(1, 3).description(""))
      ->capture_default_str();
  befehl->add_option("--winter", w->winter, "Winter level: 4 mild, 5 middle, 6 cold")
      ->type_name("4|5|6")
      ->check(CLI::Range(4, 6).description(""))
      ->capture_default_str();
  befehl->add_flag("--json", w->json, "Print the table as JSON");
  beispiel(*befehl,
           "  polarkreis-cli course --country Germany --city Berlin --application 7 --winter 6");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
