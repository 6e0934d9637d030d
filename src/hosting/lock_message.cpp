#include "hosting/lock_message.h"

#include "colour/tables.h"

namespace starfolds {

void ShowLockMessage(MessageWindow& picMessage, const AdvancedSettings& advanced) {
  if (advanced.LockMessage.empty()) {
    picMessage.Hide();
    return;
  }
  picMessage.SetDrift(advanced.Adv_FontDrift);
  const Colour ink = HueToRgb(advanced.Adv_FontHueV, 55, 100, 100, 100);
  picMessage.Print(advanced.LockMessage, {advanced.Adv_FontName, advanced.Adv_FontSize, ink});
}

}  // namespace starfolds
