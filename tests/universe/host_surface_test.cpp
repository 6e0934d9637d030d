#include "universe/host_surface.h"

#include <gtest/gtest.h>

#include <memory>

#include "settings/factory.h"
#include "settings/first_run.h"
#include "settings/registry.h"
#include "settings/stored_records.h"

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
  const auto process = std::make_unique<ProcessState>();
  process->Tree = &tree;
  const auto shown = [&](bool readable) {
    tree.Readable = readable;
    EnsureBodies(*process);
    ReadUniverseSettings(*process, false);
    return process->Profiles[1].UniFoldName + ", " +
           std::to_string(process->Universe.Universe_Stars);
  };
  const std::string factory = "Star Rings, " + std::to_string(UniverseSettings().Universe_Stars);
  EXPECT_EQ(shown(false), factory);
  EXPECT_EQ(shown(true), "Pancake-Like Disk, 77");
  process->HasBodies = true;  // the tree was locked after the bodies had been looked for
  tree.Readable = false;
  ReadUniverseSettings(*process, false);
  EXPECT_EQ(process->Profiles[1].UniFoldName, "Star Rings");
}

}  // namespace
}  // namespace starfolds
