// `frmLevels`: the discs of a body of the Standard style.
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
  /// `GatherLevels`. Always returns empty text.
  std::string Gather(StarfoldProfile& body) const override;

  struct Toggle {
    QCheckBox* Box;
    Integer StarfoldProfile::*Member;
  };
  std::vector<Toggle> chkToggle_;
};

}  // namespace starfolds
