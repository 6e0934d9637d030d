// Output of the programs on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace starfolds {

/// The text with "?" for each byte of a control character (C0, DEL and C1). Prevents
/// escape-sequence injection by arguments and file names that are repeated in messages.
std::string Harmless(std::string_view text);

/// Writes one line to standard error: "program: message", both made harmless.
void Complain(std::string_view program, std::string_view message);

/// Writes text to standard output. False if it could not be written.
bool Print(const std::string& text);

}  // namespace starfolds
