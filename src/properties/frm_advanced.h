// `frmAdvanced`: how the effect is displayed, and the user's message over it.
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

/// Reads the stored settings when it is made and stores them at "OK", whatever becomes of the
/// dialog behind it.
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
  /// What would be stored, as a run reads it.
  AdvancedSettings Settings() const;

  KeyValueTree& tree_;
  std::map<const Field<AdvancedSettings>*, QWidget*> controls_;
  QLabel* picHueStart_ = nullptr;
  QLabel* picMessage_ = nullptr;  // the message as it will look
};

}  // namespace starfolds
