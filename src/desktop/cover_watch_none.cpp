#include "desktop/cover_watch.h"

namespace starfolds {

std::unique_ptr<CoverWatch> MakeCoverWatch(QWindow&) { return nullptr; }

}  // namespace starfolds
