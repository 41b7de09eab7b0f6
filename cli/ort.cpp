#include "ort.h"

#include <algorithm>
#include <vector>

#include "konsole.h"
#include "shell/text.h"
#include "sitzung.h"

namespace polarkreis::cli {

namespace {

constexpr std::size_t kVorschlaege = 5;

std::size_t gleicher_anfang(std::string_view a, std::string_view b) {
  return static_cast<std::size_t>(
      std::mismatch(a.begin(),
                    a.begin() + static_cast<std::ptrdiff_t>(std::min(a.size(), b.size())),
                    b.begin())
          .first -
      a.begin());
}

// The names that begin most alike; none that shares no letter.
std::string vorschlaege(std::vector<std::string> namen, const std::string& gesucht) {
  const std::string ziel = gross(getrimmt(gesucht));
  std::ranges::stable_sort(namen, std::greater<>(), [&](const std::string& name) {
    return gleicher_anfang(gross(name), ziel);
  });
  std::string liste;
  for (std::size_t i = 0; i < std::min(namen.size(), kVorschlaege); ++i)
    if (gleicher_anfang(gross(namen[i]), ziel) > 0) liste += (liste.empty() ? "" : ", ") + namen[i];
  return liste.empty() ? "" : " Names that begin alike: " + liste + ".";
}

}  // namespace

std::string land_waehlen(Klima& klima, const std::string& land) {
  const std::vector<std::string> laender = klima.laender();
  const auto treffer = std::ranges::find_if(
      laender, [&](const std::string& name) { return Klima::gleiches_land(name, land); });
  if (treffer == laender.end())
    throw Abbruch("There is no country \"" + land + "\" in the climate tables." +
                  vorschlaege(laender, land) +
                  " \"polarkreis-cli climate countries\" lists them all.");
  klima.Land = Klima::land_anzeige(*treffer);
  return *treffer;
}

std::string stadt_waehlen(Klima& klima, const std::string& stadt) {
  const std::vector<std::string> staedte = klima.staedte();
  auto treffer = std::ranges::find(staedte, std::string(getrimmt(stadt)));
  if (treffer == staedte.end())
    treffer =
        std::ranges::find_if(staedte, [&](const std::string& name) { return gleich(name, stadt); });
  if (treffer == staedte.end())
    throw Abbruch("There is no city \"" + stadt + "\" in the climate table of that country." +
                  vorschlaege(staedte, stadt) +
                  " \"polarkreis-cli climate cities COUNTRY\" lists them all.");
  klima.Stadt = *treffer;
  return *treffer;
}

void klimaluecken_melden(Klima& klima, const std::string& stadt) {
  if (klima.Stadtdatei().empty())
    melde("\"" + Klima::land_anzeige(klima.Land) +
          "\" is no country: its name must not hold \"/\" or \"\\\".");
  const auto satz = klima.satz(stadt);
  if (!satz)
    melde("The climate tables don't hold that city: the course counts with figures of 0.");
  else if (!satz->vollstaendig())
    melde("The climate table doesn't hold every figure of " + stadt +
          ": the course counts the missing ones as 0. Complete the table.");
}

}  // namespace polarkreis::cli
