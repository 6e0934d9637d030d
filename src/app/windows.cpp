#include "app/windows.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "app/saver_screens.h"
#include "hosting/frm_app_exe.h"
#include "hosting/frm_saver.h"

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;

}  // namespace

AppWindows::AppWindows(Saver& saver, const StartOptions& options)
    : saver_(saver),
      options_(options),
      seed_([options] { return options.Seed ? *options.Seed : ClockSeed(); }) {}

bool AppWindows::FileExists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored);
}

/// After a template that could not be loaded the effect would show something else than was asked
/// for.
void AppWindows::ShowFrmSaver() {
  if (exitCode_ != 0) return;
  const auto place = PlaceOfSaver(options_);
  if (!place)
    return CannotDo("There is no screen " + std::to_string(options_.Screen.value_or(1)) + ".");
  const OtherScreens others(options_, [this] { saver_.QuitApp = saver_.StopRun = true; });
  FrmSaver(saver_, seed_, *place).Load();
}

void AppWindows::ShowFrmAppExe() {
  FrmAppExe(saver_, seed_, [this] { ShowFrmPropsModally(); }).Activate();
}

void AppWindows::ShowFrmProps() {
  CannotDo(
      "The settings dialog is not part of this version yet; --saver and --window show the effect.");
}

void AppWindows::ShowFrmPropsModally() {
  if (toldOfProps_) return;
  toldOfProps_ = true;
  std::fputs("starfolds: The settings dialog is not part of this version yet.\n", stderr);
}

void AppWindows::LoadFrmPreview() { CannotDo("The preview is not part of this version yet."); }

void AppWindows::LoadTemplate(const std::string&) {
  CannotDo("Template files cannot be loaded by this version yet.");
}

void AppWindows::CannotDo(const std::string& message) {
  std::fprintf(stderr, "starfolds: %s\n", message.c_str());
  exitCode_ = kExitCannotDo;
}

}  // namespace starfolds
