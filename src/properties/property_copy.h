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

  /// Shows the empty control for a value of the property at `position` of the list; no control if
  /// the position is out of range.
  void SetupPropCopyValue(int position);
  /// Clamps the number to the property's range. Called when its box loses the focus.
  void ClampPropCopyValue();
  /// Copies the value, or shows a message if property or value is missing.
  void CopyPropertyToAllProfiles();

 signals:
  /// The value is about to be copied; `what` names the copy.
  void AboutToChange(const QString& what);
  /// The records have changed: those of `types` types were set.
  void Copied(int types);

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
