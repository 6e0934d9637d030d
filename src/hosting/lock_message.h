// The user's message over the effect.
#pragma once

#include "desktop/message_window.h"
#include "settings/records.h"

namespace starfolds {

/// Shows `LockMessage` in its font, size and hue, drifting if `Adv_FontDrift` is on; shows nothing
/// if it is empty. The settings must be within their ranges.
void ShowLockMessage(MessageWindow& picMessage, const AdvancedSettings& advanced);

}  // namespace starfolds
