// `starfolds-render` as a user starts it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>

#include "render/test_files.h"
#include "settings/factory.h"
#include "settings/first_run.h"
#include "settings/stored_records.h"
#include "storage/sqlite_tree.h"

namespace starfolds {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

struct Outcome {
  int ExitCode = -1;
  std::string Out;
  std::string Err;
};

/// Runs the program with `arguments`, as a shell reads them.
Outcome RunProgram(const TestFolder& folder, const std::string& arguments) {
  const TestFolder streams;
  const std::string command = "cd '" + folder.Path("") + "' && '" STARFOLDS_RENDER_PROGRAM "' " +
                              arguments + " >'" + streams.Path("out") + "' 2>'" +
                              streams.Path("err") + "'";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileText(streams.Path("out")),
          FileText(streams.Path("err"))};
}

/// The hash of each frame that a `--hash` run has printed.
std::map<int, std::string> Hashes(const std::string& arguments) {
  const TestFolder folder;
  const Outcome outcome = RunProgram(folder, "--size 160x90 --hash " + arguments);
  EXPECT_EQ(outcome.ExitCode, 0) << outcome.Err;
  EXPECT_THAT(outcome.Err, IsEmpty());
  std::map<int, std::string> hashes;
  std::istringstream lines(outcome.Out);
  std::string word, hash;
  int frame = 0;
  while (lines >> word >> frame >> hash) hashes[frame] = hash;
  return hashes;
}

TEST(Program, ACompositeIsOneBodyOfAllItsMembers) {
  const auto body = Hashes("--frames 3 --composite 1");
  EXPECT_NE(body, Hashes("--frames 3 --profile 2")) << "its first member alone";
  EXPECT_NE(body, Hashes("--frames 3 --composite 1 --set Starfold49/Starfold_Radius=100"));
}

TEST(Program, StoredSettingsAreTheUsersOwnAndStayAsTheyAre) {
  const TestFolder home;
  SqliteTree tree({home.Path("Tessellane/settings.db"), ""}, {});
  SettingsRecords mine;
  LoadFactorySettings(mine, FactorySet::Starfolds20, 3);
  ASSERT_TRUE(SaveSettings(tree, mine));
  RegistryWrite(tree, "General", kAnimationType, Long{0});
  ASSERT_EQ(setenv("XDG_CONFIG_HOME", home.Path("").c_str(), 1), 0);
  const std::string before = FileText(home.Path("Tessellane/settings.db"));
  EXPECT_EQ(Hashes("--frames 40 --stored"), Hashes("--frames 40 --factory 1 --theme 3"));
  EXPECT_EQ(FileText(home.Path("Tessellane/settings.db")), before);
  ASSERT_EQ(setenv("XDG_CONFIG_HOME", home.Path("nothing").c_str(), 1), 0);
  EXPECT_FALSE(Hashes("--frames 9 --stored").empty()) << "a new user sees the factory's bodies";
  unsetenv("XDG_CONFIG_HOME");
}

TEST(Program, AllOutputsShowTheSameFrame) {
  const TestFolder folder;
  const Outcome outcome =
      RunProgram(folder,
                 "--size 7x5 --frames 9 --first 3 --every 6 --profile 0 --set FocalLength=3 "
                 "--png made/here --y4m v.y4m --sheet s.png");
  EXPECT_EQ(outcome.ExitCode, 0) << outcome.Err;
  EXPECT_THAT(outcome.Err, IsEmpty());
  EXPECT_THAT(folder.Names(),
              UnorderedElementsAre("made", "made/here", "made/here/frame-000003.png",
                                   "made/here/frame-000009.png", "v.y4m", "s.png"));
  const ReadPicture last = ReadPng(folder.Path("made/here/frame-000009.png"));
  ASSERT_EQ(last.Width, 7);
  ASSERT_EQ(last.Height, 5);
  const std::string video = FileText(folder.Path("v.y4m"));
  EXPECT_THAT(video, StartsWith("YUV4MPEG2 W7 H5 F25:1 "));
  const std::string luma = video.substr(video.size() - 3 * 7 * 5, 7 * 5);
  int stars = 0;
  for (std::size_t i = 0; i < luma.size(); ++i) {
    EXPECT_EQ(luma[i] != 16, last.Pixels[i] != 0) << i;
    stars += last.Pixels[i] != 0;
  }
  EXPECT_GT(stars, 0);
}

struct BadLine {
  const char* Arguments;
  const char* Message;  // a part of it
};

const BadLine kBadLines[] = {
    {"", "nothing to write"},
    {"--no-such", "--no-such"},
    {"--hash --seed \"$(printf 'a\\033[2Jb')\"", "a?[2Jb"},
    {"--png file", "cannot make the folder \"file\""},
    {"--sheet none/s.png", "No such file or directory"},
    {"--y4m .", "Is a directory"},
    {"--y4m full", "No space left on device"},
    {"--y4m full --size 9x9 --frames 1", "No space left on device"},  // found by the last flush
    {"--sheet full", "No space left on device"},
};

/// A fault is told on the standard error output, and no file is left behind. The full device is
/// reached by a link, lest a fault in the program replaces the device itself.
TEST(Program, EndsWithCode2AfterAFault) {
  for (const BadLine& bad : kBadLines) {
    SCOPED_TRACE(bad.Arguments);
    const TestFolder folder;
    std::ofstream(folder.Path("file")) << "former";
    std::filesystem::create_symlink("/dev/full", folder.Path("full"));
    const Outcome outcome =
        RunProgram(folder, "--size 64x36 --frames 60 " + std::string(bad.Arguments));
    EXPECT_EQ(outcome.ExitCode, 2);
    EXPECT_THAT(outcome.Out, IsEmpty());
    EXPECT_THAT(outcome.Err, StartsWith("starfolds-render: "));
    EXPECT_THAT(outcome.Err, HasSubstr(bad.Message));
    EXPECT_THAT(folder.Names(), UnorderedElementsAre("file", "full"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("full")));
    EXPECT_EQ(FileText(folder.Path("file")), "former");
  }
}

TEST(Program, VideoGoesToTheStandardStreams) {
  const TestFolder folder;
  const std::string video = RunProgram(folder, "--size 9x9 --frames 2 --y4m -").Out;
  EXPECT_THAT(video, StartsWith("YUV4MPEG2 W9 H9 "));
  for (const char* line : {"--y4m /dev/stdout", "--y4m /dev/stderr 2>&1 | cat",
                           "--y4m /dev/stderr 2>file; { cat file; rm file; }"}) {
    EXPECT_EQ(RunProgram(folder, std::string("--size 9x9 --frames 2 ") + line).Out, video) << line;
  }
  EXPECT_THAT(folder.Names(), IsEmpty());
}

constexpr const char* kSmallUniverse =
    "--size 160x90 --set Universe_ESteps=12 --set Universe_GSteps=9 --set Universe_Recycle=1 ";

/// How many pixels of a picture are not black.
int StarsIn(const std::string& png) {
  int stars = 0;
  for (const Colour pixel : ReadPng(png).Pixels) stars += pixel != 0;
  return stars;
}

TEST(Program, AUniverseDoesNotDependOnTheOthersOfItsRange) {
  const TestFolder folder;
  const auto lines = [&](const std::string& range) {
    return RunProgram(folder, kSmallUniverse + ("--hash --universes " + range)).Out;
  };
  const std::string all = lines("2..4");
  EXPECT_EQ(all, lines("2") + lines("3..4"));
  EXPECT_THAT(all, StartsWith("universe 2 frame 1 "));

  const auto frames = std::count(all.begin(), all.end(), '\n') / 3;
  const std::string last = std::to_string(frames);
  const std::string behind = std::to_string(frames + 1);
  RunProgram(folder, kSmallUniverse + ("--seed 3 --png p --first " + last + " --frames " + behind));
  const auto picture = [&](const std::string& frame) {
    return folder.Path("p/frame-" + std::string(6 - frame.size(), '0') + frame + ".png");
  };
  EXPECT_LT(StarsIn(picture(last)), 10) << "the universe is a speck";
  EXPECT_GT(StarsIn(picture(behind)), 50) << "the next one begins";
}

TEST(Program, KeepsTheUniversesThatAreComplete) {
  const TestFolder folder;
  const auto make = [&](const std::string& more) {
    return RunProgram(folder, kSmallUniverse + ("--png p --sheet made/s.png --every 9 " + more))
        .Err;
  };
  std::filesystem::create_directory(folder.Path("made"));
  EXPECT_THAT(make("--universes 7"), HasSubstr("universe 7 is complete"));
  const std::string sheet = FileText(folder.Path("made/s-000007.png"));
  std::ofstream(folder.Path("p/universe-000007/frame-000010.png")) << "kept";
  std::string said = make("--universes 6..7");
  EXPECT_THAT(said, HasSubstr("universe 6 is complete"));
  EXPECT_THAT(said, HasSubstr("universe 7 was complete"));
  EXPECT_EQ(FileText(folder.Path("p/universe-000007/frame-000010.png")), "kept");

  said = make("--universes 7 --set Universe_Stars=400");
  EXPECT_THAT(said, HasSubstr("universe 7 is complete")) << "the settings are others";
  EXPECT_NE(FileText(folder.Path("made/s-000007.png")), sheet);
  std::filesystem::remove(folder.Path("made/s-000007.png"));
  EXPECT_THAT(make("--universes 7"), HasSubstr("universe 7 is complete"));
  EXPECT_EQ(FileText(folder.Path("made/s-000007.png")), sheet);
}

/// The program in PATH that is called ffmpeg is a script: it stores its input as the video, or
/// fails.
TEST(Program, VideoIsWhatFfmpegMakesOfTheFrames) {
  const TestFolder folder;
  const TestFolder programs;
  const auto run = [&](const std::string& script, const std::string& frames) {
    std::ofstream(programs.Path("ffmpeg")) << "#!/bin/sh\n" << script << "\n";
    std::filesystem::permissions(programs.Path("ffmpeg"), std::filesystem::perms::owner_all);
    const std::string former = getenv("PATH");
    setenv("PATH", (programs.Path("") + ":" + former).c_str(), 1);
    const Outcome outcome =
        RunProgram(folder, "--size 64x36 --y4m raw --video ./-o.mp4 --frames " + frames);
    setenv("PATH", former.c_str(), 1);
    return outcome;
  };
  const std::string store = "for file; do :; done; cat >\"${file#file:}\"";
  EXPECT_EQ(run(store, "30").ExitCode, 0);
  const std::string video = FileText(folder.Path("-o.mp4"));
  EXPECT_EQ(video, FileText(folder.Path("raw")));
  EXPECT_THAT(video, StartsWith("YUV4MPEG2 W64 H36 "));
  for (const char* script : {"exit 3", "cat >/dev/null; exit 3", "echo no >&2; exec <&-; exit 3"}) {
    const Outcome outcome = run(script, "200");
    EXPECT_EQ(outcome.ExitCode, 2);
    EXPECT_THAT(outcome.Err, HasSubstr("-o.mp4\": ffmpeg ended with code 3")) << script;
    EXPECT_EQ(FileText(folder.Path("-o.mp4")), video) << script;
  }
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("raw", "-o.mp4"));
}

TEST(Program, AFullStandardOutputIsAFault) {
  const TestFolder folder;
  const Outcome outcome = RunProgram(folder, "--size 9x9 --frames 3 --hash >/dev/full; exit $?");
  EXPECT_EQ(outcome.ExitCode, 2);
}

}  // namespace
}  // namespace starfolds
