#pragma once

#include <gtest/gtest.h>

#include "anlagenregister.h"

namespace monitor_platz {

using nlohmann::json;
using Argumente = std::vector<std::string>;

inline constexpr const char* kRegel = "c1=tc;ro=  ;c2=  ;cm=3;vl=45;ti=10;nt=3;en=1;";
inline constexpr const char* kLeereRegel = "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=0;";

/// Two plants: "K17" in row 2 and "K9" in row 4; row 1 has no ID.
inline Anlagenregister zwei_Anlagen() {
  Anlagenregister r;
  r(2, 1) = "K17";
  r(2, 2) = "Kühlhaus 3";
  r(2, 7) = "Aachen";
  r(2, 18) = "s3cret";
  r(2, 19) = "ftp + SMS2";
  r(2, 20) = "2";
  r(2, 40) = kRegel;
  r(4, 1) = "K9";
  r(4, 56) = "beyond; use";
  return r;
}

/// Calls of the command on a data folder of their own.
struct Platz : testing::Test {
  Datenkopie daten;
  Antwort rufe(Argumente argumente) const {
    argumente.insert(argumente.begin(), "monitor");
    return daten.rufe(argumente);
  }
  json json_von(Argumente argumente) const {
    argumente.emplace_back("--json");
    const Antwort a = rufe(std::move(argumente));
    EXPECT_EQ(a.status, 0) << a.fehler;
    return a.json();
  }
  std::string registertext() const { return daten.lies(Anlagenregister::datei); }
};

}  // namespace monitor_platz
