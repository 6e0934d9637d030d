// Another program that reads what this one writes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/descriptor.h"

namespace starfolds {

/// A program whose standard input is written by this process. It shares the other standard streams.
/// On Windows `Start` always fails.
///
/// All functions return nullopt on success, else a reason for the user.
class FedProgram {
 public:
  using Fault = std::optional<std::string>;

  FedProgram() = default;
  /// Ends a program that has not been finished, and waits for its end.
  ~FedProgram();
  FedProgram(const FedProgram&) = delete;
  FedProgram& operator=(const FedProgram&) = delete;

  /// Starts a program once, which is searched for in PATH unless its name has a slash. `variables`,
  /// such as "NAME=value", are added to its environment.
  Fault Start(const std::vector<std::string>& command,
              const std::vector<std::string>& variables = {});
  bool IsRunning() const { return process_ > 0; }

  /// Waits until the program has read enough. Fails if it has closed its input; SIGPIPE is not
  /// raised.
  Fault Write(std::string_view bytes);

  /// Closes the program's input and waits for its end. Fails if it ended with a code other than 0
  /// or by a signal.
  Fault Finish();

 private:
#ifndef _WIN32
  int AwaitEnd();

  Descriptor input_;
#endif
  long process_ = 0;
};

}  // namespace starfolds
