#include "desktop/saver_guard.h"

namespace starfolds {

class SaverGuard::Filter {};

SaverGuard::SaverGuard() = default;
SaverGuard::~SaverGuard() = default;

}  // namespace starfolds
