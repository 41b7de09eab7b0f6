#pragma once

#include <gtest/gtest.h>

#include <string>

#include "messdateien.h"

/// A data folder with a measurement "m.fmd" of so many rows.
struct Messordner : Datenkopie {
  explicit Messordner(int zeilen = 4) {
    schreib("m.fmd", messdateien::kuehlhaus_datei(zeilen).text());
    schreib("s.json", R"({"Hub_Volumen":60,"Medium_Verd":"air","Medium_Verfl":"air"})");
  }
  /// The figures of a file, with settings in the place of "s.json".
  nlohmann::json figuren(const std::string& datei = "m.fmd",
                         const std::string& einstellungen = {}) const {
    if (!einstellungen.empty()) schreib("s.json", einstellungen);
    const Antwort a = rufe({"diagnose", datei, "--settings", "s.json", "--json"});
    EXPECT_EQ(a.status, 0) << a.fehler;
    return a.json();
  }
  Antwort mit(const std::string& einstellungen) const {
    schreib("s.json", einstellungen);
    return rufe({"diagnose", "m.fmd", "--settings", "s.json", "--json"});
  }
};
