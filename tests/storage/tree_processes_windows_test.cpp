// Several processes use the stored tree, and are ended at any moment.
#include <cstdlib>
#include <thread>

#include "storage/stored_tree.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

constexpr int kValues = 400;
constexpr DWORD kLongest = 60'000;  // ms; no working process takes so long

/// This program, running one of the tests below that are disabled otherwise.
class OtherProcess {
 public:
  OtherProcess(const std::string& test, const std::string& file) {
    SetEnvironmentVariableW(L"STARFOLDS_TREE", WidePath(file)->c_str());
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    std::wstring line =
        L'"' + program + L"\" --gtest_also_run_disabled_tests --gtest_filter=*." + *WidePath(test);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    EXPECT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                               nullptr, nullptr, &start, &process_));
  }
  ~OtherProcess() {
    Kill();
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

  void Kill() {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, kLongest);
  }

  bool Succeeded() {
    DWORD code = 1;
    return WaitForSingleObject(process_.hProcess, kLongest) == WAIT_OBJECT_0 &&
           GetExitCodeProcess(process_.hProcess, &code) != 0 && code == 0;
  }

 private:
  PROCESS_INFORMATION process_{};
};

std::string FileOfParent() { return std::getenv("STARFOLDS_TREE"); }
std::string FileOfCount(const std::string& tree) { return tree + ".count"; }

int NumberIn(const std::string& file) {
  int number = 0;
  std::ifstream(file) >> number;
  return number;
}

/// Stores 1, 2 and so on, from the last one that is known to be stored. Says which one is.
TEST(TreeProcessesPart, DISABLED_SavesUntilItIsKilled) {
  StoredTree stored(FileOfParent());
  for (int i = std::atoi(stored.Saved(kValues).c_str()) + 1;; ++i) {
    ASSERT_TRUE(stored.Save(std::to_string(i), kValues));
    std::ofstream(FileOfCount(FileOfParent())) << i;
  }
}

TEST(TreeProcessesPart, DISABLED_SavesBesideAnother) {
  StoredTree stored(FileOfParent());
  const std::string own = std::to_string(GetCurrentProcessId());
  for (int i = 0; i < 30; ++i) {
    EXPECT_TRUE(stored.Save(own, kValues));
    EXPECT_GT(std::atoi(stored.Saved(kValues).c_str()), 0);
  }
}

class TreeProcesses : public TreeTest {};

TEST_F(TreeProcesses, ASaveThatIsKilledIsStoredAsAWholeOrNotAtAll) {
  std::mt19937 random{7};
  int last = 0;
  int duringSaves = 0;
  for (int i = 0; i < 100; ++i) {
    OtherProcess saver("DISABLED_SavesUntilItIsKilled", File);
    for (DWORD waited = 0; waited < kLongest && NumberIn(FileOfCount(File)) <= last; ++waited) {
      Sleep(1);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20'000));
    saver.Kill();
    duringSaves += std::filesystem::exists(File + "-journal") ? 1 : 0;
    StoredTree stored(File);
    const std::string saved = stored.Saved(kValues);
    const int number = std::atoi(saved.c_str());
    ASSERT_EQ(saved, std::to_string(number));
    ASSERT_GT(number, last);
    ASSERT_GE(number, NumberIn(FileOfCount(File))) << "what was stored once is lost";
    ASSERT_TRUE(stored.Complaints.empty());
    last = number;
  }
  EXPECT_GT(duringSaves, 0);
}

TEST_F(TreeProcesses, SeveralSaveAtOnceAndNoneFails) {
  OtherProcess a("DISABLED_SavesBesideAnother", File);
  OtherProcess b("DISABLED_SavesBesideAnother", File);
  EXPECT_TRUE(a.Succeeded());
  EXPECT_TRUE(b.Succeeded());
}

/// As a file without write permission, which Wine does not keep from its own user.
TEST_F(TreeProcesses, AFileThatCannotBeWrittenIsRead) {
  ASSERT_TRUE(StoredTree(File).Save("old", 2));
  const Handle other(*WidePath(File), GENERIC_READ, FILE_SHARE_READ);
  StoredTree stored(File, {}, kImpatient);
  EXPECT_EQ(stored.Saved(2), "old");
  EXPECT_FALSE(stored.Write("0", "old")) << "not even what is there already";
  EXPECT_FALSE(stored.Save("new", 2));
  EXPECT_EQ(stored.Saved(2), "old");
}

TEST_F(TreeProcesses, ADamagedFileInUseIsLeft) {
  Put("config/settings.db", std::string(1000, '?'));
  StoredTree stored(File, {}, kImpatient);
  {
    const Handle other(*WidePath(File), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(stored.Write("x", "1"));
    EXPECT_EQ(FileText(File), std::string(1000, '?'));
  }
  EXPECT_TRUE(stored.Write("x", "1"));
}

/// A saver that runs has looked at the file before it was damaged.
TEST_F(TreeProcesses, ADamagedFileIsSetAsideWhileASaverRuns) {
  ASSERT_TRUE(StoredTree(File).Save("v", 2));
  StoredTree saver(File);
  EXPECT_EQ(saver.Saved(2), "v");
  Put("config/settings.db", std::string(5000, '?'));
  StoredTree dialog(File);
  EXPECT_TRUE(dialog.Save("new", 2));
  EXPECT_EQ(saver.Saved(2), "new");
  EXPECT_EQ(FileText(File + ".damaged-1"), std::string(5000, '?'));
}

}  // namespace
}  // namespace starfolds
