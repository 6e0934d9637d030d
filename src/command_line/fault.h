// How a function reports an error.
#pragma once

#include <optional>
#include <string>

namespace starfolds {

/// A message for the user, without a full stop; nullopt: success.
using Fault = std::optional<std::string>;

}  // namespace starfolds
