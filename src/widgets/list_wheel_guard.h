// Ignores wheel events on unfocused lists.
#pragma once

#include <QWidget>

namespace starfolds {

/// Ignores wheel events on the lists of `window` without the focus, so that scrolling over a list
/// of themes does not change the settings. Applies to the lists that exist at the call.
void GuardListsFromWheel(QWidget& window);

}  // namespace starfolds
