// The application's window.
#pragma once

#include "hosting/run_loop.h"

namespace starfolds {

/// Runs the effect for somebody who started the program as an application: full-screen, or in a
/// window that can be resized. Esc leaves, F5 begins anew, anything else asks for the properties
/// dialog.
class FrmAppExe : private WindowEvents {
 public:
  FrmAppExe(Saver& saver, SeedSource seed);
  ~FrmAppExe() override;

  /// Shows the window and runs the effect. Returns when the user has left; the window goes with
  /// this object.
  void Activate();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key) override;
  void MouseDown() override;
  void CloseRequested() override;
  void Destroyed() override;

  void Show();
  void AppRun();
  void AppQuit();
  void BeginAnew();
  void ShowProperties();

  Saver& saver_;
  SeedSource seed_;
  bool started_ = false;  // Started: false when the effect is to begin (again)
  bool propertiesAskedFor_ = false;
  WindowSurface surface_;
};

}  // namespace starfolds
