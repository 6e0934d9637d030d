// What the programs say on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace starfolds {

/// The text with "?" for each byte of a control character (C0, DEL and C1). Prevents arguments and
/// file names that come back in messages from sending escape sequences to the terminal.
std::string Harmless(std::string_view text);

/// One line on the standard error, "program: message".
void Complain(std::string_view program, std::string_view message);

/// Text on the standard output. False: it could not be written.
bool Print(const std::string& text);

}  // namespace starfolds
