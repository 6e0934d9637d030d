// The tree in which earlier versions kept their settings.
#pragma once

#include <memory>

#include "platform/key_value_tree.h"

namespace starfolds {

/// The registry of Windows, which can only be read; null on other systems. Values of other types
/// than text, texts of more than 4,095 UTF-16 units, and texts that are not UTF-16 count as
/// missing.
///
/// Earlier versions were 32-bit programs. Their values in the machine's hive are searched for where
/// the system has put them: among those of 32-bit programs or, for users who may not write there,
/// in the user's copy of that hive.
std::unique_ptr<KeyValueTree> EarlierTree();

}  // namespace starfolds
