// Random bodies that are worth looking at.
#pragma once

#include "numbers/rnd.h"
#include "settings/records.h"

namespace starfolds {

/// A random body of the style of `like`, with its name and weight. Its values are from ranges that
/// show something on the screen, which are much smaller than those of the settings.
StarfoldProfile SurprisingBody(const StarfoldProfile& like, Rnd& random);

}  // namespace starfolds
