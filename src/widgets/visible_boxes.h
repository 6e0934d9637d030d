// Check boxes that can be seen in a dark colour scheme.
#pragma once

#include <QApplication>

namespace starfolds {

/// Qt's own style, Fusion, outlines check boxes and radio buttons darker than the window, which
/// hides unchecked ones in a dark window. Afterwards their outlines have a contrast of more than
/// 3 : 1. Other styles are left as they are.
void ShowUncheckedBoxes(QApplication& application);

}  // namespace starfolds
