// How a routine says that something went wrong.
#pragma once

#include <optional>
#include <string>

namespace starfolds {

/// A message for the user, without a full stop; nullopt: success.
using Fault = std::optional<std::string>;

}  // namespace starfolds
