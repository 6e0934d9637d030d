#include <unistd.h>

#include "app/system_start.h"

namespace starfolds {

std::vector<std::string> ProgramArguments(int count, char** arguments) {
  return {arguments + (count > 0 ? 1 : 0), arguments + count};
}

std::optional<std::string> RawCommandLine() { return std::nullopt; }

void PrepareProcess() {}

bool OnTerminal() {
  return isatty(STDIN_FILENO) != 0 || isatty(STDOUT_FILENO) != 0 || isatty(STDERR_FILENO) != 0;
}

}  // namespace starfolds
