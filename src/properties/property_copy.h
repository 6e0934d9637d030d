// The contents of `fraPropCopy`: one property, one value, written into all profiles.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "widgets/dialog_model.h"
#include "widgets/number_box.h"

namespace starfolds {

struct CopyRow;

class PropertyCopy : public QWidget {
  Q_OBJECT

 public:
  explicit PropertyCopy(const PropsModel& model, QWidget* parent = nullptr);

  /// Shows the control for the value of the property at `position` of the list, empty; none of them
  /// beyond the ends of the list.
  void SetupPropCopyValue(int position);
  /// Holds the number to the property's range. Runs by itself when its box is left.
  void ClampPropCopyValue();
  /// Copies, or says what is missing.
  void CopyPropertyToAllProfiles();

 signals:
  /// Records have changed.
  void Copied();

 private:
  void LayOut();
  void ConnectControls();
  const CopyRow* Row() const;
  void ShowTextBox(const CopyRow& row);
  void ShowChoices(const CopyRow& row);
  void ShowCheckBox(const CopyRow& row);
  void ShowValueControl(QWidget& control, const CopyRow& row);
  bool HasValue() const;
  Single Value() const;
  void AskForValue();

  PropsModel model_;
  QComboBox* property_;  // cboPropCopyList
  QLabel* valueLabel_;
  QLabel* range_;      // lblPropCopy
  NumberBox* text_;    // txtPropCopy
  QComboBox* choice_;  // cboPropCopy
  QCheckBox* check_;   // chkPropCopy
  QPushButton* copy_;  // cmdPropCopy
};

}  // namespace starfolds
