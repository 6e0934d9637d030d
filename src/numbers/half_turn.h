// A half turn in 1000 steps, for directions on the sphere without trigonometry per star.
#pragma once

#include <array>

#include "numbers/elementary.h"
#include "numbers/words.h"

namespace starfolds {

/// Entry i (0 to 1000) holds the cosine and the sine of i * pi / 1000.
struct HalfTurnTable {
  std::array<Single, 1001> Cos{};
  std::array<Single, 1001> Sin{};

  HalfTurnTable() {
    for (int i = 0; i <= 1000; ++i) {
      const double angle = i * static_cast<double>(kPi) / 1000;
      Cos[i] = static_cast<Single>(Cosine(angle));
      Sin[i] = static_cast<Single>(Sine(angle));
    }
  }
};

inline const HalfTurnTable kHalfTurn;

}  // namespace starfolds
