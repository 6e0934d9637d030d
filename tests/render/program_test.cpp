// `starfolds-render` as a user starts it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

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

TEST(Program, AFullStandardOutputIsAFault) {
  const TestFolder folder;
  const Outcome outcome = RunProgram(folder, "--size 9x9 --frames 3 --hash >/dev/full; exit $?");
  EXPECT_EQ(outcome.ExitCode, 2);
}

}  // namespace
}  // namespace starfolds
