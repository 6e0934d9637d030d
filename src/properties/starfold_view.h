// The starfold view of the properties dialog: one profile, open for editing.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

#include "settings/dialog_rows.h"
#include "widgets/dialog_model.h"
#include "widgets/list_wheel_guard.h"
#include "widgets/number_box.h"

namespace starfolds {

/// The page edits a copy of the profile, which `StorePageToProfile` stores. The copy keeps the last
/// values of boxes that another style hides, so that trying a style and going back loses nothing.
class StarfoldView : public QWidget {
  Q_OBJECT

 public:
  /// `seed` is called for each random body.
  StarfoldView(const PropsModel& model, std::function<std::uint64_t()> seed,
               QWidget* parent = nullptr);

  /// Shows profile `index`.
  void LoadProfileToPage(int index);
  /// Shows profile `index` again after its record was changed from outside. "Revert" still goes
  /// back to what it was when it was opened.
  void ReloadPage(int index);
  /// Stores the page in profile `index`, with every number clamped.
  void StorePageToProfile(int index);

  /// Reloads the settings without a box from profile `index`. The values of the boxes are kept and
  /// stored with the page.
  void TakeProfile(int index);
  /// Applies the theme that is being looked at, if there is one.
  void SettleTheme() { themeChoice_->Settle(); }
  /// Shows a number in `txtStarfold(index)`.
  void SetBox(int index, const std::string& text);

  /// The profile as it would be stored.
  StarfoldProfile Page() const;

  QComboBox& Pages() { return *cboFoldExtras_; }  // cboFoldExtras
  /// Position of `cboFoldExtras`.
  int ShownPage() const { return cboFoldExtras_->currentIndex(); }

  /// Shows, hides and labels the rows for the style.
  void ApplyStyle(int style);
  /// Applies a factory row to the page, except name and weight.
  void ApplyFactoryRowToPage(std::string_view row);

 signals:
  /// A value of the page has changed.
  void Changed();
  /// Many values are about to change, by what `what` names.
  void AboutToChange(QString what);
  /// What has just happened, as a sentence.
  void Said(QString text);
  /// `cmdFoldLevels` and `cmdIFS_Chem`.
  void LevelsAskedFor();
  void BodyEditorAskedFor();

 private:
  /// A label and its boxes.
  struct Line {
    int Label;
    QLabel* Text;
    std::vector<const StarfoldRow*> Rows;
  };

  QLayout* MakeHead();
  QLayout* MakeActions();
  QWidget* MakePages();
  int LabelWidth() const;
  void FillShapePage(QGridLayout& page);
  void FillFlaresPage(QGridLayout& page);
  void FillCometsPage(QGridLayout& page);
  void AddRows(QGridLayout& page, StarfoldPage which);
  void AddRowLine(QGridLayout& page, const std::vector<const StarfoldRow*>& rows,
                  const std::vector<QWidget*>& alsoInLine);
  NumberBox* MakeBox(const QString& array, const StarfoldRow& row);
  void AddPixHue(QGridLayout& page);
  void GuideLists();
  void NameBoxes(const Line& line, int style);

  void LoadBoxes();
  enum class Numbers { Clamped, AsTyped };
  void StoreBoxes(StarfoldProfile& profile, Numbers numbers) const;
  void ChangeStyle(int style);
  void ChooseTheme(int position);
  void SurpriseMe();
  void StartFromSample();
  void Revert();
  void ShowSamples();
  int Style() const { return page_.Starfold_FoldStyle; }

  PropsModel model_;
  std::function<std::uint64_t()> seed_;
  StarfoldProfile page_;
  StarfoldProfile opened_;  // the profile when its page was opened
  bool loading_ = false;    // the controls are being set from the copy

  std::map<const StarfoldRow*, NumberBox*> boxes_;  // txtStarfold and txtPixHue
  std::vector<Line> lines_;
  QComboBox* cboFoldTheme_ = nullptr;
  ListChoice* themeChoice_ = nullptr;
  QComboBox* cboFoldExtras_ = nullptr;
  QComboBox* cboFoldStyle_ = nullptr;
  QComboBox* cboFoldPlane_ = nullptr;
  QComboBox* cboFoldColor_ = nullptr;
  QComboBox* cboFoldProfile_ = nullptr;
  QComboBox* cboPulsarShape_ = nullptr;
  QCheckBox* chkCP_Closed_ = nullptr;
  QCheckBox* chkCP_AdvHW_ = nullptr;
  QPushButton* cmdFoldLevels_ = nullptr;
  QPushButton* cmdIFS_Chem_ = nullptr;
  QLabel* lblFoldProfile_ = nullptr;
  QLabel* lblFoldColor_ = nullptr;
  QLabel* picFoldProfile_ = nullptr;
  QLabel* picPixHue_ = nullptr;
  QLabel* picCometHue_ = nullptr;
  QStackedWidget* pages_ = nullptr;
};

}  // namespace starfolds
