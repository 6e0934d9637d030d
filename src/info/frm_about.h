// The About box, with a running body.
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

/// The arguments of the box. All references must outlive it.
struct AboutSurroundings {
  ProcessState& Process;  // its pump and flags are used
  Help& HelpBook;
  std::string Version;                  // of this build
  std::function<std::uint64_t()> Seed;  // called for each body
};

/// Shows the factory's composites one after the other, whatever the user's are. The run begins when
/// the box is shown, and closing ends it.
class FrmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit FrmAbout(const AboutSurroundings& surroundings, QWidget* parent = nullptr);
  ~FrmAbout() override;

  /// Called by every way of closing. Ends the run first.
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
