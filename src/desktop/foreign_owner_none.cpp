#include "desktop/foreign_owner.h"

namespace starfolds {

ForeignOwner::ForeignOwner(Long) {}
ForeignOwner::~ForeignOwner() = default;

}  // namespace starfolds
