// Each opening of the settings file costs a lock and a look of its own, and what is read in several
// of them may come from several states. Whoever reads many values does it in one look.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include "editors/frm_advanced.h"
#include "editors/frm_file_io.h"
#include "platform/surface.h"
#include "props_dialog.h"
#include "storage/sqlite_tree.h"
#include "test_folder.h"
#include "universe/host_surface.h"

namespace starfolds {
namespace {

class OpeningsTest : public FrmPropsTest {
 protected:
  OpeningsTest() : watch_(inotify_init1(IN_NONBLOCK)) {
    StoreFactory();
    SettingsRecords records = LoadSettings(Tree);
    EXPECT_TRUE(SaveSettings(Stored, records));
    for (const auto mark : {kAnimationType, kResetSettings}) {
      RegistryWrite(Stored, sections::kGeneral, mark, Long{1});
    }
    Process->Tree = &Stored;
    inotify_add_watch(watch_, Folder.Path("settings.db").c_str(), IN_OPEN | IN_CLOSE);
  }
  ~OpeningsTest() override { close(watch_); }

  /// How often the file is opened while `act` runs.
  template <class Act>
  int Openings(const Act& act) {
    CountEvents();
    act();
    return CountEvents();
  }

  TestFolder Folder;
  SqliteTree Stored{{Folder.Path("settings.db"), Folder.Path("machine.db")}, nullptr};

 private:
  /// The system joins events that are alike and follow each other; an opening and a closing are
  /// not.
  int CountEvents() {
    int count = 0;
    inotify_event event{};
    while (read(watch_, &event, sizeof event) == sizeof event) count += (event.mask & IN_OPEN) != 0;
    return count;
  }

  int watch_;
};

TEST_F(OpeningsTest, WhoReadsManyValuesOpensTheFileOnce) {
  EXPECT_EQ(Openings([&] { LoadAdvancedFromRegistry(Stored); }), 1) << "the check itself";
  EXPECT_EQ(Openings([&] { MigrateMachineSettings(Stored); }), 0);
  const int atStart = Openings([&] {
    EnsureBodies(*Process);
    MemorySurface surface(64, 48);
    SetupDisplay(*Process, surface, 1);
    ReadUniverseSettings(*Process, false);
  });
  EXPECT_LE(atStart, 3) << "a run";
  EXPECT_EQ(Openings([&] { Open(); }), 2) << "the settings, and the place of the window";
  EXPECT_EQ(Edit("txtUni_0").text(), "5000");
  EXPECT_LE(Openings([&] { FrmAdvanced(Stored, HelpBook).ShowInPlace(); }), 2);
  const auto chooseFile = [&] {
    WhenShown<FrmFileIo>([](FrmFileIo& dialog) { dialog.reject(); });
    Choose("mnuOpen");
  };
  EXPECT_LE(Openings(chooseFile), 3) << "the folder, and the place of the window, which is stored";
  EXPECT_LE(Openings([&] { Click("cmdAccept"); }), 4) << "a test, all, and the place of the window";
  EXPECT_FALSE(Dialog->IsOpen());
}

}  // namespace
}  // namespace starfolds
