#include "desktop/pixel_scale.h"

#include <algorithm>
#include <cmath>

namespace starfolds {

void AxisScale::Measure(int logicalSize, double factor, int physicalSize, int origin) {
  begins_.resize(static_cast<std::size_t>(logicalSize) + 1);
  for (int i = 0; i <= logicalSize; ++i) {
    // The first physical pixel with its centre at or after the logical border: p + 0.5 >= i * f.
    const int begin = static_cast<int>(std::ceil((origin + i) * factor - 0.5));
    begins_[static_cast<std::size_t>(i)] = std::clamp(begin, 0, physicalSize);
  }
  oneToOne_ = factor == 1 && origin == 0 && logicalSize <= physicalSize;
}

}  // namespace starfolds
