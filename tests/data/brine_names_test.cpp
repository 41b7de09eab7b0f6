#include <gtest/gtest.h>

#include <set>
#include <string>

#include "data/data_files.h"
#include "refrigerant/sole_daten.h"
#include "shell/text.h"

namespace {

using datafolder::Items;

TEST(BrineNames, HaveOneLineForEachBrineInEachLanguage) {
  for (const char* file : {"SoleBez.ENG", "SoleBez.GER"}) {
    EXPECT_EQ(datafolder::single_items(file).size(), polarkreis::Sole_Daten().size()) << file;
    EXPECT_TRUE(datafolder::ends_lines_with_crlf(file)) << file;
  }
}

TEST(BrineNames, AreNeitherEmptyNorTwiceInAFile) {
  for (const char* file : {"SoleBez.ENG", "SoleBez.GER"}) {
    std::set<std::string> seen;
    for (const std::string& name : datafolder::single_items(file)) {
      EXPECT_FALSE(name.empty()) << file;
      EXPECT_EQ(polarkreis::getrimmt(name), name) << file;
      EXPECT_TRUE(seen.insert(polarkreis::gross(name)).second) << file << " " << name;
    }
  }
}

TEST(BrineNames, OfProductsAreTheProgramsOwnInEveryLanguage) {
  for (const char* file : {"SoleBez.ENG", "SoleBez.GER"}) {
    const Items names = datafolder::single_items(file);
    ASSERT_EQ(names.size(), polarkreis::Sole_Daten().size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      const std::string own(polarkreis::Sole_Daten()[i].name);
      EXPECT_TRUE(own.empty() || names[i] == own) << file << " " << names[i];
    }
  }
}

TEST(BrineNames, OfPlainGlycolsAreInTheirLanguage) {
  const Items english = datafolder::single_items("SoleBez.ENG");
  const Items german = datafolder::single_items("SoleBez.GER");
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_TRUE(polarkreis::Sole_Daten()[i].name.empty());
    EXPECT_NE(polarkreis::gross(english[i]), polarkreis::gross(german[i]));
  }
  for (std::size_t i = 2; i < english.size(); ++i) EXPECT_EQ(english[i], german[i]);
}

}  // namespace
