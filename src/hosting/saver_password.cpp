#include "hosting/saver_password.h"

#include "numbers/text.h"

namespace starfolds {
namespace {

constexpr Long kRightPassword = 1;

bool IsWindows9x(Saver& saver) { return saver.Platform->GetPlatformId() == kWindows9x; }

}  // namespace

bool SaverPasswordInUse(KeyValueTree& tree) {
  const auto value =
      tree.Read(Hive::CurrentUser, "Control Panel\\Desktop", "ScreenSaveUsePassword");
  return LenientNumber(value.value_or("")) != 0;
}

/// Without the system's dialog nobody could ever leave, so the saver closes.
bool VerifySaverPassword(Saver& saver) {
  if (!IsWindows9x(saver) || !SaverPasswordInUse(*saver.Tree)) return true;
  return saver.Platform->VerifyScreenSavePwd().value_or(kRightPassword) == kRightPassword;
}

void SetSaverRunning(Saver& saver, bool running) {
  if (IsWindows9x(saver) && SaverPasswordInUse(*saver.Tree)) {
    saver.Platform->SetScreenSaverRunning(running);
  }
}

void StackSaver(Saver& saver, bool background) {
  if (IsWindows9x(saver)) saver.Platform->StackWindow(background ? kStackAtBottom : kStackTopMost);
}

}  // namespace starfolds
