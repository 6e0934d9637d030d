// `frmIdle`: when the idle service starts the saver.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QProcess>
#include <QString>

#include "settings/idle_settings.h"
#include "widgets/number_box.h"
#include "widgets/placed_dialog.h"

namespace starfolds {

/// The path of `starfolds-idle`, beside this program or in the search path; empty if it is not
/// installed.
QString FindIdleProgram();

/// Reads the stored settings when it is created and stores them at "OK", independently of the
/// properties dialog. It asks the service's program what this desktop offers, and lets it run a
/// test, so that the user sees what the service would see.
class FrmIdle : public PlacedDialog {
  Q_OBJECT

 public:
  FrmIdle(KeyValueTree& tree, Help& helpBook, const QString& program, QWidget* parent = nullptr);
  /// Ends a running test.
  ~FrmIdle() override;

 private:
  QWidget* MakeSettingsFrame();
  QWidget* MakeFoundFrame();
  QLayout* MakeButtons();
  NumberBox* MakeBox(Setting<IdleSettings> setting, const char* name);

  void ShowSettings(const IdleSettings& settings);
  IdleSettings Settings() const;
  void Accept();
  void AskWhatIsFound();
  void ShowWhatIsFound();
  void ToggleTest();
  void ShowTestLines();
  void TestEnded();

  KeyValueTree& tree_;
  Help& help_;
  QString program_;
  QCheckBox* chkIdleOn_ = nullptr;
  NumberBox* txtMinutes_ = nullptr;
  NumberBox* txtBattery_ = nullptr;
  QLabel* lblFound_ = nullptr;
  QLabel* lblTest_ = nullptr;  // what happened last
  QPushButton* cmdTest_ = nullptr;
  QProcess status_, test_;
};

}  // namespace starfolds
