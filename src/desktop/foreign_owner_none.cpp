#include "desktop/foreign_owner.h"

namespace starfolds {

ForeignOwner::ForeignOwner(Long, const std::function<void()>&) {}
ForeignOwner::~ForeignOwner() = default;

}  // namespace starfolds
