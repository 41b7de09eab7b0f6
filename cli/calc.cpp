#include "calc.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>
#include <limits>
#include <vector>

#include "shell/text.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

// No honest line is longer; a stream without line ends must not fill the memory.
constexpr std::size_t kZeile_hoechstens = std::size_t{1} << 20;

enum class Gelesen { Zeile, zu_lang, Ende };

Gelesen lies_zeile(std::istream& eingabe, std::vector<char>& puffer, std::string_view& zeile) {
  eingabe.getline(puffer.data(), static_cast<std::streamsize>(puffer.size()));
  auto laenge = static_cast<std::size_t>(eingabe.gcount());
  if (eingabe.bad() || (eingabe.fail() && laenge == 0)) return Gelesen::Ende;
  if (eingabe.fail()) {
    eingabe.clear();
    eingabe.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    return Gelesen::zu_lang;
  }
  if (!eingabe.eof()) --laenge;  // the line end was taken and counted
  zeile = {puffer.data(), laenge};
  return Gelesen::Zeile;
}

bool leere_zeile(std::string_view zeile) {
  return zeile.find_first_not_of(" \t\r") == std::string_view::npos;
}

void rechnen(Sitzung& sitzung) {
  Programm& p = sitzung.programm();
  Rechner rechner(p.ablage, p.captions);
  std::ios::sync_with_stdio(false);
  std::vector<char> puffer(kZeile_hoechstens + 1);
  std::string_view zeile;
  for (;;) {
    const Gelesen stand = lies_zeile(std::cin, puffer, zeile);
    if (stand == Gelesen::Ende) break;
    if (stand == Gelesen::Zeile && leere_zeile(zeile)) continue;
    drucke(stand == Gelesen::Zeile ? rechner.antworte(zeile)
                                   : Json{{"error", "the line is longer than one megabyte"}},
           true);
    // Whoever writes the next line waits for this answer. Nobody there: the end.
    if (std::fflush(stdout) != 0) return;
  }
  if (std::cin.bad())
    sitzung.fehler("Standard input could not be read. Hand the lines over by a pipe or a file.");
}

}  // namespace

void calc_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl =
      app.add_subcommand("calc",
                         "Single routines for scripts: one JSON object a line on standard "
                         "input, one answer a line (see docs/scripting.md)");
  beispiel(*befehl, "  echo '{\"op\":\"CO2_pOpt\",\"t\":31}' | polarkreis-cli calc");
  befehl->callback([&sitzung] { rechnen(sitzung); });
}

}  // namespace polarkreis::cli
