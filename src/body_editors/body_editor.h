// What the editors of a single body have in common.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "numbers/text.h"
#include "widgets/dialog_model.h"
#include "widgets/number_box.h"
#include "widgets/picture_box.h"
#include "widgets/placed_dialog.h"
#include "widgets/preview_runs.h"

namespace starfolds {

/// The boxes of the properties dialog, as an editor needs them.
class PropsBoxes {
 public:
  virtual ~PropsBoxes() = default;

  /// For previews.
  virtual UniverseSettings UniverseOnDialog() const = 0;
  /// Shows a number in `txtStarfold(index)`.
  virtual void SetStarfoldBox(int index, const std::string& text) = 0;
};

/// What an editor is opened with.
struct BodyEditing {
  PropsModel Model;
  PropsBoxes& Props;
  std::function<std::uint64_t()> Seed;  // of each preview
  int EditBody;                         // the profile
};

/// A box and the setting that it edits.
template <class Record>
struct BoundBox {
  NumberBox* Box;
  const Field<Record>* Row;

  void Show(const Record& record) const { Box->SetText(FieldText(record, *Row)); }
  void Clear() const { Box->SetText({}); }
  /// The number in the box, held to its range.
  std::string Text() const { return ClampedText(Box->Text(), Box->Range()); }
  void Store(Record& record) const { SetFieldNumber(record, *Row, LenientNumber(Text())); }
};

/// The range of a setting that its dialog takes from the field table.
template <class Record>
NumberRange WholeRange(const Field<Record>& field) {
  return {NumberKind::AsInteger, field.Low, field.High};
}

/// Edits a part of one profile's record and previews it in a box of its own. A preview puts what
/// stands in the editor into the record, where it stays, also after "Cancel"; the boxes of the
/// properties dialog are touched by "OK" only.
class BodyEditor : public PlacedDialog {
  Q_OBJECT

 public:
  /// Closes it as "Cancel" does. A preview that is on ends first: its run stands on the stack above
  /// the dialog.
  void reject() override;
  /// At first the picture is larger than it has to be.
  QSize sizeHint() const override;

 protected:
  struct Texts {
    const char* Name;  // of the dialog
    std::string_view Section;
    Integer Topic;
    std::string_view Caption;         // stands behind the profile's name
    std::string_view PreviewCaption;  // stands before it
    const char* Preview;              // on the button while there is none
  };

  /// A number of the profile itself.
  struct BodyBox {
    Setting<StarfoldProfile> What;
    const char* Label;
    NumberRange Range;
    int PropsBox;  // which `txtStarfold` of the properties dialog takes it with "OK"; or none
  };
  static constexpr int kNoPropsBox = -1;

  BodyEditor(const Texts& texts, const BodyEditing& editing, QWidget* parent);

  StarfoldProfile& Record() const;
  const PropsModel& Model() const { return model_; }

  // Where the editor's own controls go: under each other, beside the preview; and above both.
  QVBoxLayout& Controls() { return *controls_; }
  QVBoxLayout& Head() { return *head_; }
  /// Comes last, so that the keyboard reaches the preview and the buttons after the controls.
  void AddPreviewAndButtons(QPushButton* cmdClear = nullptr);

  /// A line for element `index` of a control array.
  void AddBodyBox(QGridLayout& page, const char* array, int index, const BodyBox& row);
  void ShowBodyBoxes(const StarfoldProfile& body);
  void StoreBodyBoxes(StarfoldProfile& body) const;
  const std::vector<BoundBox<StarfoldProfile>>& BodyBoxes() const { return bodyBoxes_; }

  /// Puts what stands in the editor into a record, the profile's or a copy of it. Returns what is
  /// wrong with it; empty: nothing.
  virtual std::string Gather(StarfoldProfile& body) const = 0;

  /// The still of the body follows what was typed after a short pause.
  void Touched() { stillTimer_.start(); }

  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QMenuBar* MakeMenuBar();
  QWidget* MakePreviewPane(std::string_view caption);
  QLayout* MakeButtons(QPushButton* cmdClear);

  bool GatherIntoRecord();
  void Accept();
  void TogglePreview();
  void RunPreview();
  void ShowStill();

  PropsModel model_;
  PropsBoxes& props_;
  std::function<std::uint64_t()> seed_;
  int editBody_;  // EditBody
  Texts texts_;
  PreviewSwitch preview_;
  bool resized_ = false;          // the picture, while a preview runs
  bool acceptsAfterRun_ = false;  // "OK" was pressed while a preview runs
  QTimer stillTimer_;

  std::vector<BoundBox<StarfoldProfile>> bodyBoxes_;
  std::vector<int> propsBoxes_;  // of each of them
  QVBoxLayout* rows_ = nullptr;
  QVBoxLayout* head_ = nullptr;
  QHBoxLayout* columns_ = nullptr;
  QVBoxLayout* controls_ = nullptr;
  PictureBox* picPreview_ = nullptr;
  QPushButton* cmdPreview_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdDismiss_ = nullptr;
};

}  // namespace starfolds
