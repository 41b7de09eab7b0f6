#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <limits>
#include <memory>

#include "ausgabe.h"
#include "bauteiltabelle.h"
#include "katalog_json.h"
#include "konsole.h"
#include "shell/text.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

/// Search kinds, one for each index file.
constexpr std::array<int, 3> kArten{0, 1, 2};

struct Wuensche {
  std::string text, hersteller, katalog, stoff;
  int art = 0, liste = 0;
  bool eine_art = false, json = false;
};

/// "1 component", "3 components".
std::string anzahl(std::size_t n, const std::string& was) {
  return std::to_string(n) + " " + was + (n == 1 ? "" : "s");
}

void drucke_zeile(const std::string& text) {
  std::printf("%s\n", text.c_str());
}

// --- lists

using Hersteller = std::array<std::vector<std::string>, kArten.size()>;

void listen_json(const KompSuch& suche, const Hersteller& hersteller) {
  Json arten = Json::array();
  for (std::size_t i = 0; i < kArten.size(); ++i)
    arten.push_back(
        {{"kind", kArten[i]}, {"index", Indexdatei(kArten[i])}, {"makers", hersteller[i]}});
  drucke(Json{{"catalogues", kataloglist_json(suche)}, {"makers", std::move(arten)}});
}

void listen_tabelle(const KompSuch& suche, const Hersteller& hersteller) {
  Tabelle kataloge{{"Code", "Type", "Catalogue"}, {}}, namen{{"Kind", "Index", "Maker"}, {}};
  for (const KompSuch::Katalogeintrag& k : suche.Kataloglist)
    kataloge.zeilen.push_back({k.code, std::to_string(k.Typ), k.Text});
  for (std::size_t i = 0; i < kArten.size(); ++i)
    for (const std::string& name : hersteller[i])
      namen.zeilen.push_back({std::to_string(kArten[i]), std::string(Indexdatei(kArten[i])), name});
  if (kataloge.zeilen.empty())
    drucke_zeile("The data folder lists no catalogues (katalg.lst).");
  else
    drucke(kataloge);
  drucke_zeile("");
  if (namen.zeilen.empty())
    drucke_zeile("The data folder has no index of makers (I650.DAT, I600.DAT, I550.DAT).");
  else
    drucke(namen);
}

void listen(Sitzung& sitzung, const Wuensche& w) {
  KompSuch suche(sitzung.programm().ablage);
  Hersteller hersteller;
  for (std::size_t i = 0; i < kArten.size(); ++i) {
    suche.Suchart = kArten[i];
    suche.Listen_fuellen();
    hersteller[i] = suche.Herstellerlist;
  }
  w.json ? listen_json(suche, hersteller) : listen_tabelle(suche, hersteller);
}

// --- search

void suche_json(const std::vector<KompSuch>& suchen) {
  Json ergebnisse = Json::array(), treffer = Json::array();
  for (const KompSuch& suche : suchen) {
    for (Json& e : ergebnisse_json(suche)) ergebnisse.push_back(std::move(e));
    for (Json& t : treffer_json(suche)) treffer.push_back(std::move(t));
  }
  drucke(Json{{"catalogues", std::move(ergebnisse)}, {"hits", std::move(treffer)}});
}

/// What was found in one catalogue, over its rows in the index.
struct Fund {
  std::vector<Bauteil> bauteile;
  Spalte code{"Code", {}}, hersteller{"Maker", {}}, katalogtext{"Catalogue", {}};

  void nimm(const KompSuch::Ergebnis& e) {
    for (const Bauteil& b : e.Treffer) {
      bauteile.push_back(b);
      code.zellen.push_back(e.zeile.code);
      hersteller.zellen.push_back(e.zeile.Hersteller);
      katalogtext.zellen.push_back(e.zeile.Katalogtext);
    }
  }
};

/// One of each catalogue with hits, in the order of the indexes.
std::vector<Fund> funde(const std::vector<KompSuch>& suchen) {
  std::vector<Fund> alle;
  for (const KompSuch& suche : suchen)
    for (const KompSuch::Ergebnis& e : suche.Ergebnisse) {
      if (e.Treffer.empty()) continue;
      const auto derselbe = [&](const Fund& f) { return f.code.zellen.front() == e.zeile.code; };
      auto fund = std::ranges::find_if(alle, derselbe);
      if (fund == alle.end()) fund = alle.emplace(alle.end());
      fund->nimm(e);
    }
  return alle;
}

/// The components' files that a search found missing or could not read, each once.
std::string fehlende(const std::vector<KompSuch>& suchen) {
  std::vector<std::string> dateien;
  for (const KompSuch& suche : suchen)
    for (const KompSuch::Ergebnis& e : suche.Ergebnisse)
      if (const std::string datei = Bauteildatei(e.zeile.code);
          e.fehlt && std::ranges::find(dateien, datei) == dateien.end())
        dateien.push_back(datei);
  std::string text;
  for (const std::string& datei : dateien) text += (text.empty() ? "" : ", ") + datei;
  return text;
}

void suche_tabelle(const std::vector<KompSuch>& suchen, const std::string& text) {
  std::size_t treffer = 0, kataloge = 0, verborgen = 0;
  for (const KompSuch& suche : suchen) {
    treffer += suche.Trefferzahl();
    kataloge += suche.Ergebnisse.size();
    verborgen += std::ranges::count_if(suche.Ergebnisse, &KompSuch::Ergebnis::verborgen);
  }
  for (const Fund& fund : funde(suchen)) {
    drucke(fund.bauteile, {fund.code, fund.hersteller, fund.katalogtext});
    drucke_zeile("");
  }
  const std::string wo = " in " + anzahl(kataloge - verborgen, "row") + " of the index.";
  if (kataloge == 0)
    drucke_zeile("The data folder has no such catalogue: see \"polarkreis-cli catalogue lists\".");
  else if (treffer == 0)
    drucke(Tabelle{{}, {{"No component with \"" + text + "\"" + wo}}});
  else
    drucke_zeile(anzahl(treffer, "component") + wo);
  if (const std::string dateien = fehlende(suchen); !dateien.empty())
    drucke_zeile("Missing, or not to be read: " + dateien + ".");
  if (verborgen > 0) drucke_zeile("Hidden by Prodhide.dat: " + anzahl(verborgen, "row") + ".");
}

void suchen(Sitzung& sitzung, const Wuensche& w) {
  std::vector<KompSuch> suchen;
  for (int art : kArten) {
    if (w.eine_art && art > 0) break;
    KompSuch& suche = suchen.emplace_back(sitzung.programm().ablage);
    suche.Suchart = w.eine_art ? w.art : art;
    suche.Suchtext = w.text;
    suche.Hersteller = w.hersteller;
    suche.Katalog = w.katalog;
    suche.Suchen();
  }
  w.json ? suche_json(suchen) : suche_tabelle(suchen, w.text);
}

// --- refrigerant

void liste_zeigen(const std::vector<Mittelzeile>& liste) {
  Tabelle tabelle{{"List", "Components from", "Text"}, {}};
  for (const Mittelzeile& z : liste)
    tabelle.zeilen.push_back({std::to_string(tabelle.zeilen.size() + 1),
                              z.Datei + " " + std::to_string(z.Anfang), z.Text});
  drucke(tabelle);
}

void liste_json(int position, const Mittelzeile& zeile, const std::vector<Bauteil>& bauteile) {
  drucke(Json{{"list", position},
              {"file", zeile.Datei},
              {"text", zeile.Text},
              {"components", bauteile_json(bauteile)}});
}

void bauteile_zeigen(Katalogdateien& dateien, const Mittelzeile& zeile, const Wuensche& w) {
  const std::vector<Bauteil> bauteile = Listenbauteile(dateien, zeile);
  if (w.json) return liste_json(w.liste, zeile, bauteile);
  drucke(Tabelle{{}, {{zeile.Text}}});
  drucke(bauteile);
  if (bauteile.empty()) drucke_zeile("The list holds no components.");
}

void keine_listen(const std::string& hindernis, const Wuensche& w) {
  const std::string text = "The data folder has no lists for " + gross(getrimmt(w.stoff)) + ": " +
                           hindernis + ". See docs/catalogue.md.";
  if (!w.json) return drucke_zeile(text);
  melde(text);
  w.liste > 0 ? liste_json(w.liste, {}, {}) : drucke(Json::array());
}

void mittel(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  if (Mittelliste(w.stoff).empty())
    throw Abbruch(w.stoff + " " + p.captions.text(Caption::Unbekannt) +
                  "\r\nSee \"polarkreis-cli refrigerants\" for the designations.");
  Katalogdateien dateien(p.ablage);
  std::string hindernis;
  const std::vector<Mittelzeile> liste = KM_Liste(dateien, w.stoff, &hindernis);
  const auto position = static_cast<std::size_t>(w.liste);
  if (liste.empty())
    keine_listen(hindernis, w);
  else if (position == 0)
    w.json ? drucke(mittelliste_json(liste)) : liste_zeigen(liste);
  else if (position > liste.size())
    throw Abbruch("There is no list " + std::to_string(position) + ": " + Mittelliste(w.stoff) +
                  " holds " + anzahl(liste.size(), "list") + ".");
  else
    bauteile_zeigen(dateien, liste[position - 1], w);
}

using Werk = void (*)(Sitzung&, const Wuensche&);

CLI::App* unterbefehl(CLI::App& app, Sitzung& sitzung, const std::shared_ptr<Wuensche>& w,
                      const std::string& name, const std::string& hilfe, Werk werk) {
  CLI::App* befehl = app.add_subcommand(name, hilfe);
  befehl->add_flag("--json", w->json, "Print as JSON");
  befehl->callback([&sitzung, w, werk] { werk(sitzung, *w); });
  return befehl;
}

}  // namespace

void catalogue_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* katalog = app.add_subcommand("catalogue", "Search the catalogues of components");
  katalog->require_subcommand(1);
  beispiel(*katalog, "  polarkreis-cli catalogue search scroll");
  const auto w = std::make_shared<Wuensche>();

  CLI::App* befehl = unterbefehl(*katalog, sitzung, w, "lists",
                                 "List the catalogues with their types, and the makers", listen);
  beispiel(*befehl, "  polarkreis-cli catalogue lists");

  befehl = unterbefehl(*katalog, sitzung, w, "search",
                       "Find components by part of their model, maker or series", suchen);
  befehl
      ->add_option("text", w->text, "Part of the model, maker or series, in any case; \"\" for all")
      ->required()
      ->type_name("TEXT");
  befehl
      ->add_option_function<int>(
          "--kind",
          [w](int art) {
            w->art = art;
            w->eine_art = true;
          },
          "Search kind: 0 or 100 the index I650.DAT, 1 I600.DAT, any other I550.DAT (default: all "
          "three)")
      ->type_name("N");
  befehl->add_option("--maker", w->hersteller, "Only catalogues of this maker")->type_name("NAME");
  befehl->add_option("--code", w->katalog, "Only the catalogue of this code")->type_name("CODE");
  beispiel(*befehl,
           "  polarkreis-cli catalogue search BHK --kind 0\n"
           "  polarkreis-cli catalogue search \"\" --maker \"Grönstad Kyl\" --json");

  befehl = unterbefehl(*katalog, sitzung, w, "refrigerant",
                       "The lists of compressors for a refrigerant, or one of them", mittel);
  befehl->add_option("R", w->stoff, "Refrigerant, as R134A")->required();
  befehl->add_option("--list", w->liste, "Print the components of this list")
      ->type_name("N")
      ->check(CLI::Range(1, std::numeric_limits<int>::max()).description(""));
  beispiel(*befehl, "  polarkreis-cli catalogue refrigerant R290 --list 14");
}

}  // namespace polarkreis::cli
