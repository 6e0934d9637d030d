// The screen saver's window.
#pragma once

#include "desktop/message_window.h"
#include "desktop/saver_guard.h"
#include "hosting/run_loop.h"
#include "hosting/saver_input.h"

namespace starfolds {

/// Covers a screen and runs the effect until input ends it.
class FrmSaver : private WindowEvents {
 public:
  /// Of the windows of a saver on several screens, only that of the first process has the caption
  /// by which other processes find a running saver.
  FrmSaver(ProcessState& process, SeedSource seed, ScreenPlace place = {});
  ~FrmSaver() override;

  /// Shows the window and runs the effect. Returns when the saver must end; the window closes when
  /// this object is destroyed.
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
  bool backG_;  // BackG: a background of the desktop, which input does not end
  SaverInput input_;
  SaverGuard guard_;
  bool running_ = false;
  bool outgrown_ = false;  // the run ends because the window was resized
  bool leaving_ = false;   // input has ended the saver, or the password is being asked for
  WindowSurface surface_;
  MessageWindow picMessage_;
};

}  // namespace starfolds
