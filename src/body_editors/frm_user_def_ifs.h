// `frmUserDefIFS`: an iterated function system of the user's own.
#pragma once

#include <vector>

#include "body_editors/themed_editor.h"

namespace starfolds {

class FrmUserDefIfs : public ThemedEditor {
  Q_OBJECT

 public:
  explicit FrmUserDefIfs(const BodyEditing& editing, QWidget* parent = nullptr);

 private:
  /// A point: the boxes of its numbers, and its axis.
  struct PointRow {
    std::vector<BoundBox<IfsPoint>> Boxes;
    QComboBox* cboRAxis = nullptr;
  };

  QWidget* MakePoints();
  void AddPoint(QGridLayout& grid);
  void ShowPoint(const PointRow& row, const IfsPoint& point);
  void BlankPoint(const PointRow& row);
  IfsPoint PointIn(const PointRow& row) const;
  void ShowRecord();

  std::string TextOf(const BodyTheme& theme) const override { return IfsThemeText(theme); }
  void LoadThemeText(const std::string& text) override;
  void Clear() override;
  /// `GatherIfs`. Rows without a weight are skipped, so that the others close up.
  std::string Gather(StarfoldProfile& body) const override;

  std::vector<BoundBox<IfsRecord>> center_;
  std::vector<PointRow> points_;
};

}  // namespace starfolds
