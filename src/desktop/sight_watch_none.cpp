#include "desktop/sight_watch.h"

namespace starfolds {

std::unique_ptr<SightWatch> MakeSightWatch(QWindow&) { return nullptr; }

}  // namespace starfolds
