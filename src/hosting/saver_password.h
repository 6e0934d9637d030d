// What Windows 9x requires of a saver. Does nothing on other systems.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Whether the user has set a password for the saver.
bool SaverPasswordInUse(KeyValueTree& tree);

/// Asks for the password if one is in use. False: the saver must not close.
bool VerifySaverPassword(ProcessState& process);

/// Tells the system that a saver with a password runs, so that no key bypasses it.
void SetSaverRunning(ProcessState& process, bool running);

/// Puts a background below all windows and a saver above them.
void StackSaver(ProcessState& process, bool background);

}  // namespace starfolds
