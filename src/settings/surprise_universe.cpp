#include "settings/surprise_universe.h"

#include <cmath>
#include <utility>
#include <vector>

namespace starfolds {
namespace {

/// From `low` to `high`, both included.
Integer Whole(Rnd& random, int low, int high) {
  const Single draw = random();
  return static_cast<Integer>(low + static_cast<int>(draw * static_cast<Single>(high - low + 1)));
}

/// Rounded to `digits` decimals, so that the boxes show short numbers.
Single Fraction(Rnd& random, double low, double high, int digits) {
  const Single draw = random();
  const double unit = std::pow(10.0, digits);
  return static_cast<Single>(std::round((low + draw * (high - low)) * unit) / unit);
}

/// Rounded to tens, with as many draws near `low` as near `high` on a scale of ratios.
int Ratio(Rnd& random, double low, double high) {
  const Single draw = random();
  return static_cast<int>(std::round(low * std::pow(high / low, draw) / 10)) * 10;
}

bool Happens(Rnd& random, double chance) { return random() < chance; }

void DrawCreation(Rnd& random, UniverseSettings& universe) {
  universe.Universe_Expand = static_cast<Single>(Ratio(random, 900, 5000));
  universe.Universe_ESteps = Whole(random, 150, 400);
  universe.Universe_Persist = Fraction(random, 0.98, 0.995, 4);
  universe.Universe_Damping = Fraction(random, 0.002, 0.03, 4);
  constexpr int hues = 360;
  universe.Universe_HW_Start = Whole(random, 0, hues - 1);
  const Integer way = Whole(random, 30, 150);
  const bool back = Happens(random, 0.5) && universe.Universe_HW_Start >= way;
  universe.Universe_HW_End = static_cast<Integer>(universe.Universe_HW_Start + (back ? -way : way));
  universe.Universe_Recycle = Whole(random, 8, 32);
  universe.Universe_Profile = Happens(random, 0.5) ? kCycleRandomly : kCycleSequentially;
}

void DrawTour(Rnd& random, UniverseSettings& universe) {
  universe.Universe_Tour = true;
  universe.Universe_GS_Idx.clear();
  universe.Universe_GVisit = Happens(random, 0.3);
  universe.Universe_GSteps = Whole(random, 90, 260);
  universe.Universe_GPCtrl = Whole(random, 1, 3);
  universe.Universe_GCCtrl = Whole(random, 2, 4);
  universe.Universe_DstCen = static_cast<Single>(Ratio(random, 2500, 16000));
}

void DrawAmbient(Rnd& random, UniverseSettings& universe) {
  universe.Universe_NewFreq = static_cast<Integer>(Ratio(random, 500, 1500));
  universe.Universe_NewPctStEx = Whole(random, 50, 90);
  universe.Universe_AmStar = static_cast<Integer>(Whole(random, 10, 40) * 10);
  universe.Universe_AmPers = Fraction(random, 0.995, 0.999, 4);
  universe.Universe_AmCAge = Fraction(random, 0.05, 0.3, 2);
  universe.Universe_AmFrames = Whole(random, 15, 50);
  universe.Universe_AmMaxExt = static_cast<Single>(Ratio(random, 800, 5000));
}

/// Gives `count` of the bodies a weight, and all others 0.
template <std::size_t Size>
void DrawWeights(Rnd& random, std::array<Integer, Size>& weights, std::vector<int> bodies,
                 int count) {
  for (; count > 0 && !bodies.empty(); --count) {
    const Integer chosen = Whole(random, 0, static_cast<int>(bodies.size()) - 1);
    weights[static_cast<std::size_t>(bodies[chosen])] =
        static_cast<Integer>(Whole(random, 1, 6) * 5);
    bodies.erase(bodies.begin() + chosen);
  }
}

}  // namespace

SurprisedUniverse SurpriseUniverse(Rnd& random, const UniverseSettings& former,
                                   const CompositeArray& composites) {
  SurprisedUniverse drawn{.Universe = former};
  UniverseSettings& universe = drawn.Universe;
  universe.Universe_Starfold = static_cast<Integer>(Ratio(random, 20, 150));
  universe.Universe_Stars = static_cast<Integer>(Ratio(random, 4000, 12000));
  universe.Universe_STrail = Happens(random, 0.7) ? Integer{1} : Whole(random, 2, 8);
  DrawCreation(random, universe);
  DrawTour(random, universe);
  DrawAmbient(random, universe);
  // Gravity stops comets, and in a large universe takes much time.
  universe.Universe_GravForce = 0;
  universe.Universe_GravFrame = 1;

  std::vector<int> profiles(kProfileCount);
  for (int i = 0; i < kProfileCount; ++i) profiles[static_cast<std::size_t>(i)] = i;
  const Integer types = Whole(random, 5, 12);
  DrawWeights(random, drawn.ProfileWeights, std::move(profiles), types);
  std::vector<int> built;
  for (int i = 0; i < kCompositeCount; ++i) {
    if (composites[static_cast<std::size_t>(i)].MemberCount() > 0) built.push_back(i);
  }
  const Integer mixed = Whole(random, 0, 2);
  DrawWeights(random, drawn.CompositeWeights, std::move(built), mixed);
  return drawn;
}

}  // namespace starfolds
