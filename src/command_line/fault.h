// How a function reports an error.
#pragma once

#include <optional>
#include <string>

#include "platform/user_text.h"

namespace starfolds {

/// A message for the user, without a full stop; nullopt: success.
using Fault = std::optional<std::string>;

/// The same as a text that can be shown in the user's language.
using TextFault = std::optional<UserText>;

}  // namespace starfolds
