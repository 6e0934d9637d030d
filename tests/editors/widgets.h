// What the tests of editors share.
#pragma once

#include <memory>
#include <string>

#include "editors/props_model.h"
#include "toolkit.h"

namespace starfolds {

/// The records of a dialog, with boxes that answer by themselves.
class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    const SettingsRecords records;
    Process->Profiles = records.Profiles;
    Process->Composites = records.Composites;
  }

  /// The text of the last box, which is forgotten; empty if there was none.
  std::string LastBox() {
    std::string text;
    if (!Boxes.Log.empty()) {
      text = Boxes.Log.back().Text;
      EXPECT_EQ(Boxes.Log.back().Style, BoxStyle::Information);
      EXPECT_EQ(Boxes.Log.back().Caption, "Starfolds");
    }
    Boxes.Log.clear();
    return text;
  }

  std::unique_ptr<Saver> Process = std::make_unique<Saver>();
  ScriptedMessageBoxes Boxes;
  MemoryHelp HelpBook;
  PropsModel Model{*Process, Boxes, HelpBook};
};

}  // namespace starfolds
