// The application's window.
#pragma once

#include <functional>
#include <optional>

#include "desktop/message_window.h"
#include "hosting/run_loop.h"

namespace starfolds {

/// Shows the properties dialog over a window that it blocks, and returns when it is closed.
using ShowPropertiesDialog = std::function<void(QWindow& owner)>;

/// Runs the effect for somebody who started the program as an application: full-screen, or in a
/// window that can be resized. Esc leaves, F5 begins anew, anything else asks for the properties
/// dialog.
class FrmAppExe : private WindowEvents {
 public:
  FrmAppExe(Saver& saver, SeedSource seed, ShowPropertiesDialog frmProps);
  ~FrmAppExe() override;

  /// Shows the window and runs the effect. Returns when the user has left; the window goes with
  /// this object.
  void Activate();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key, Qt::KeyboardModifiers modifiers) override;
  void MouseDown() override;
  void CloseRequested() override;
  void Destroyed() override;

  void SavePlacement();
  void Show();
  void AppRun();
  void AppQuit();
  void BeginAnew();
  void ShowProperties();

  Saver& saver_;
  SeedSource seed_;
  ShowPropertiesDialog frmProps_;
  bool started_ = false;           // Started: false when the effect is to begin (again)
  std::optional<bool> resizable_;  // how the window is shown; nothing before it is
  WindowSurface surface_;
  MessageWindow picMessage_;
};

}  // namespace starfolds
