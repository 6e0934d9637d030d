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
  /// Sets the names of the profiles, in their order. The selection is kept.
  void SetBodies(const std::vector<std::string>& names);
  /// Clears the selected composite, the selected types and the text boxes. What was edited and is
  /// not stored is lost.
  void ClearEditor();
  /// Stores what was edited of the shown composite, as leaving it does: name and percent, and the
  /// members if there is a major type. Shows no message.
  void StoreEdited();
  BodyList& List() { return *list_; }
  /// The selected composite, or -1.
  int Selected() const;

 signals:
  /// `cmdPreviewComp` was pressed.
  void PreviewRequested();
  /// The records are about to be changed by this view; `what` names the change.
  void AboutToChange(const QString& what);
  /// Names, weights or members have changed.
  void RecordsChanged();

 private:
  void NameControls();
  void LayOut();
  QBoxLayout* ListColumn();
  QBoxLayout* EditColumn();
  void ConnectControls();

  void ShowSelected();
  void ChooseMembers(const CompositeProfile& composite);
  void Commit();
  void Store();
  void SetEdited();
  void ShowStills();
  void ResetPercents();
  void ShowEntry(int position);

  /// The selected types, the major one first, without duplicates.
  std::vector<Integer> Members() const;
  /// Whether the members mix two or more iterated function systems, which fit together badly.
  bool MixesIfs() const;
  void PaintWarning();

  PropsModel model_;
  int shown_ = -1;           // the composite that the boxes show
  bool edited_ = false;      // by the user, since it is shown
  bool loading_ = false;     // the boxes are being set from the record
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
