// The properties dialog over a tree in memory, driven as by a user's hands.
#pragma once

#include "properties/frm_props.h"
#include "settings/first_run.h"
#include "settings/stored_records.h"
#include "settings/templates.h"
#include "widgets/dialog_test.h"

namespace starfolds {

class FrmPropsTest : public DialogTest {
 protected:
  FrmPropsTest() {
    Process->Tree = &Tree;
    Process->Events = &Events;
    Process->Desktop = &Desktop;
    Events.OnTooLong = [this] {
      ADD_FAILURE() << "the run does not end";
      Process->Requests.AskQuit();
    };
  }

  /// A user who has settings already.
  void Store(SettingsRecords records) {
    SaveSettings(Tree, records);
    RegistryWrite(Tree, sections::kGeneral, kAnimationType, Long{0});
    RegistryWrite(Tree, sections::kGeneral, kResetSettings, Long{1});
  }

  void StoreFactory() {
    SettingsRecords records;
    LoadFactorySettings(records, FactorySet::Starfolds4x, 1);
    Store(records);
  }

  FrmProps& Open() {
    Dialog = std::make_unique<FrmProps>(PropsSurroundings{
        *Process, *Process->Tree, Boxes, *UsedFiles, HelpBook, "/prog", "/home/u",
        [] { return 1U; }, nullptr, HomePage, SharePage, [this](QWidget&) { ++Diagnostics; },
        [this](QWidget&) { ++Abouts; }, Overrides});
    Dialog->Open();
    Activate(*Dialog);
    return *Dialog;
  }

  QWidget& Window() override { return *Dialog; }
  void Choose(const char* menuEntry) { Part<QAction>(*Dialog, menuEntry).trigger(); }

  /// Types over what stands in a box, and leaves it.
  void Enter(const std::string& box, const std::string& text) {
    Edit(box).setText(QString::fromStdString(text));
    Leave(*Edit(box).parentWidget());
  }

  /// Opens the properties of a type of starfold.
  void OpenType(int index) {
    The<BodyList>("lstUniStarfold").setCurrentRow(index);
    Click("cmdFoldProps");
  }

  /// The name of body 1 in a template that the dialog has written.
  std::string SavedName(const std::string& path) {
    SettingsRecords saved;
    TemplateFile file(Disk);
    EXPECT_EQ(ReadTemplate(file, path, saved), std::nullopt) << path;
    return saved.Profiles[1].UniFoldName;
  }

  MemoryFiles Disk;
  Files* UsedFiles = &Disk;
  MemoryDesktop Desktop;
  std::string HomePage;
  std::string SharePage;
  std::vector<std::string> Overrides;
  int Diagnostics = 0;
  int Abouts = 0;
  PlannedPump Events;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  std::unique_ptr<FrmProps> Dialog;
};

}  // namespace starfolds
