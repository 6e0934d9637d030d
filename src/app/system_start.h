// What a system passes to a program at its start, and what a program must tell it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace starfolds {

/// The arguments after the program's name, in UTF-8.
std::vector<std::string> ProgramArguments(int count, char** arguments);

/// What follows the program's name, as it was written, without the blanks in between. nullopt on
/// systems that only pass arguments that are split already.
std::optional<std::string> RawCommandLine();

/// Called before anything else. Where a program without a console is started from one, lets it
/// print there. Lets no failure of this process open a message box of the system or of the C
/// library, because nobody could answer it while a screen saver runs.
void PrepareProcess();

/// Whether the program was started from a terminal, which shows messages.
bool OnTerminal();

}  // namespace starfolds
