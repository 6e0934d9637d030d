#include "storage/earlier_tree.h"

namespace starfolds {

std::unique_ptr<KeyValueTree> EarlierTree() { return nullptr; }

}  // namespace starfolds
