#include "bodies/comets.h"

#include <algorithm>
#include <complex>
#include <functional>
#include <numbers>

#include "bodies/ribbon.h"
#include "bodies/star_step.h"
#include "one_body.h"

namespace starfolds {
namespace {

constexpr Integer kFarStep = 32000;  // of a run without a tour

using Change = std::function<void(StarfoldProfile&)>;

/// A body of one black star, so that all that is lit are comets. A comet starts in every frame, its
/// nucleus and its stars last, and it sheds 60 of them.
class CometStage : public scenes::BodyStage {
 public:
  explicit CometStage(const Change& change = {})
      : BodyStage(400, 300, 1, 1, [&](SettingsRecords& settings) {
          StarfoldProfile& set = settings.Profiles[0];
          set.Starfold_ColorComp = 4;
          set.Starfold_NewFreq = 0;
          set.Starfold_CometFreq = 10000;
          set.Starfold_CometStars = 60;
          set.Starfold_CometCPersist = 1;
          set.Starfold_CometSPersist = 1;
          if (change) change(set);
        }) {
    // Chances of 0 and 1 lie beyond what the settings allow.
    const StarfoldProfile& asked = Settings().Profiles[0];
    Process->Profiles[0].Starfold_CometCPersist = asked.Starfold_CometCPersist;
    Process->Profiles[0].Starfold_CometSPersist = asked.Starfold_CometSPersist;
    Process->Prepared[0].RunCometChance = static_cast<Single>(asked.Starfold_CometFreq * 1e-4);
    Visit(0);
  }

  CometArrays& Comets() { return Run->Comets; }
  CometHead& Head(std::size_t k) { return Comets().Heads[k]; }
  void Visit(Integer visit) { ResetComets(*Process, Comets(), visit, 0); }
  void StepComets(Integer segment = kFarStep) { CometStep(Frame(), 0, 0, segment); }

  auto LiveStars() {
    return std::count(Comets().CometStarLive.begin(), Comets().CometStarLive.end(), 1);
  }
  auto LiveHeads() {
    return std::count_if(Comets().Heads.begin(), Comets().Heads.end(),
                         [](const CometHead& head) { return head.CometLeft > 0; });
  }
  int StarsOfHeads() {
    int sum = 0;
    for (const CometHead& head : Comets().Heads) sum += head.CometLeft;
    return sum;
  }
  auto LitPixels() const {
    const auto& pixels = Canvas.Pixels();
    return static_cast<long>(pixels.size()) - std::count(pixels.begin(), pixels.end(), 0U);
  }

  /// Launches one comet with no draw left to chance but its stars' directions, and none after it.
  CometHead& LaunchOne() {
    StepComets();
    Process->Prepared[0].RunCometChance = 0;
    const auto head = std::find_if(Comets().Heads.begin(), Comets().Heads.end(),
                                   [](const CometHead& h) { return h.CometLeft > 0; });
    EXPECT_NE(head, Comets().Heads.end());
    return *head;
  }

  std::size_t FirstLiveStar() {
    const auto& live = Comets().CometStarLive;
    return static_cast<std::size_t>(std::find(live.begin(), live.end(), 1) - live.begin());
  }
};

TEST(Comets, TheyStartFromTheThirdStepOfAVisit) {
  for (const Integer segment : {1, 2, 3, 4, 32000}) {
    CometStage stage;
    for (int frame = 0; frame < 10; ++frame) stage.StepComets(segment);
    EXPECT_EQ(stage.LiveHeads() > 0, segment >= 3) << segment;
  }
}

TEST(Comets, ThePoolHoldsAsManyAsTheirStarsFitIn) {
  struct Case {
    Integer StarsPerComet, Comets;
  };
  for (const Case& c : {Case{0, 100}, Case{1, 100}, Case{25, 100}, Case{26, 96}, Case{60, 41},
                        Case{999, 2}, Case{2500, 1}, Case{2501, 0}}) {
    EXPECT_EQ(CometRoom(c.StarsPerComet), c.Comets) << c.StarsPerComet;
  }
}

TEST(Comets, ALaunchTakesOneDrawnSlotByItsChance) {
  CometStage stage([](StarfoldProfile& set) {
    set.Starfold_CometFreq = 2500;
    set.Starfold_CometStars = 250;  // room for ten
  });
  constexpr int frames = 20000;
  int launches = 0;
  std::array<int, 10> slots{};
  for (int frame = 0; frame < frames; ++frame) {
    stage.StepComets();
    for (std::size_t k = 0; k < slots.size(); ++k) {
      slots[k] += stage.Head(k).CometLeft > 0;
      launches += stage.Head(k).CometLeft > 0;
    }
    stage.Visit(0);
  }
  EXPECT_NEAR(launches, frames * 0.25, FiveSigma(frames, 0.25));
  for (const int count : slots) EXPECT_NEAR(count, frames * 0.025, FiveSigma(frames, 0.025));
}

TEST(Comets, ABusySlotWastesTheTry) {
  CometStage stage([](StarfoldProfile& set) { set.Starfold_CometStars = 500; });
  for (int frame = 0; frame < 300; ++frame) {
    const auto before = stage.LiveHeads();
    stage.StepComets();
    ASSERT_LE(stage.LiveHeads(), before + 1);
  }
  EXPECT_EQ(stage.LiveHeads(), 5) << "all five that there is room for";
}

TEST(Comets, EachCometHasSlotsOfItsOwn) {
  CometStage stage;
  for (int frame = 0; frame < 2000; ++frame) stage.StepComets();
  ASSERT_EQ(stage.LiveHeads(), 41);
  EXPECT_EQ(stage.LiveStars(), 41 * 60);
  EXPECT_EQ(stage.StarsOfHeads(), 41 * 60);
  // With no persistence a shedding comet's stars are reborn and a dying one's all end.
  stage.Process->Profiles[0].Starfold_CometSPersist = 0;
  stage.Process->Prepared[0].RunCometChance = 0;
  stage.Head(7).CometLive = false;
  stage.StepComets();
  EXPECT_EQ(stage.Head(7).CometLeft, 0);
  for (std::size_t j = 0; j < kCometStars; ++j) {
    EXPECT_EQ(stage.Comets().CometStarLive[j] != 0, j < 2460 && j / 60 != 7) << j;
  }
}

TEST(Comets, ADyingCometFreesItsSlotWhenItsLastStarEnds) {
  CometStage stage([](StarfoldProfile& set) { set.Starfold_CometStars = 250; });
  CometHead& head = stage.LaunchOne();
  ASSERT_EQ(head.CometLeft, 250);
  stage.Process->Profiles[0].Starfold_CometSPersist = 0.75F;
  stage.Process->Profiles[0].Starfold_CometCPersist = 0;
  stage.StepComets();
  EXPECT_FALSE(head.CometLive) << "the nucleus goes first";
  EXPECT_EQ(head.CometLeft, 250) << "in a frame in which its stars were still reborn";
  stage.StepComets();
  EXPECT_NEAR(head.CometLeft, 250 * 0.75, FiveSigma(250, 0.75));
  int frames = 0;
  for (; head.CometLeft > 0; ++frames) {
    ASSERT_LT(frames, 1000);
    ASSERT_EQ(stage.LiveStars(), head.CometLeft);
    stage.StepComets();
  }
  EXPECT_EQ(stage.LiveStars(), 0);
  stage.Process->Prepared[0].RunCometChance = 1;
  stage.Process->Profiles[0].Starfold_CometCPersist = 1;
  for (frames = 0; frames < 200; ++frames) stage.StepComets();
  EXPECT_GT(head.CometLeft, 0) << "and is taken again";
}

TEST(Comets, TheNucleusLivesByItsPersistence) {
  CometStage stage([](StarfoldProfile& set) {
    set.Starfold_CometStars = 25;
    set.Starfold_CometCPersist = 0.75F;
    set.Starfold_CometFreq = 0;
  });
  constexpr int rounds = 200;
  int alive = 0;
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t k = 0; k < 100; ++k) {
      stage.Head(k).CometLive = true;
      stage.Head(k).CometLeft = 25;
    }
    stage.StepComets();
    for (std::size_t k = 0; k < 100; ++k) alive += stage.Head(k).CometLive;
  }
  EXPECT_NEAR(alive, rounds * 100 * 0.75, FiveSigma(rounds * 100, 0.75));
}

TEST(Comets, LeavingABodySendsAllItsCometsToDying) {
  CometStage stage;
  for (int frame = 0; frame < 50; ++frame) stage.StepComets();
  stage.StepComets(2);
  for (const CometHead& head : stage.Comets().Heads) EXPECT_FALSE(head.CometLive);
  EXPECT_GT(stage.LiveHeads(), 10) << "whose stars live on";
}

TEST(Comets, ANewVisitErasesThem) {
  CometStage stage;
  for (int frame = 0; frame < 50; ++frame) stage.StepComets();
  EXPECT_GT(stage.LitPixels(), 100);
  stage.Process->Profiles[0].Starfold_CometStars = 100;
  stage.Visit(1);
  EXPECT_EQ(stage.LitPixels(), 0);
  EXPECT_EQ(stage.LiveStars(), 0);
  EXPECT_EQ(stage.LiveHeads(), 0);
  EXPECT_EQ(stage.Comets().CometCount, 25) << "by the profile now visited";
}

TEST(Comets, GravityFreezesThem) {
  CometStage stage([](StarfoldProfile& set) { set.Starfold_Rotation = 0; });
  for (int frame = 0; frame < 50; ++frame) stage.Step();
  const auto picture = stage.Canvas.Pixels();
  const auto places = stage.Comets().CometStarX;
  ASSERT_GT(stage.LitPixels(), 100);
  stage.Process->Universe.Universe_GravForce = 0.001F;
  for (int frame = 0; frame < 20; ++frame) stage.Step();
  EXPECT_EQ(stage.Canvas.Pixels(), picture);
  EXPECT_EQ(stage.Comets().CometStarX, places);
  stage.Process->Universe.Universe_GravForce = 0;
  stage.Step();
  EXPECT_NE(stage.Comets().CometStarX, places) << "and thaw";
}

/// Gives the profile what its style needs to show something.
void DressAs(StarfoldProfile& set, FoldStyle style) {
  set.Starfold_FoldStyle = static_cast<Integer>(style);
  set.Starfold_RadSegs = 4;
  set.Starfold_RadFill = 50;
  set.Starfold_Rotation = 2000;
  set.Starfold_Atoms = 1;
  set.Atom.Atoms[0].Atom_Structure = 5;
  set.Atom.Atoms[0].Atom_Radius = 500;
}

TEST(Comets, NothingStaysLitWhenTheyAreGone) {
  for (Integer style = 0; style < kStyleCount; ++style) {
    for (const Integer distance : {100, 400}) {  // inside the body, and before it
      CometStage stage([&](StarfoldProfile& set) {
        DressAs(set, static_cast<FoldStyle>(style));
        set.Starfold_Distance = distance;
        set.Starfold_AngleTInc = 1;
        set.Starfold_CometOrbit = 2000;
        set.Starfold_CometSpeed = 500;
        set.Starfold_CometSPersist = 0.95F;
        set.Starfold_CometCPersist = 0.99F;
      });
      for (int frame = 0; frame < 300; ++frame) {
        stage.Step();
        StepNebulaRibbonsAlike(*stage.Process, stage.Run->Slots, 0);
      }
      EXPECT_GT(stage.LitPixels(), 50) << style;
      const auto alive = stage.LiveHeads();
      EXPECT_GT(alive, 10) << style;
      for (int frame = 0; frame < 2000 && stage.LiveHeads() > 0; ++frame) stage.StepComets(1);
      EXPECT_EQ(stage.LiveStars(), 0) << style;
      EXPECT_EQ(stage.LitPixels(), 0) << style;
    }
  }
}

TEST(Comets, OldStarsFlyOnUnseen) {
  CometStage stage;
  CometHead& head = stage.LaunchOne();
  for (int frame = 0; frame < 70; ++frame) stage.StepComets();
  EXPECT_GT(stage.LitPixels(), 0);
  for (int frame = 0; frame < 15; ++frame) stage.StepComets();
  EXPECT_EQ(stage.LitPixels(), 0);
  EXPECT_EQ(head.CometLeft, 60);
  const auto places = stage.Comets().CometStarX;
  stage.StepComets();
  EXPECT_NE(stage.Comets().CometStarX, places);
}

TEST(Comets, StarsLeaveTheNucleusScatteredAndBlownOutward) {
  struct Case {
    Integer Speed, Wind;
  };
  for (const Case& c : {Case{900, 0}, Case{0, 700}, Case{900, 700}}) {
    CometStage stage([&](StarfoldProfile& set) {
      set.Starfold_CometSpeed = c.Speed;
      set.Starfold_CometSWind = c.Wind;
      set.Starfold_CometSPersist = 0;  // all stars are shed anew in every frame
    });
    stage.LaunchOne();
    const CometArrays& comets = stage.Comets();
    const std::size_t first = stage.FirstLiveStar();
    const double r =
        Length(comets.CometStarX[first], comets.CometStarY[first], comets.CometStarZ[first]);
    ASSERT_GT(r, 0.1);
    for (std::size_t j = first; j < first + 60; ++j) {
      EXPECT_EQ(comets.CometStarX[j], comets.CometStarX[first]) << "together";
      const double wind = c.Wind * 1e-5 / r;
      EXPECT_NEAR(Length(comets.CometStarVX[j] - comets.CometStarX[j] * wind,
                         comets.CometStarVY[j] - comets.CometStarY[j] * wind,
                         comets.CometStarVZ[j] - comets.CometStarZ[j] * wind),
                  c.Speed * 1e-5, 1e-7);
    }
  }
}

TEST(Comets, TheNucleusIsSeenTiltedAsTheBodyIs) {
  for (const bool upright : {false, true}) {
    CometStage stage([&](StarfoldProfile& set) {
      set.Starfold_AngleTilt = 90;
      set.Starfold_AxisPlane = upright;
      set.Starfold_CometSpeed = 0;
      set.Starfold_CometSWind = 0;
      set.Starfold_CometOrbit = 0;
    });
    const CometHead& head = stage.LaunchOne();
    const std::size_t j = stage.FirstLiveStar();
    const CometArrays& comets = stage.Comets();
    // A quarter turn brings the axis along the line of sight.
    EXPECT_NEAR(comets.CometStarZ[j], head.CometY, 1e-5);
    EXPECT_NEAR(comets.CometStarX[j], upright ? head.CometZ : head.CometX, 1e-5);
    EXPECT_NEAR(comets.CometStarY[j], upright ? head.CometX : head.CometZ, 1e-5);
  }
}

TEST(Comets, TheNucleusOrbitsByItsStyle) {
  struct Case {
    FoldStyle Style;
    bool Kepler;  // else rigidly with the body
  };
  for (const Case& c : {Case{FoldStyle::Standard, true}, Case{FoldStyle::Quasar, true},
                        Case{FoldStyle::Graviton, true}, Case{FoldStyle::Starwave, true},
                        Case{FoldStyle::IfsPoint, false}, Case{FoldStyle::IfsWireframe, false},
                        Case{FoldStyle::IfsFractal, false}, Case{FoldStyle::UserIfs, false},
                        Case{FoldStyle::Molecule, false}}) {
    CometStage stage([&](StarfoldProfile& set) {
      DressAs(set, c.Style);
      set.Starfold_CometOrbit = 300;
      // The first vertex lies on the axis: half way from there leads off it.
      set.Starfold_RadBands = 1;
    });
    SCOPED_TRACE(testing::Message() << "style " << static_cast<int>(c.Style));
    CometHead* head = &stage.LaunchOne();
    for (int tries = 0; std::hypot(head->CometX, head->CometZ) < 0.2; ++tries) {
      ASSERT_LT(tries, 100);
      stage.Visit(0);
      stage.Process->Prepared[0].RunCometChance = 1;
      head = &stage.LaunchOne();
    }
    const std::complex<double> before(head->CometX, head->CometZ);
    const Single height = head->CometY;
    stage.StepComets();
    const std::complex<double> after(head->CometX, head->CometZ);
    const double kepler = 2 * std::numbers::pi * 0.003 / std::sqrt(std::abs(before));
    EXPECT_NEAR(std::arg(after / before), c.Kepler ? kepler : 0.002 * 8, 1e-5);
    EXPECT_NEAR(std::abs(after), std::abs(before), 1e-5);
    EXPECT_EQ(head->CometY, height);
  }
}

TEST(Comets, TheNucleusOfANebulaRunsAlongItsRibbon) {
  CometStage stage([](StarfoldProfile& set) {
    DressAs(set, FoldStyle::Nebula);
    set.Starfold_CP_Points = 5;
    set.Starfold_CometOrbit = 9999;
  });
  const CometHead& head = stage.LaunchOne();
  double phase = head.CometPhase;
  for (int frame = 0; frame < 120; ++frame) {  // more than twice round
    StepNebulaRibbonsAlike(*stage.Process, stage.Run->Slots, 0);
    stage.StepComets();
    const Point3 place = RibbonPoint(stage.Run->Slots.Ribbon[0], 5, head.CometPhase);
    EXPECT_LE(Distance(place, {head.CometX, head.CometY, head.CometZ}), 1e-5);
    phase = std::fmod(phase + 0.09999, 5);
    EXPECT_NEAR(head.CometPhase, phase, 1e-3) << frame;
    phase = head.CometPhase;
  }
}

}  // namespace
}  // namespace starfolds
