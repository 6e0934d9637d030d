// The command line of `starfolds-idle`.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "command_line/fault.h"
#include "command_line/program_guide.h"

namespace starfolds {

enum class IdleRole { Serve, Status, Test, Help, Version };

struct IdleOptions {
  IdleRole AskedFor = IdleRole::Serve;
  std::string Saver;  // path of the program to start; empty: `starfolds` beside this one
};

/// Parses the arguments after the program's name. Returns what is wrong with them.
TextFault ParseIdleOptions(std::span<const std::string_view> arguments, IdleOptions& options);

/// What `--help`, the manual page and shells say about the program.
ProgramGuide IdleGuide();

}  // namespace starfolds
