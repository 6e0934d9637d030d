// The uniform random number generator; each process state has one.
#pragma once

#include <cstdint>
#include <span>

#include "numbers/words.h"

namespace starfolds {

/// PCG-XSH-RR with 64 bits of state and 32 of output, from M. E. O'Neill, "PCG: A Family of Simple
/// Fast Space-Efficient Statistically Good Algorithms for Random Number Generation", 2014
/// (Harvey Mudd College, HMC-CS-2014-0905). Small, quick, and the same on every machine.
///
/// The order of draws is part of the program's behaviour, so functions store each draw in a named
/// local variable: C++ does not specify the order in which operands are evaluated.
class Rnd {
 public:
  explicit Rnd(std::uint64_t seed = 0) { Seed(seed); }

  void Seed(std::uint64_t seed) {
    state_ = 0;
    Next();
    state_ += seed;
    Next();
  }

  /// One draw, a Single in [0, 1) with 24 random bits.
  Single operator()() {
    if (!script_.empty()) [[unlikely]]
      return TakeScripted();
    return static_cast<Single>(Next() >> 8) * 0x1p-24F;
  }

  /// The next draws return `draws`, in order, before the generator continues. `draws` must live
  /// until they are used up. For tests that need given draws.
  void Script(std::span<const Single> draws) { script_ = draws; }

  std::size_t ScriptedDrawsLeft() const { return script_.size(); }

 private:
  Single TakeScripted() {
    const Single draw = script_.front();
    script_ = script_.subspan(1);
    return draw;
  }

  std::uint32_t Next() {
    const std::uint64_t old = state_;
    state_ = old * 6364136223846793005ULL + 1442695040888963407ULL;
    const auto shifted = static_cast<std::uint32_t>(((old >> 18U) ^ old) >> 27U);
    const auto turn = static_cast<std::uint32_t>(old >> 59U);
    return (shifted >> turn) | (shifted << ((32U - turn) & 31U));
  }

  std::uint64_t state_ = 0;
  std::span<const Single> script_;
};

}  // namespace starfolds
