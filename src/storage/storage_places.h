// The locations of the stored tree's files.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace starfolds {

/// Absolute paths. A hive with an empty path has no file: it reads as empty and refuses writes.
struct TreeFiles {
  std::string User;
  std::string Machine;
};

/// What the locations depend on.
struct Surroundings {
  std::function<std::optional<std::string>(const char* name)> Environment;
  std::function<std::string()> HomeOfUser;  // called only if the environment names none
};

TreeFiles TreeFilesIn(const Surroundings& surroundings);

/// The files of the user who runs this process.
TreeFiles OwnTreeFiles();

}  // namespace starfolds
