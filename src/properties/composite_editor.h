// The contents of `fraUniProp(3)`: the composites, each a few types of starfold shown as one body.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <string>
#include <vector>

#include "widgets/body_list.h"
#include "widgets/dialog_model.h"
#include "widgets/name_box.h"
#include "widgets/number_box.h"

class QBoxLayout;

namespace starfolds {

class CompositeEditor : public QWidget {
  Q_OBJECT

 public:
  explicit CompositeEditor(const PropsModel& model, QWidget* parent = nullptr);

  /// Fills the list from the records and clears the editor.
  void Rebuild();
  /// The types that a composite can be made of, in the order of the profiles. What is chosen stays
  /// chosen.
  void SetBodies(const std::vector<std::string>& names);
  /// Clears selection, choice and typed text.
  void ClearEditor();
  /// The selected composite, or -1.
  int Selected() const;

 signals:
  /// `cmdPreviewComp` was pressed.
  void PreviewRequested();

 private:
  void NameControls();
  void LayOut();
  QBoxLayout* ListColumn();
  QBoxLayout* EditColumn();
  void ConnectControls();

  void ShowSelected();
  void ChooseMembers(const CompositeProfile& composite);
  void Commit();
  void ResetPercents();
  void ShowEntry(int position);

  /// The chosen types, the major one first and each of them once.
  std::vector<Integer> Members() const;
  /// Whether the members mix two or more iterated function systems, which fit together badly.
  bool MixesIfs() const;
  void PaintWarning();

  PropsModel model_;
  BodyList* list_;           // lstCompStarfold
  NumberBox* resetPercent_;  // txtResetCompPct
  QPushButton* reset_;       // cmdResetCompPct
  NameBox* name_;            // txtCompFoldName
  NumberBox* percent_;       // txtCompFoldPct
  QComboBox* major_;         // cboCompMajor
  QListWidget* minors_;      // lstCompMinor
  QPushButton* preview_;     // cmdPreviewComp
  QPushButton* commit_;      // cmdCompCommit
};

}  // namespace starfolds
