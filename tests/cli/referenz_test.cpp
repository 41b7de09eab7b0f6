#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

#include "aufruf.h"
#include "shell/items.h"
#include "simulation/projektsatz.h"

// Whole runs against a second program that shares no code with this one.

namespace {

using Json = nlohmann::json;
using polarkreis::ItemLeser;

/// Fields of one line, parted by semicolons; a quoted field may hold one, and doubled quotes.
std::vector<std::string> felder(const std::string& zeile) {
  std::vector<std::string> alle(1);
  bool in_quotes = false;
  for (std::size_t i = 0; i < zeile.size(); ++i) {
    if (zeile[i] == '"' && in_quotes && i + 1 < zeile.size() && zeile[i + 1] == '"') {
      alle.back() += zeile[++i];
    } else if (zeile[i] == '"') {
      in_quotes = !in_quotes;
    } else if (zeile[i] == ';' && !in_quotes) {
      alle.emplace_back();
    } else {
      alle.back() += zeile[i];
    }
  }
  return alle;
}

/// The lines of the reference table, its heading first.
std::vector<std::vector<std::string>> tabelle() {
  std::ifstream strom(std::string(POLARKREIS_DATA) + "/../tests/cli/referenz_jahr.csv");
  std::vector<std::vector<std::string>> alle;
  for (std::string zeile; std::getline(strom, zeile);) {
    if (!zeile.empty() && zeile[0] != '#') alle.push_back(felder(zeile));
  }
  return alle;
}

/// A sample project with some of its items replaced, as the file of that name.
void projekt_aendern(const Datenkopie& daten, const std::string& sample, const Json& aenderungen) {
  const std::string alt = daten.lies(sample);
  ItemLeser leser(alt);
  std::string neu;
  std::array<std::string, 4> kopf;
  for (std::string& item : kopf) leser.lies(item);
  polarkreis::zeile_anhaengen(neu, {kopf[0], kopf[1], kopf[2], kopf[3]});
  for (const polarkreis::Projektfeld& feld : polarkreis::Projektfelder()) {
    std::string wert = leser.lies();
    if (aenderungen.contains(feld.name)) wert = aenderungen[std::string(feld.name)];
    polarkreis::zeile_anhaengen(neu, {wert});
  }
  daten.schreib("changed.prj", neu);
}

bool gleich(double wert, double referenz) {
  return std::abs(wert - referenz) <= 1e-9 * std::abs(referenz);
}

}  // namespace

TEST(Simulate, AgreesWithASecondProgram) {
  const auto zeilen = tabelle();
  ASSERT_GT(zeilen.size(), 40u);
  const std::vector<std::string>& spalten = zeilen[0];
  const Datenkopie daten;
  int verglichen = 0;
  for (std::size_t i = 1; i < zeilen.size(); ++i) {
    const std::vector<std::string>& fall = zeilen[i];
    ASSERT_EQ(fall.size(), spalten.size()) << fall[0];
    projekt_aendern(daten, fall[1], Json::parse(fall[2]));
    daten.schreib("controls.json", fall[3]);
    const Antwort a = daten.rufe({"simulate", daten.pfad("changed.prj"), "--new-course", "--json",
                                  "--options", daten.pfad("controls.json")});
    ASSERT_EQ(a.status, 0) << fall[0] << a.fehler;
    const Json ergebnis = a.json();
    for (std::size_t s = 4; s < spalten.size(); ++s) {
      if (fall[s].empty()) continue;
      ASSERT_TRUE(ergebnis[spalten[s]].is_number()) << fall[0] << " " << spalten[s];
      const double wert = ergebnis[spalten[s]];
      EXPECT_TRUE(gleich(wert, std::stod(fall[s])))
          << fall[0] << " " << spalten[s] << ": " << wert << ", not " << fall[s];
      ++verglichen;
    }
  }
  EXPECT_GT(verglichen, 900);
}
