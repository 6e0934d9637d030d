// The user's own line of text over the effect.
#pragma once

#include "desktop/message_window.h"
#include "settings/records.h"

namespace starfolds {

/// Shows `LockMessage` in its font, size and hue, drifting if `Adv_FontDrift` is on, or nothing if
/// it is empty. The settings have been held to their limits.
void ShowLockMessage(MessageWindow& picMessage, const AdvancedSettings& advanced);

}  // namespace starfolds
