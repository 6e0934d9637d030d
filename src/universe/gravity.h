// Gravity between starfolds.
#pragma once

#include "bodies/run_arrays.h"

namespace starfolds {

/// One frame: moves every starfold by its velocity, and, if `evaluate`, adds to it the pull of all
/// others first. Unit masses, and a force of `force` / distance. The bodies are moved in place and
/// in index order, later ones seeing earlier ones where they went: universes depend on that order.
void StepGravity(StarfoldArrays& folds, Single force, bool evaluate);

}  // namespace starfolds
