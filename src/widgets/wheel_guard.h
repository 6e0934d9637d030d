// A turn of the wheel that only wants to pass.
#pragma once

#include <QWidget>

namespace starfolds {

/// Lets the wheel change a list of `window` only while it has the focus: whoever turns it with the
/// pointer over a list of themes would else lose what he has set. Knows the lists that are there.
void LetWheelPass(QWidget& window);

}  // namespace starfolds
