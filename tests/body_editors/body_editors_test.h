// The editors of a body without the properties dialog, driven as by a user's hands.
#pragma once

#include <QListWidget>
#include <map>

#include "body_editors/frm_levels.h"
#include "body_editors/frm_molecule.h"
#include "body_editors/frm_user_def_ifs.h"
#include "widgets/dialog_test.h"

namespace starfolds {

constexpr int kBody = 7;  // EditBody

enum class Kind { Levels, Ifs, Molecule };
constexpr Kind kKinds[] = {Kind::Levels, Kind::Ifs, Kind::Molecule};

class BoxesOfNobody : public PropsBoxes {
 public:
  UniverseSettings Universe;
  std::map<int, std::string> Texts;

  UniverseSettings UniverseOnDialog() const override { return Universe; }
  void SetStarfoldBox(int index, const std::string& text) override { Texts[index] = text; }
};

class BodyEditorsTest : public EditorTest {
 protected:
  BodyEditorsTest() {
    Process->Tree = &Tree;
    Process->Events = &Events;
    Process->Desktop = &Desktop;
    Record().UniFoldName = "Mine & Yours";
    Props.Universe.Universe_Stars = 300;
    Events.OnTooLong = [this] {
      ADD_FAILURE() << "the run does not end";
      Process->Requests.AskStop();
    };
  }

  StarfoldProfile& Record() { return Process->Profiles[kBody]; }

  /// A body of the style that the editor is for.
  BodyEditor& Open(Kind kind) {
    const BodyEditing editing{Model, Props, [] { return 1U; }, kBody};
    switch (kind) {
      case Kind::Levels:
        Record().Starfold_FoldStyle = 0;
        Dialog = std::make_unique<FrmLevels>(editing);
        break;
      case Kind::Ifs:
        Record().Starfold_FoldStyle = 8;
        Dialog = std::make_unique<FrmUserDefIfs>(editing);
        break;
      case Kind::Molecule:
        Record().Starfold_FoldStyle = 9;
        Record().Starfold_ColorComp = 6;
        Dialog = std::make_unique<FrmMolecule>(editing);
        break;
    }
    Dialog->ShowInPlace();
    Activate(*Dialog);
    return *Dialog;
  }

  QWidget& Window() override { return *Dialog; }
  QListWidget& Atoms() { return The<QListWidget>("lstElements"); }
  void Put(const std::string& box, const std::string& text) {
    Edit(box).setText(QString::fromStdString(text));
  }
  std::string Text(const std::string& box) { return Edit(box).text().toStdString(); }

  /// Previews for some frames.
  void Preview(int frames) {
    Events.Pumps = 0;
    Events.Plan = {{frames, [this] { Click("cmdPreview"); }}};
    Click("cmdPreview");
  }

  MemoryDesktop Desktop;
  PlannedPump Events;
  BoxesOfNobody Props;
  std::unique_ptr<BodyEditor> Dialog;
};

}  // namespace starfolds
