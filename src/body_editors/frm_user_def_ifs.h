// `frmUserDefIFS`: the editor of iterated function systems.
#pragma once

#include <vector>

#include "body_editors/themed_editor.h"

namespace starfolds {

class FrmUserDefIfs : public ThemedEditor {
  Q_OBJECT

 public:
  explicit FrmUserDefIfs(const BodyEditing& editing, QWidget* parent = nullptr);

 private:
  /// The input boxes of a point.
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
  StarfoldProfile BodyOf(const BodyTheme& theme) const override { return BodyOfIfsTheme(theme); }
  void LoadThemeText(const std::string& text) override;
  void Clear() override;
  /// `GatherIfs`. Skips rows without a weight, so the points stored are contiguous.
  std::string Gather(StarfoldProfile& body) const override;

  std::vector<BoundBox<IfsRecord>> center_;
  std::vector<PointRow> points_;
};

}  // namespace starfolds
