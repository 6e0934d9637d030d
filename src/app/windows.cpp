#include "app/windows.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "desktop/foreign_window.h"
#include "hosting/frm_app_exe.h"
#include "hosting/frm_preview.h"
#include "hosting/frm_saver.h"

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;

}  // namespace

AppWindows::AppWindows(Saver& saver, SeedSource seed) : saver_(saver), seed_(std::move(seed)) {}

bool AppWindows::FileExists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored);
}

/// After a template that could not be loaded the effect would show something else than was asked
/// for.
void AppWindows::ShowFrmSaver() {
  if (exitCode_ == 0) FrmSaver(saver_, seed_).Load();
}

void AppWindows::ShowFrmAppExe() { FrmAppExe(saver_, seed_).Activate(); }

void AppWindows::ShowFrmProps() {
  CannotDo(
      "The settings dialog is not part of this version yet; --saver and --window show the effect.");
}

void AppWindows::LoadFrmPreview() {
  if (!CanOpenForeignWindows()) {
    CannotDo("a preview inside another program's window needs an X server");
    return;
  }
  FrmPreview(saver_, seed_).Load();
}

void AppWindows::ShowInHost(Long hostWindow) {
  saver_.Mode = RunMode::ScreenSaver;
  if (GuestWindow(saver_, seed_, hostWindow).Run(false)) return;
  // A host that goes while its saver starts is nothing out of the ordinary.
  std::fprintf(stderr, "starfolds: there is no window %ld to show anything in\n",
               static_cast<long>(hostWindow));
}

void AppWindows::LoadTemplate(const std::string&) {
  CannotDo("Template files cannot be loaded by this version yet.");
}

void AppWindows::CannotDo(const char* message) {
  std::fprintf(stderr, "starfolds: %s\n", message);
  exitCode_ = kExitCannotDo;
}

}  // namespace starfolds
