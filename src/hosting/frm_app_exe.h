// The application's window.
#pragma once

#include <QSize>
#include <functional>
#include <optional>

#include "desktop/message_window.h"
#include "hosting/hint_line.h"
#include "hosting/run_loop.h"

namespace starfolds {

/// Shows the properties dialog, modal to `owner`, and returns when it is closed. If `help`, it also
/// opens the help at the topic of that window.
using ShowPropertiesDialog = std::function<void(QWindow& owner, bool help)>;

/// The shape of the window that a start asks for. With neither a size nor full screen the window is
/// resizable and has its stored placement if `Adv_WinResize` is on.
struct AppWindowShape {
  bool FullScreen = false;    // overrides `Adv_WinResize`
  std::optional<QSize> Size;  // client area in logical pixels; overrides it too
  bool Framed = false;  // if `Adv_WinResize` is off: a window of the default size, not full screen

  /// Whether the shape applies to this run only, so that no placement is stored.
  bool IsForThisRun() const { return FullScreen || Size; }
};

/// Runs the effect for a user who started the program as an application: full-screen, or in a
/// resizable window. Esc closes it, F5 restarts the run, Ctrl+P pauses, Ctrl+S saves a picture; any
/// other key opens the properties dialog, and F1 the help with it.
class FrmAppExe : private WindowEvents {
 public:
  FrmAppExe(ProcessState& process, SeedSource seed, ShowPropertiesDialog frmProps,
            AppWindowShape shape = {});
  ~FrmAppExe() override;

  /// Shows the window and runs the effect. Returns when the user has closed it; the window is
  /// destroyed with this object.
  void Activate();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key, Qt::KeyboardModifiers modifiers) override;
  void MouseDown() override;
  void CloseRequested() override;
  void Resized() override;
  void Destroyed() override;

  void SavePlacement();
  bool WantsFrame() const;
  void Show();
  void ShowFramed();
  void ShowKeys();
  void AppRun();
  void AppQuit();
  void BeginAnew();
  void ShowProperties(bool help);
  void TogglePause();
  void SavePictureOfUniverse();

  ProcessState& process_;
  SeedSource seed_;
  ShowPropertiesDialog frmProps_;
  AppWindowShape shape_;
  bool started_ = false;  // Started: false when the effect must begin (again)
  bool running_ = false;  // the surface has the size of the current run
  bool paused_ = false;
  bool keysShown_ = false;
  std::optional<bool> framed_;  // how the window is shown; nullopt before that
  WindowSurface surface_;
  MessageWindow picMessage_;
  HintLine hints_;
};

}  // namespace starfolds
