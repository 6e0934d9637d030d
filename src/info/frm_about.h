// The About box: what this is, and a body that runs in it.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/help.h"
#include "widgets/picture_box.h"
#include "widgets/preview_runs.h"
#include "widgets/watchful_pump.h"

namespace starfolds {

/// What the box needs of its surroundings. All of it outlives the box.
struct AboutSurroundings {
  ProcessState& Process;  // the state of the process: its pump and flags
  Help& HelpBook;
  std::string Version;                  // of this build
  std::function<std::uint64_t()> Seed;  // of each body
};

/// Shows the factory's composites one after the other, whatever the user has made of his own. The
/// run lives inside the box's own time: it begins when the box is shown, and closing ends it.
class FrmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit FrmAbout(const AboutSurroundings& surroundings, QWidget* parent = nullptr);
  ~FrmAbout() override;

  /// Every way of closing comes through here. A run that is on ends first.
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QWidget* MakeAboutPage();
  QLayout* MakeButtons();
  void Run();
  void ShowCredits();

  AboutSurroundings around_;
  std::unique_ptr<ProcessState> running_;
  WatchfulPump events_;
  MemoryTree noTree_;
  PreviewSwitch run_;
  QTimer begin_;
  PictureBox* picAbout_ = nullptr;
  QLabel* lblBody_ = nullptr;
};

}  // namespace starfolds
