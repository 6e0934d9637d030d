#include "hosting/main.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace starfolds {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what a start does, with the mode that it does it in.
class NotedActions : public StartActions {
 public:
  explicit NotedActions(const ProcessState& process) : process_(process) {}

  std::vector<std::string> Files;
  std::vector<std::string> Notes;

  bool FileExists(const std::string& path) override {
    return std::find(Files.begin(), Files.end(), path) != Files.end();
  }
  void ShowFrmSaver() override { Note("saver"); }
  void ShowFrmAppExe() override { Note("application"); }
  void ShowFrmProps() override { Note("properties"); }
  void LoadFrmPreview() override { Note("preview in " + std::to_string(process_.PreviewParent)); }
  void LoadTemplate(const std::string& path) override { Notes.push_back("template " + path); }

 private:
  void Note(const std::string& what) {
    const char* const modes[] = {"as application", "as saver", "as preview"};
    Notes.push_back(what + " " + modes[static_cast<int>(process_.Mode)] +
                    (process_.Requests.StopRun() ? ", stopped" : ""));
  }

  const ProcessState& process_;
};

class MainTest : public testing::Test {
 protected:
  MainTest() {
    State->Desktop = &Desktop;
    State->Platform = &Platform;
    State->Tree = &Tree;
  }

  std::vector<std::string> NotesOf(const std::string& commandLine) {
    Actions.Notes.clear();
    Main(*State, {"/opt/stars", "Starfolds", commandLine}, Actions);
    return Actions.Notes;
  }

  std::unique_ptr<ProcessState> State = std::make_unique<ProcessState>();
  MemoryDesktop Desktop;
  ScriptedPlatform Platform;
  MemoryTree Tree;
  NotedActions Actions{*State};
};

const std::vector<std::string> kSaver{"saver as saver"};

TEST_F(MainTest, TheCommandLineChoosesTheWindow) {
  const std::vector<std::string> properties{"properties as saver"};
  const struct {
    std::string CommandLine;
    std::vector<std::string> Notes;
  } rows[] = {
      {"   \t ", properties},
      {"/c:1234", properties},
      {" /c", kSaver},
      {"anything at all", kSaver},
      {"/P12345", {"preview in 12345 as preview"}},
      {"/P  12 34", {"preview in 1234 as preview"}},
      {"/P 2.5", {"preview in 2 as preview"}},
      {"/P -7", {"preview in -7 as preview"}},
      {"/P:12345", {"preview in 0 as preview"}},
      {"/P 2147483648", {"preview in 0 as preview"}},
      {"C:\\My Templates\\Rings.SfD", {"template C:\\My Templates\\Rings.SfD", "saver as saver"}},
      {"rings.sfd ", kSaver},
      {"/a 77", {}},
  };
  for (const auto& row : rows) EXPECT_EQ(NotesOf(row.CommandLine), row.Notes) << row.CommandLine;
  EXPECT_THAT(Desktop.PasswordCalls, ElementsAre(77));
}

TEST_F(MainTest, StartsNoSecondSaverAndNoSecondDialog) {
  Desktop.Captions = {"TSLN:Starfolds 4.1a"};
  EXPECT_THAT(NotesOf("/S"), IsEmpty());
  EXPECT_THAT(Desktop.BroughtForward, IsEmpty());
  // Only the switch itself asks for running savers.
  EXPECT_EQ(NotesOf(" /S"), kSaver);
  EXPECT_EQ(NotesOf("other"), kSaver);
  Desktop.Captions = {"Starfold Properties"};
  EXPECT_THAT(NotesOf(""), IsEmpty());
  EXPECT_THAT(Desktop.BroughtForward, ElementsAre("Starfold Properties"));
}

TEST_F(MainTest, IsAPlainApplicationUnderTheNameExeWithNoScrBeside) {
  const std::vector<std::string> application{"application as application"};
  Actions.Files = {"/opt/stars/Starfolds.exe", "/Starfolds.exe", "C:\\Starfolds.exe"};
  for (const char* const line : {"", "/P 5", "rings.sfd"}) EXPECT_EQ(NotesOf(line), application);
  for (const char* const folder : {"/", "C:\\"}) {
    Actions.Notes.clear();
    Main(*State, {folder, "Starfolds", "/S"}, Actions);
    EXPECT_EQ(Actions.Notes, application) << folder;
  }
  Actions.Files.push_back("/opt/stars/Starfolds.scr");
  EXPECT_EQ(NotesOf("/S"), kSaver);
}

TEST_F(MainTest, BlocksTheTaskSwitchKeysOnlyForASaverWithAPasswordOnWindows9x) {
  NotesOf("/S");
  Platform.Id = kWindows9x;
  NotesOf("/S");
  Tree.Write(Hive::CurrentUser, "Control Panel\\Desktop", "ScreenSaveUsePassword", "no");
  NotesOf("/S");
  Tree.Write(Hive::CurrentUser, "Control Panel\\Desktop", "ScreenSaveUsePassword", "1");
  NotesOf("/C");
  EXPECT_THAT(Platform.Log, IsEmpty());
  NotesOf("/S");
  EXPECT_THAT(Platform.Log, ElementsAre("running"));
}

}  // namespace
}  // namespace starfolds
