// The screen saver's window.
#pragma once

#include "desktop/message_window.h"
#include "hosting/run_loop.h"
#include "hosting/saver_input.h"

namespace starfolds {

/// Covers a screen and runs the effect until the user comes back.
class FrmSaver : private WindowEvents {
 public:
  /// Of the windows of a saver on several screens only the one that leads has the caption by which
  /// other processes know that a saver runs.
  FrmSaver(ProcessState& process, SeedSource seed, ScreenPlace place = {});
  ~FrmSaver() override;

  /// Shows the window and runs the effect. Returns when the saver is to go; the window goes with
  /// this object.
  void Load();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key, Qt::KeyboardModifiers modifiers) override;
  void Scroll() override;
  void MouseDown() override;
  void DoubleClick() override;
  void MouseMove(int x, int y) override;
  void CloseRequested() override;
  void Resized() override;
  void Destroyed() override;

  void RunInWindow();
  void QueryUnload();

  ProcessState& process_;
  SeedSource seed_;
  ScreenPlace place_;
  bool backG_;  // BackG: a background of the desktop that input does not disturb
  SaverInput input_;
  bool running_ = false;
  bool outgrown_ = false;  // the run ends because the window has another size
  bool leaving_ = false;   // the user may go, or is being asked for the password
  WindowSurface surface_;
  MessageWindow picMessage_;
};

}  // namespace starfolds
