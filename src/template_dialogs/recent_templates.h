// The templates that were opened or saved last.
#pragma once

#include <string>
#include <vector>

#include "platform/key_value_tree.h"

namespace starfolds {

/// Their paths, the latest first, at most six. Files that were deleted meanwhile are included.
std::vector<std::string> RecentTemplates(KeyValueTree& tree);

/// Stores a path as the latest. Does nothing if the path is too long to be stored.
void AddRecentTemplate(KeyValueTree& tree, const std::string& path);

}  // namespace starfolds
