// What assistive technologies, such as screen readers, are told of a number box.
#pragma once

namespace starfolds {

/// Qt tells nothing of the value and the range of a spin box that is none of its own kinds. Must be
/// called once before the first `NumberBox` is shown; further calls do nothing.
void InstallNumberBoxAccess();

}  // namespace starfolds
