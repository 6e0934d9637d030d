#include "desktop/window_hints.h"

#include <QWindow>

namespace starfolds {

void MarkUnlisted(QWindow&) {}

void MarkAsBackground(QWindow&) {}

void SetOwner(QWindow& window, QWindow* owner) { window.setTransientParent(owner); }

}  // namespace starfolds
