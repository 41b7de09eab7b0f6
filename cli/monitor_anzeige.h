#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "ausgabe.h"
#include "monitoring/ftp_server.h"

namespace polarkreis::cli {

/// What stands in the place of a password.
inline constexpr std::string_view kVerborgen = "********";

/// True for a rule in which nothing was filled in, also where it was stored like that.
bool Regel_leer(const Alarmregel& regel);
/// What stands in the place of its sentence.
inline constexpr const char* kLeere_Regel = "(empty)";
/// The rule as a sentence, as "tc > 45 for 10 min: SMS + E-Mail".
std::string Regelsatz(const Alarmregel& regel);
/// The rows that hold a setting or a rule.
std::vector<int> belegte_Zeilen(const Register& tabelle);

/// --- For people.

/// The register, a row a plant.
void drucke_Liste(ftp_server& pult, const Captions& captions);
/// The edit fields of the chosen row, filled before. `passwort`: show it, too.
void drucke_Einstellungen(const ftp_server& pult, bool passwort);
/// The rule table of the chosen row, filled before.
void drucke_Regeln(const ftp_server& pult);

/// --- JSON of the same.

Json Liste_json(ftp_server& pult, const Captions& captions);
Json Einstellungen_json(const ftp_server& pult, const Captions& captions, bool passwort);
/// `gepackt`: the packed rules that belong to the rule table.
Json Regeln_json(const ftp_server& pult, const std::array<std::string, Regelzahl>& gepackt);
Json Regel_json(const ftp_server& pult, int nummer, const std::string& gepackt);

/// The packed rules of the chosen row, as the register has them.
std::array<std::string, Regelzahl> gepackte_Regeln(const ftp_server& pult);

}  // namespace polarkreis::cli
