// Properties of the three standard streams.
#pragma once

namespace starfolds {

/// Whether standard error is a terminal.
bool ErrorIsTerminal();

/// Switches off the translation of line ends on standard output.
void MakeOutputBinary();

}  // namespace starfolds
