// The screen saver's window.
#pragma once

#include "hosting/run_loop.h"
#include "hosting/saver_input.h"

namespace starfolds {

/// Covers the screen and runs the effect until the user comes back.
class FrmSaver : private WindowEvents {
 public:
  FrmSaver(Saver& saver, SeedSource seed);
  ~FrmSaver() override;

  /// Shows the window and runs the effect. Returns when the saver is to go; the window goes with
  /// this object.
  void Load();

  QWindow& Window() { return surface_.Window(); }

 private:
  void KeyDown(int key) override;
  void MouseDown() override;
  void DoubleClick() override;
  void MouseMove(int x, int y) override;
  void CloseRequested() override;
  void Destroyed() override;
  void QueryUnload();

  Saver& saver_;
  SeedSource seed_;
  bool backG_;  // BackG: a background of the desktop that input does not disturb
  SaverInput input_;
  WindowSurface surface_;
};

}  // namespace starfolds
