// `frmAdvanced`: the settings of the display and of the user's message.
#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "settings/fields.h"
#include "widgets/placed_dialog.h"

namespace starfolds {

/// Reads the stored settings when it is created and stores them at "OK", independently of the
/// properties dialog.
class FrmAdvanced : public PlacedDialog {
  Q_OBJECT

 public:
  FrmAdvanced(KeyValueTree& tree, Help& helpBook, QWidget* parent = nullptr);

 private:
  void MakeControls();
  QGroupBox* MakeOperationFrame();
  QGroupBox* MakeMessageFrame();
  QGroupBox* MakeEnhancementFrame();
  QLayout* MakeButtons();
  void AddSetting(QGridLayout& page, const Setting<AdvancedSettings>& setting,
                  const std::vector<QWidget*>& alsoInLine = {});

  void LoadAdvancedToDialog();
  void SaveAdvancedFromDialog();
  void ShowDefaults();
  void ShowSamples();
  /// The settings in the controls, as a run would read them after "OK".
  AdvancedSettings Settings() const;

  KeyValueTree& tree_;
  std::map<const Field<AdvancedSettings>*, QWidget*> controls_;
  QLabel* picHueStart_ = nullptr;
  QLabel* picMessage_ = nullptr;  // a sample of the message
};

}  // namespace starfolds
