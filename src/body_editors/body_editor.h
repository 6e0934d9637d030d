// What the editors of a single body share.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QMenuBar>
#include <QPushButton>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "numbers/text.h"
#include "widgets/dialog_model.h"
#include "widgets/editor_ranges.h"
#include "widgets/living_body.h"
#include "widgets/number_box.h"
#include "widgets/picture_box.h"
#include "widgets/placed_dialog.h"
#include "widgets/preview_runs.h"
#include "widgets/setting_guide.h"

namespace starfolds {

/// The properties dialog, as an editor accesses it.
class PropsBoxes {
 public:
  virtual ~PropsBoxes() = default;

  /// For previews.
  virtual UniverseSettings UniverseOnDialog() const = 0;
  /// Shows a number in `txtStarfold(index)`.
  virtual void SetStarfoldBox(int index, const std::string& text) = 0;
};

/// The arguments of an editor.
struct BodyEditing {
  PropsModel Model;
  PropsBoxes& Props;
  std::function<std::uint64_t()> Seed;  // called for each preview
  int EditBody;                         // index of the profile
};

/// An input box and the setting that it edits.
template <class Record>
struct BoundBox {
  NumberBox* Box;
  const Field<Record>* Row;

  void Show(const Record& record) const { Box->SetText(FieldText(record, *Row)); }
  void Clear() const { Box->SetText({}); }
  /// The number in the box, clamped to its range.
  std::string Text() const { return ClampedText(Box->Text(), Box->Range()); }
  void Store(Record& record) const { SetFieldNumber(record, *Row, LenientNumber(Text())); }
};

/// Edits a part of one profile's record and previews it. A preview stores the values of the editor
/// in the record, where they stay even after "Cancel"; only "OK" changes the boxes of the
/// properties dialog.
class BodyEditor : public PlacedDialog {
  Q_OBJECT

 public:
  /// Closes like "Cancel". Ends a running preview first, because its call frame is above the
  /// dialog's.
  void reject() override;
  /// Initially the picture is larger than its minimum.
  QSize sizeHint() const override;

 protected:
  struct Texts {
    const char* Name;  // of the dialog
    std::string_view Section;
    Integer Topic;
    QString Caption;         // of the window; %1: the profile's name
    QString PreviewCaption;  // of the preview; %1: the profile's name
    QString Preview;         // of the button while no preview runs
    RangedEditor Ranges;     // of the boxes for settings of the profile
  };

  /// A numeric setting of the profile.
  struct BodyBox {
    Setting<StarfoldProfile> What;
    QString Label;
    int PropsBox;  // index of the `txtStarfold` that "OK" writes it to, or `kNoPropsBox`
  };
  static constexpr int kNoPropsBox = -1;

  BodyEditor(const Texts& texts, const BodyEditing& editing, QWidget* parent);

  StarfoldProfile& Record() const;
  const PropsModel& Model() const { return model_; }

  // The layouts for the editor's own controls: beside the preview, and above both.
  QVBoxLayout& Controls() { return *controls_; }
  QVBoxLayout& Head() { return *head_; }
  /// Must be called last, so that the preview and the buttons follow the controls in the tab order.
  void AddPreviewAndButtons(QPushButton* cmdClear = nullptr);

  /// Explains the setting of a control in its place.
  template <class Record>
  void Guide(QWidget& control, const Field<Record>& field) const {
    new SettingGuide(control, model_.HelpBook, [&field] { return Guided(field); });
  }

  /// Adds a line for element `index` of a control array.
  void AddBodyBox(QGridLayout& page, const char* array, int index, const BodyBox& row);
  void ShowBodyBoxes(const StarfoldProfile& body);
  void StoreBodyBoxes(StarfoldProfile& body) const;
  const std::vector<BoundBox<StarfoldProfile>>& BodyBoxes() const { return bodyBoxes_; }

  /// Stores the values of the editor in a record, the profile's or a copy of it. Returns what is
  /// wrong with them; empty if nothing is.
  virtual std::string Gather(StarfoldProfile& body) const = 0;

  /// Updates the picture of the body a short time after a change.
  void Touched() { living_->Changed(); }

  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QMenuBar* MakeMenuBar();
  QWidget* MakePreviewPane();
  QLayout* MakeButtons(QPushButton* cmdClear);

  bool GatherIntoRecord();
  void Accept();
  void TogglePreview();
  void RunPreview();
  std::unique_ptr<ShownBody> BodyToShow() const;

  PropsModel model_;
  PropsBoxes& props_;
  std::function<std::uint64_t()> seed_;
  int editBody_;  // EditBody
  Texts texts_;
  PreviewSwitch preview_;
  bool resized_ = false;          // the picture was resized while a preview runs
  bool acceptsAfterRun_ = false;  // "OK" was pressed while a preview runs
  std::vector<BoundBox<StarfoldProfile>> bodyBoxes_;
  std::vector<int> propsBoxes_;  // `PropsBox` of each of `bodyBoxes_`
  QVBoxLayout* rows_ = nullptr;
  QVBoxLayout* head_ = nullptr;
  QHBoxLayout* columns_ = nullptr;
  QVBoxLayout* controls_ = nullptr;
  PictureBox* picPreview_ = nullptr;
  std::unique_ptr<LivingBody> living_;  // in the picture while no preview runs
  QPushButton* cmdPreview_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdDismiss_ = nullptr;
};

}  // namespace starfolds
