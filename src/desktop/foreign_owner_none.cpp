#include "desktop/foreign_owner.h"

namespace starfolds {

ForeignOwner::ForeignOwner(Long, std::function<void()>) {}
ForeignOwner::~ForeignOwner() = default;

}  // namespace starfolds
