// What a saver owes to Windows 9x. Everywhere else nothing of this does anything.
#pragma once

#include "colour/saver.h"

namespace starfolds {

/// Whether the user has given the saver a password.
bool SaverPasswordInUse(KeyValueTree& tree);

/// Whether the saver may close: not if a password is in use and the user does not know it.
bool VerifySaverPassword(Saver& saver);

/// Tells the system that a saver with a password runs, so that no key leads around it.
void SetSaverRunning(Saver& saver, bool running);

/// A background lies below all windows, a saver above them.
void StackSaver(Saver& saver, bool background);

}  // namespace starfolds
