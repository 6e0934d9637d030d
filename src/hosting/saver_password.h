// What a saver owes to Windows 9x. Everywhere else nothing of this does anything.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Whether the user has given the saver a password.
bool SaverPasswordInUse(KeyValueTree& tree);

/// Whether the saver may close: not if a password is in use and the user does not know it.
bool VerifySaverPassword(ProcessState& process);

/// Tells the system that a saver with a password runs, so that no key leads around it.
void SetSaverRunning(ProcessState& process, bool running);

/// A background lies below all windows, a saver above them.
void StackSaver(ProcessState& process, bool background);

}  // namespace starfolds
