#include "body_editors/frm_levels.h"

#include <QGroupBox>
#include <iterator>

#include "desktop/translation.h"
#include "settings/registry.h"
#include "widgets/lines.h"

namespace starfolds {
namespace {

struct ToggleRow {
  const char* Label;
  Integer StarfoldProfile::*Member;
};
constexpr ToggleRow kToggles[] = {
    {STARFOLDS_TEXT("Scale Height to Radius?"), &StarfoldProfile::Starfold_StdLevB_HS},
    {STARFOLDS_TEXT("Interleave Tilt Angles?"), &StarfoldProfile::Starfold_StdLevB_A0},
    {STARFOLDS_TEXT("Dampen Tilt Angles?"), &StarfoldProfile::Starfold_StdLevB_A1}};

}  // namespace

FrmLevels::FrmLevels(const BodyEditing& editing, QWidget* parent)
    : BodyEditor({"frmLevels", sections::kLevelsPlace, help::kLevels, tr("%1 Starfold Levels:  "),
                  tr("Levels Preview - %1"), tr("Preview"), RangedEditor::Levels},
                 editing, parent) {
  const BodyBox bodyRows[] = {{&StarfoldProfile::Starfold_Radius, tr("Radius:"), 0},
                              {&StarfoldProfile::Starfold_Distance, tr("Distance:"), 2}};
  const BodyBox levelRows[] = {
      {&StarfoldProfile::Starfold_StdLevels, tr("Levels (1 - 10):"), 9},
      {&StarfoldProfile::Starfold_StdLevDRad, tr("Radius Increment (1 - 30000):"), kNoPropsBox},
      {&StarfoldProfile::Starfold_StdLevHSca, tr("Height Multiplier (0.0 - 99.9):"), kNoPropsBox}};

  auto* body = new QGroupBox(tr("Starfold (0 - 30000)"));
  QGridLayout* page = MakePage(body);
  for (int i = 0; i < static_cast<int>(std::size(bodyRows)); ++i) {
    AddBodyBox(*page, "Starfold", i, bodyRows[i]);
  }
  Controls().addWidget(body);

  auto* levels = new QGroupBox(tr("Level Properties:"));
  page = MakePage(levels);
  for (int i = 0; i < static_cast<int>(std::size(levelRows)); ++i) {
    AddBodyBox(*page, "Level", i, levelRows[i]);
  }
  for (const auto& [label, member] : kToggles) {
    auto* box = new QCheckBox(Translated(label));
    box->setObjectName("chkToggle_" + QString::number(chkToggle_.size()));
    box->setChecked(Record().*member != 0);
    connect(box, &QCheckBox::toggled, this, &FrmLevels::Touched);
    Guide(*box, FieldOf(Setting<StarfoldProfile>(member)));
    AddWideLine(*page, box);
    chkToggle_.push_back({box, member});
  }
  Controls().addWidget(levels);
  Controls().addStretch();
  AddPreviewAndButtons();
  ShowBodyBoxes(Record());
}

std::string FrmLevels::Gather(StarfoldProfile& body) const {
  StoreBodyBoxes(body);
  for (const auto& [box, member] : chkToggle_) body.*member = box->isChecked() ? 1 : 0;
  return {};
}

}  // namespace starfolds
