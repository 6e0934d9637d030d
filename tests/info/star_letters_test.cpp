#include "info/star_letters.h"

#include <algorithm>

#include "info/frm_credits.h"
#include "toolkit.h"

namespace starfolds {
namespace {

constexpr int kStars = 480;
constexpr int kLongEnough = 300;  // frames, for all stars to find their places

std::vector<LetterPoint> Block(Long left, Long top, Long side) {
  std::vector<LetterPoint> points;
  for (Long i = 0; i < side * side; ++i) points.push_back({left + i % side, top + i / side});
  return points;
}

int LitWithin(const Surface& surface, Long left, Long top, Long side) {
  const auto points = Block(left, top, side);
  return static_cast<int>(std::count_if(points.begin(), points.end(), [&](const LetterPoint& p) {
    return surface.Pixel(p.X, p.Y) != 0;
  }));
}

TEST(StarLetters, StarsSettleWhereTheyAreToldAndLeaveNothingBehind) {
  MemorySurface surface(320, 200);
  StarLetters letters(surface, kStars, 1);
  letters.Form(Block(20, 20, 20));
  for (int i = 0; i < kLongEnough; ++i) letters.Step();
  EXPECT_EQ(letters.Settled(), 400);
  EXPECT_EQ(LitWithin(surface, 20, 20, 20), 400);

  letters.Form(Block(250, 150, 20));
  for (int i = 0; i < kLongEnough; ++i) letters.Step();
  EXPECT_EQ(LitWithin(surface, 250, 150, 20), 400);
  EXPECT_LT(LitWithin(surface, 20, 20, 20), 20);  // of those that drift or found no place
}

}  // namespace
}  // namespace starfolds
