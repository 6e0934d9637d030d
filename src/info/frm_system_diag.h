// `frmSystemDiag`: the four conditions that the saver depends on, at a glance.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "widgets/placed_dialog.h"
#include "info/report.h"
#include "platform/message_boxes.h"

namespace starfolds {

/// What the dialog needs of its surroundings. All of it outlives the dialog.
struct DiagSurroundings {
  KeyValueTree& Tree;
  DesktopServices& Desktop;
  MessageBoxes& Boxes;
  Help& HelpBook;
  ProgramFacts Facts;
};

class FrmSystemDiag : public PlacedDialog {
  Q_OBJECT

 public:
  explicit FrmSystemDiag(const DiagSurroundings& surroundings, QWidget* parent = nullptr);

  /// Fills the fields. Runs by itself when the dialog is shown. The circle of the graphics test is
  /// drawn when its box has come to be seen.
  void RunDiagnostics();

  void ShowSystemInfo();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QGroupBox* MakeRegistryFrame();
  QGroupBox* MakeGraphicsFrame();
  QGroupBox* MakeSystemFrame();
  QGroupBox* MakeDisplayFrame();
  QLayout* MakeButtons();
  QLineEdit* MakeField();

  void ShowDisplay();
  void CopyReport();

  DiagSurroundings around_;
  int fields_ = 0;  // of txtDiagnostics
  QLineEdit* access_ = nullptr;
  QLineEdit* version_ = nullptr;
  QLineEdit* size_ = nullptr;
  QLineEdit* twipsPerPixel_ = nullptr;
  QLineEdit* colours_ = nullptr;
  QLabel* lblCopied_ = nullptr;
};

}  // namespace starfolds
