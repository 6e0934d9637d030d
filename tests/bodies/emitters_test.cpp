#include "bodies/emitters.h"

#include "bodies/star_motion.h"
#include "one_body.h"

namespace starfolds {
namespace {

class Graviton : public OneBody {
 protected:
  Graviton() : OneBody(FoldStyle::Graviton) { Set().Starfold_QG_Force = 5; }
};

TEST_F(Graviton, TheExactCentreIsHarmless) {
  SetUpSlots();
  StarState still;
  for (int frame = 0; frame < 3; ++frame) MoveStar(still, Run().Star);
  EXPECT_EQ(Length(still.StarX, still.StarY, still.StarZ), 0);
}

}  // namespace
}  // namespace starfolds
