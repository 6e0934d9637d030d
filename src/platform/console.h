// What the programs say on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace starfolds {

/// Text with a "?" for each control character: arguments and file names come back in messages, and
/// a terminal shall not obey them.
std::string Harmless(std::string_view text);

/// One line on the standard error, "program: message".
void Complain(std::string_view program, std::string_view message);

/// Text on the standard output. False: it could not be written.
bool Print(const std::string& text);

}  // namespace starfolds
