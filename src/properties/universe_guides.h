// Names and explanations of the controls of the universe view.
#pragma once

#include <QWidget>

#include "platform/help.h"

namespace starfolds {

/// Gives the controls of the view that edit a setting their guide, and those whose label is not
/// unique, or that have none, a name for screen readers. `help` must outlive the view.
void GuideUniverse(QWidget& view, Help& help);

}  // namespace starfolds
