#include "universe/host_surface.h"

#include <gtest/gtest.h>

#include <memory>

#include "settings/factory.h"
#include "settings/first_run.h"
#include "settings/registry.h"
#include "settings/storage.h"

namespace starfolds {
namespace {

/// Another process may hold the file for a while.
TEST(HostSurface, ARunWithoutAReadableTreeShowsTheFactorysAndTheNextOneTriesAgain) {
  MemoryTree tree;
  const auto mine = std::make_unique<SettingsRecords>();
  LoadFactorySettings(*mine, FactorySet::Starfolds20, 1);
  mine->Universe.Universe_Stars = 77;
  ASSERT_TRUE(SaveSettings(tree, *mine));
  RegistryWrite(tree, "General", kAnimationType, Long{0});
  const auto saver = std::make_unique<Saver>();
  saver->Tree = &tree;
  const auto shown = [&](bool readable) {
    tree.Readable = readable;
    EnsureBodies(*saver);
    ReadUniverseSettings(*saver, false);
    return saver->Profiles[1].UniFoldName + ", " + std::to_string(saver->Universe.Universe_Stars);
  };
  const std::string factory = "Star Rings, " + std::to_string(UniverseSettings().Universe_Stars);
  EXPECT_EQ(shown(false), factory);
  EXPECT_EQ(shown(true), "Pancake-Like Disk, 77");
  saver->HasBodies = true;  // the tree was locked after the bodies had been looked for
  tree.Readable = false;
  ReadUniverseSettings(*saver, false);
  EXPECT_EQ(saver->Profiles[1].UniFoldName, "Star Rings");
}

}  // namespace
}  // namespace starfolds
