#include "desktop/window_hints.h"

namespace starfolds {

void MarkUnlisted(QWindow&) {}

void MarkAsBackground(QWindow&) {}

}  // namespace starfolds
