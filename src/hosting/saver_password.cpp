#include "hosting/saver_password.h"

#include "numbers/text.h"

namespace starfolds {
namespace {

constexpr Long kRightPassword = 1;

bool IsWindows9x(ProcessState& process) { return process.Platform->GetPlatformId() == kWindows9x; }

}  // namespace

bool SaverPasswordInUse(KeyValueTree& tree) {
  const auto value =
      tree.Read(Hive::CurrentUser, "Control Panel\\Desktop", "ScreenSaveUsePassword");
  return LenientNumber(value.value_or("")) != 0;
}

/// Returns true if the system's dialog is missing, because otherwise nobody could close the saver.
bool VerifySaverPassword(ProcessState& process) {
  if (!IsWindows9x(process) || !SaverPasswordInUse(*process.Tree)) return true;
  return process.Platform->VerifyScreenSavePwd().value_or(kRightPassword) == kRightPassword;
}

void SetSaverRunning(ProcessState& process, bool running) {
  if (IsWindows9x(process) && SaverPasswordInUse(*process.Tree)) {
    process.Platform->SetScreenSaverRunning(running);
  }
}

void StackSaver(ProcessState& process, bool background) {
  if (IsWindows9x(process))
    process.Platform->StackWindow(background ? kStackAtBottom : kStackTopMost);
}

}  // namespace starfolds
