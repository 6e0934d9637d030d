// The universe view of the properties dialog: the bodies with their weights, and the settings of
// the universe.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "properties/composite_editor.h"
#include "properties/property_copy.h"
#include "settings/dialog_rows.h"
#include "widgets/body_list.h"
#include "widgets/dialog_model.h"
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
  /// Clamps the number of every box to its range.
  void ClampTextFields();
  /// All settings of the universe, clamped as in a run.
  UniverseSettings Settings() const;

  BodyList& Bodies() { return *lstUniStarfold_; }
  CompositeEditor& Composites() { return *composites_; }

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
  /// `ApplyThemeRowToPage`.
  void ApplyThemeRowToPage(std::string_view row);

 signals:
  void ThemeChosen(int position);
  /// `cmdFoldProps`: the selected body, or -1.
  void PropsAskedFor(int index);
  void CompositePreviewAskedFor();
  /// Records of profiles were changed by this view.
  void ProfilesChanged();

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

  void SelectBody();
  void CommitBody();
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
