// `frmSystemDiag`: the four conditions that the saver depends on.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "info/report.h"
#include "platform/message_boxes.h"
#include "widgets/placed_dialog.h"

namespace starfolds {

/// The arguments of the dialog. All references must outlive it.
struct DiagSurroundings {
  KeyValueTree& Tree;
  DesktopServices& Desktop;
  MessageBoxes& Boxes;
  Help& HelpBook;
  ProgramFacts Facts;
  ProcessorClock ProcessorTime;
};

class FrmSystemDiag : public PlacedDialog {
  Q_OBJECT

 public:
  explicit FrmSystemDiag(const DiagSurroundings& surroundings, QWidget* parent = nullptr);

  /// Fills the fields. Called when the dialog is shown. The circle of the graphics test is drawn
  /// when its box becomes visible.
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
  int fields_ = 0;  // number of txtDiagnostics
  QLineEdit* access_ = nullptr;
  QLineEdit* version_ = nullptr;
  QLineEdit* size_ = nullptr;
  QLineEdit* twipsPerPixel_ = nullptr;
  QLineEdit* colours_ = nullptr;
  QLabel* lblCopied_ = nullptr;
};

}  // namespace starfolds
