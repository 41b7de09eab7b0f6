#include "platform/ordnersperre.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "support/temp_folder.h"

using namespace polarkreis;

TEST(Ordnersperre, TheSecondWaitsForTheFirstsEnd) {
  const TempOrdner ordner;
  std::atomic<bool> erster_da = true, gewartet = false;
  std::optional<Ordnersperre> erster(ordner.pfad());
  std::thread zweiter([&] {
    const Ordnersperre sperre(ordner.pfad(), [&] { gewartet = true; });
    EXPECT_FALSE(erster_da);
  });
  while (!gewartet) std::this_thread::yield();
  erster_da = false;
  erster.reset();
  zweiter.join();
  EXPECT_TRUE(ordner.namen().empty());
}

TEST(Ordnersperre, NobodyWaitsForAFolderThatIsFreeOrNotThere) {
  const TempOrdner ordner;
  const auto nie = [] { FAIL() << "waited"; };
  { const Ordnersperre sperre(ordner.pfad(), nie); }
  const Ordnersperre wieder(ordner.pfad(), nie), nichts(ordner.pfad("absent"), nie);
  EXPECT_FALSE(ordner.da("absent"));
}
