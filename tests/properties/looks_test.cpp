// Each read outside of a look costs a lock of the settings file, and what is read in several looks
// may come from several states. Whoever reads many values does it in one look.
#include <gtest/gtest.h>

#include "platform/surface.h"
#include "properties/frm_advanced.h"
#include "properties/props_dialog.h"
#include "settings/overrides.h"
#include "template_dialogs/frm_file_io.h"
#include "universe/host_surface.h"

namespace starfolds {
namespace {

/// Counts the looks and changes, and the single reads beside them.
class CountingTree : public LayeredTree {
 public:
  using LayeredTree::LayeredTree;
  int Count = 0;

  std::optional<std::string> Read(Hive hive, std::string_view path,
                                  std::string_view name) override {
    if (!inside_) ++Count;
    return LayeredTree::Read(hive, path, name);
  }

 protected:
  bool Begin(Access access) override {
    ++Count;
    inside_ = true;
    return LayeredTree::Begin(access);
  }
  bool End(bool keep) override {
    inside_ = false;
    return LayeredTree::End(keep);
  }

 private:
  bool inside_ = false;
};

class LooksTest : public FrmPropsTest {
 protected:
  LooksTest() {
    StoreFactory();
    Process->Tree = &Counted;
  }

  template <class Act>
  int Looks(const Act& act) {
    Counted.Count = 0;
    act();
    return Counted.Count;
  }

  CountingTree Counted{Tree};
};

TEST_F(LooksTest, ManyValuesAreReadInOneTransaction) {
  EXPECT_EQ(Looks([&] { LoadAdvancedFromRegistry(Counted); }), 1) << "the check itself";
  const auto startRun = [&] {
    MigrateMachineSettings(Counted);
    MemorySurface surface(64, 48);
    ReadAdvancedSettings(*Process);
    SetupDisplay(*Process, surface, 1);
    ReadUniverseSettings(*Process, false);
  };
  EXPECT_LE(Looks(startRun), 4) << "the marks, the advanced values, and all of the run";
  // A timer starts the preview, which reads the camera; on a busy machine within any of these
  // steps.
  constexpr int preview = 1;
  EXPECT_LE(Looks([&] { Open(); }), 2 + preview) << "the settings, and the place of the window";
  EXPECT_EQ(Edit("txtUni_0").text(), "5000");
  EXPECT_LE(Looks([&] { FrmAdvanced(Counted, HelpBook).ShowInPlace(); }), 2 + preview);
  const auto chooseFile = [&] {
    WhenShown<FrmFileIo>([](FrmFileIo& dialog) { dialog.reject(); });
    Choose("mnuOpen");
  };
  EXPECT_LE(Looks(chooseFile), 3 + preview)
      << "the folder, and the place of the window, which is stored";
  EXPECT_LE(Looks([&] { Click("cmdAccept"); }), 3 + preview)
      << "a test, all, and the place of the window";
  EXPECT_FALSE(Dialog->IsOpen());
}

}  // namespace
}  // namespace starfolds
