#include "render/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace starfolds {
namespace {

using testing::HasSubstr;
using testing::Optional;

using Arguments = std::vector<std::string_view>;

RenderOptions Parsed(const Arguments& arguments) {
  RenderOptions options;
  const Fault fault = ParseOptions(arguments, options);
  EXPECT_EQ(fault, std::nullopt) << *fault;
  return options;
}

/// The settings that the options lead to, for a user with nothing stored.
SettingsRecords Settings(const RenderOptions& options) {
  MemoryTree tree;
  MemoryFiles disk;
  SettingsRecords records;
  EXPECT_EQ(MakeSettings(options, tree, disk, records), std::nullopt);
  return records;
}

TEST(Options, EachIsRead) {
  const RenderOptions options =
      Parsed({"--size", "641x16384", "--seed", "18446744073709551615", "--frames", "90", "--first",
              "4", "--every", "7", "--profile", "49", "--y4m", "-", "--set", "Universe_Stars=777",
              "--set", "Starfold3/_UniFoldName=a=b"});
  EXPECT_EQ(options.Width, 641);
  EXPECT_EQ(options.Height, 16384);
  EXPECT_EQ(options.Seed, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(options.Plan.Frames, 90);
  EXPECT_EQ(options.Plan.First, 4);
  EXPECT_EQ(options.Plan.Every, 7);
  EXPECT_EQ(options.Profile, 49);
  EXPECT_EQ(options.Y4mFile, "-");
  EXPECT_FALSE(options.Hash);
  EXPECT_EQ(Settings(options).Universe.Universe_Stars, 777);
  EXPECT_EQ(Settings(options).Profiles[3].UniFoldName, "a=b");
}

TEST(Options, SettingsStartFromTheFactoryWhateverTheOrder) {
  const SettingsRecords none = Settings(Parsed({"--hash"}));
  EXPECT_EQ(none.Profiles[1].UniFoldName, "Star Rings");
  EXPECT_EQ(none.Universe.Universe_Starfold, 100);
  const RenderOptions options = Parsed({"--set", "Starfold1/Starfold_Radius=7", "--theme", "8",
                                        "--factory", "1", "--composite", "15", "--hash"});
  const SettingsRecords records = Settings(options);
  EXPECT_EQ(records.Profiles[1].UniFoldName, "Pancake-Like Disk");
  EXPECT_EQ(records.Profiles[1].Starfold_Radius, 7);
  EXPECT_EQ(records.Universe.Universe_GravForce, 125000);
  EXPECT_EQ(options.Composite, 15);
  EXPECT_EQ(Settings(Parsed({"--factory", "1", "--hash"})).Universe.Universe_Stars, 2500)
      << "theme 1 has a variant for the 2.0 set";
}

TEST(Options, StoredSettingsThatCannotBeReadAreAFault) {
  MemoryTree tree;
  tree.Readable = false;
  MemoryFiles disk;
  SettingsRecords records;
  EXPECT_NE(MakeSettings(Parsed({"--stored", "--hash"}), tree, disk, records), std::nullopt);
}

struct BadLine {
  Arguments Line;
  const char* Message;  // a part of it
};

const std::string kLong(1'000'000, '9');

const BadLine kBadLines[] = {
    {{"--size", "640x16385"}, "from 1 to 16384"},
    {{"--hash", "--size", "16384x16384"}, "more than 67108864 pixels"},
    {{"--hash", "--size", "4096x8192", "--scale", "2"}, "more than 67108864 pixels"},
    {{"--seed", "18446744073709551616"}, "not \"18446744073709551616\""},
    {{"--frames", kLong}, "from 1 to 100000000"},
    {{"--every", "0"}, "--every: takes a whole number"},
    {{"--hash", "--frames", "10", "--first", "11"}, "--first 11 lies beyond the last frame, 10"},
    {{"--profile", "50"}, "from 0 to 49"},
    {{"--hash", "--profile", "1", "--composite", "1"}, "give one of them"},
    {{"--set", "Universe_Stars"}, "takes Name=value"},
    {{"--set", "Universe_Star=1"}, "there is no setting \"Universe_Star\""},
    {{"--set", "Universe_Stars=many"}, "takes a number, not \"many\""},
    {{"--hash", "--universes", "5..4"}, "takes one number or FIRST..LAST"},
    {{"--hash", "--universes", "0..4"}, "not \"0..4\""},
    {{"--hash", "--universes", "1...2"}, "not \"1...2\""},
    {{"--hash", "--universes", "1..", "--seed", "1"}, "not \"1..\""},
    {{"--hash", "--universes", "1", "--seed", "1"}, "give it or --seed"},
    {{"--y4m", "-", "--universes", "1"}, "not to the standard output"},
    {{"--video", "a.mp4/b"}, "must end with one of .mp4, "},
    {{"--sheet", "s.png"}, "--sheet has room for 400 frames, not 1000"},
    {{"--hash", "--y4m", "-"}, "only one of --hash, --y4m and --sheet"},
    {{"--sheet", "-", "--frames", "9", "--y4m", "/dev/stdout"}, "can have the standard output"},
};

TEST(Options, BadOnesAreRefusedWithAMessage) {
  for (const BadLine& bad : kBadLines) {
    RenderOptions options;
    EXPECT_THAT(ParseOptions(bad.Line, options), Optional(HasSubstr(bad.Message)))
        << testing::PrintToString(bad.Line).substr(0, 200);
  }
}

}  // namespace
}  // namespace starfolds
