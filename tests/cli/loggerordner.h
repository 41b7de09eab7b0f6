#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "messdateien.h"
#include "support/prozess.h"
#include "support/stellvertreter.h"

/// What a control system writes: a time stamp and 32 values, of which these matter here.
inline std::string quelle(const std::string& p0, const std::string& t_end) {
  std::vector<std::string> w(32, "0");
  const std::vector<std::string> kiste{"231", "230",  "232",  "16.2",  "14.6", "14.7",
                                       p0,    "16.5", "34.5", "-18.1", "-22",  "-21",
                                       "-16", "24",   "29.9", t_end};
  std::ranges::copy(kiste, w.begin());
  std::string text = "\"02.01.2026  08:00:00\"";
  for (const std::string& wert : w) text += ",\"" + wert + "\"";
  return text + "\r\n";
}

/// A data folder from which a logger is measured; its settings are those of a sample plant.
struct Loggerordner : Datenkopie {
  using Json = nlohmann::json;
  using Worte = std::vector<std::string>;

  /// A run without a planned end that samples as fast as it goes.
  explicit Loggerordner(const std::string& anlage = "R404A") {
    einstellen(anlage, {{"Combo2", "0s"}, {"Combo5", "oo"}});
  }
  /// Writes "s.json": the plant's settings with these instead.
  void einstellen(const std::string& anlage, const Json& anders) const {
    Json s = Json::parse(lies("logger " + anlage + ".json"));
    s.update(anders);
    schreib("s.json", s.dump());
  }
  /// The run ends by itself after so many samples, at least 2.
  void planen(int proben, const std::string& anlage = "R404A", const Json& anders = {}) const {
    Json plan{{"Combo2", "0.1s"}, {"Combo5", std::to_string(.1 * (proben - .5) / 60) + "min"}};
    if (!anders.is_null()) plan.update(anders);
    einstellen(anlage, plan);
  }
  Worte aufruf(const Worte& argumente) const {
    Worte alle{programmpfad(), "--data", pfad(), "--language", "ENG"};
    alle.insert(alle.end(), argumente.begin(), argumente.end());
    return alle;
  }
  /// A busy machine may let the stand-in answer late; a test doesn't mind.
  static Worte geduldig(Worte befehl) {
    befehl.insert(befehl.end(), {"--patience", "1000"});
    return befehl;
  }
  /// "logger run" with the settings, on the stand-in's device.
  Worte lauf(const Stellvertreter& geraet, const Worte& mehr = {}) const {
    Worte alle{"logger", "run", "--port", "1=" + geraet.geraet(), "--settings", "s.json"};
    alle = geduldig(std::move(alle));
    alle.insert(alle.end(), mehr.begin(), mehr.end());
    return alle;
  }
  messdateien::Inhalt arbeitskopie() const { return messdateien::Inhalt(lies("FM_diag.dat")); }
  /// Names of the working copies that were kept beside.
  Worte beiseite() const {
    Worte alle;
    for (const std::string& name : namen())
      if (name.starts_with("FM_diag ")) alle.push_back(name);
    return alle;
  }
};
