// The universe view of the properties dialog: the bodies with their weights, and the settings of
// the universe.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "properties/composite_editor.h"
#include "properties/property_copy.h"
#include "settings/dialog_rows.h"
#include "widgets/body_list.h"
#include "widgets/dialog_model.h"
#include "widgets/list_wheel_guard.h"
#include "widgets/name_box.h"
#include "widgets/number_box.h"

namespace starfolds {

class UniverseView : public QWidget {
  Q_OBJECT

 public:
  explicit UniverseView(const PropsModel& model, QWidget* parent = nullptr);

  /// The text of the control of a universe setting: the typed text, "0" or "1" of a check box, or
  /// the position in a list.
  std::string Text(const Field<UniverseSettings>& field) const;
  void SetText(const Field<UniverseSettings>& field, const std::string& text);
  /// Clamps the number of every box to its range, and stores what is typed or looked at but not
  /// chosen yet, as leaving its box does.
  void Settle();
  /// All settings of the universe, clamped as in a run.
  UniverseSettings Settings() const;

  /// Shows the settings in the boxes. The texts are in the order of `UniverseFields`.
  void SetTexts(const std::vector<std::string>& texts);

  BodyList& Bodies() { return *lstUniStarfold_; }
  CompositeEditor& Composites() { return *composites_; }

  void ClearProfileList();
  /// Adds an entry to `lstUniStarfold`. After the last one `BodiesChanged` must be called.
  void AddProfileEntry(std::string_view name, int weight);
  /// Refills the list from the records and keeps the selection.
  void RebuildProfileList();
  /// Updates all controls that list the bodies.
  void BodiesChanged();

  /// Select a position of `cboUniTheme` and `cboUniExtras`.
  void SelectTheme(int position) { cboUniTheme_->setCurrentIndex(position); }
  void SelectPage(int position) { cboUniExtras_->setCurrentIndex(position); }
  int ShownPage() const { return cboUniExtras_->currentIndex(); }
  QComboBox& Pages() { return *cboUniExtras_; }
  /// The name of the page that was edited last.
  QString PageOfEdit() const { return cboUniExtras_->currentText(); }
  QString ThemeName(int position) const { return cboUniTheme_->itemText(position); }
  /// `ApplyThemeRowToPage`.
  void ApplyThemeRowToPage(std::string_view row);

 signals:
  void ThemeChosen(int position);
  /// `cmdFoldProps`: the selected body, or -1.
  void PropsAskedFor(int index);
  void CompositePreviewAskedFor();
  /// `cmdUniSurprise`.
  void SurpriseAskedFor();
  /// Whole records are about to be changed by this view; `what` names the change.
  void AboutToChange(const QString& what);
  /// Records of profiles were changed by this view.
  void ProfilesChanged();
  /// A setting of the universe was edited.
  void Edited();
  /// Something has happened that the user may not see; the text is for the status line.
  void Said(const QString& text);

 private:
  QWidget* MakeStarfoldTypes();
  QWidget* MakePropertyCopy();
  QWidget* MakeUniverseProperties();
  QWidget* MakePages();
  void FillCreationPage(QGridLayout& page);
  void FillTourPage(QGridLayout& page);
  void FillGravityPage(QGridLayout& page);
  void AddRows(QGridLayout& page, UniversePage which);
  QLabel* AddRowLine(QGridLayout& page, const std::vector<const UniverseRow*>& rows);

  void MakeListHead(QGridLayout& page);
  void ShowStills();
  void SelectBody();
  void CommitBody();
  void StoreTyped();
  void StoreNameAndWeight();
  void ShowShares();
  void NoteEdit();
  void ResetWeights();
  void ShowProfileSample();
  void ShowHueSample();
  void EnableTour();
  void AddTourBody(int position);

  NumberBox* Box(Setting<UniverseSettings> setting) const;

  PropsModel model_;
  std::map<const Field<UniverseSettings>*, NumberBox*> boxes_;  // txtUni
  std::map<const Field<UniverseSettings>*, QCheckBox*> checks_;
  std::vector<QWidget*> tourWidgets_;  // what `chkUniTour` enables
  QWidget* rampBox_ = nullptr;         // what `chkRotCamera` enables

  QString shownName_;  // of that body, as its box showed it
  std::string shownWeight_;
  int typedFor_ = -1;             // the body whose name and weight the boxes show
  bool setting_ = false;          // boxes are being set, not edited
  bool sampleIsComplete_ = true;  // of `picUniProfile`
  ListChoice* themeChoice_ = nullptr;

  BodyList* lstUniStarfold_ = nullptr;
  NameBox* txtUniFoldName_ = nullptr;
  NumberBox* txtUniFoldPct_ = nullptr;
  NumberBox* txtResetFoldPct_ = nullptr;
  QComboBox* cboUniTheme_ = nullptr;
  QComboBox* cboUniExtras_ = nullptr;
  QComboBox* cboUniProfile_ = nullptr;
  QComboBox* cboTourStarfolds_ = nullptr;
  QString tourText_;  // of `cboTourStarfolds`, before one of its entries was chosen
  QLabel* picUniProfile_ = nullptr;
  QLabel* picUniHue_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  CompositeEditor* composites_ = nullptr;
  PropertyCopy* propertyCopy_ = nullptr;
};

}  // namespace starfolds
