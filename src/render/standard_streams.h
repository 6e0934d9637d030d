// What the three standard streams are on this machine.
#pragma once

namespace starfolds {

/// Whether a person reads the standard error output as it is written.
bool ErrorIsTerminal();

/// Keeps the standard output from translating line ends.
void MakeOutputBinary();

}  // namespace starfolds
