// `frmLevels`: the discs that a body of the Standard style is made of.
#pragma once

#include <QCheckBox>
#include <vector>

#include "body_editors/body_editor.h"

namespace starfolds {

class FrmLevels : public BodyEditor {
  Q_OBJECT

 public:
  explicit FrmLevels(const BodyEditing& editing, QWidget* parent = nullptr);

 private:
  /// `GatherLevels`. There is nothing that it refuses.
  std::string Gather(StarfoldProfile& body) const override;

  struct Toggle {
    QCheckBox* Box;
    Integer StarfoldProfile::*Member;
  };
  std::vector<Toggle> chkToggle_;
};

}  // namespace starfolds
