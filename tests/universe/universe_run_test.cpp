#include "universe/universe_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "numbers/text.h"
#include "scenes/scenes.h"

namespace starfolds {
namespace {

using scenes::Stage;

/// A universe of few stars and short phases: 10 + visits * 3 * 4 + 2 * 4 frames.
void MakeSmall(UniverseSettings& universe) {
  universe.Universe_Stars = 60;
  universe.Universe_Starfold = 8;
  universe.Universe_Recycle = 3;
  universe.Universe_ESteps = 10;
  universe.Universe_GSteps = 4;
  universe.Universe_GPCtrl = 2;
  universe.Universe_GCCtrl = 1;
  universe.Universe_AmStar = 10;
}

void RunFrames(Stage& stage, int frames) {
  stage.StopAfter(frames);
  stage.Read();
  UniverseRun(*stage.Process);
}

/// All styles, flares and comets in play.
void MakeColourful(SettingsRecords& settings) {
  for (int p = 0; p < kProfileCount; ++p) {
    StarfoldProfile& profile = settings.Profiles[p];
    profile.UniFoldPct = 1;
    profile.Starfold_FoldStyle = static_cast<Integer>(p % kStyleCount);
    profile.Starfold_Profile = static_cast<Integer>(p % 7);
    profile.Starfold_PulsarShape = static_cast<Integer>(p % 5);
    profile.Starfold_AxisPlane = static_cast<Integer>(p % 2);
    profile.Starfold_AngleTInc = static_cast<Single>(p % 3);
    profile.Starfold_StdLevels = static_cast<Integer>(1 + p % 4);
    profile.Starfold_PulsarFreq = 1500;
    profile.Starfold_CometFreq = 2000;
    profile.Starfold_NewFreq = 2500;
    profile.Starfold_HWC_Inc = 0.4F;
    profile.Starfold_Atoms = 4;
    for (int k = 0; k < 4; ++k) {
      profile.Atom.Atoms[k] = {static_cast<Integer>(1 + p % 17),
                               4,
                               3,
                               2,
                               static_cast<Integer>((p / 10 + 3 * k) % 12),
                               40,
                               500,
                               1};
    }
  }
  CompositeProfile& composite = settings.Composites[0];
  composite.CompFoldPct = 20;
  composite.CompFold_Count = 3;
  composite.CompFold_Type = {4, 10, 29};
  settings.Composites[1].CompFoldPct = 5;  // one without a member
}

TEST(SmallPreview, TakesFewerStars) {
  Stage stage;
  stage.Settings().Universe.Universe_Stars = 30;
  stage.Settings().Universe.Universe_AmStar = 25;
  stage.Read(true);
  EXPECT_EQ(stage.Process->Universe.Universe_Stars, 20) << "19.5 rounds to even";
  EXPECT_EQ(stage.Process->Universe.Universe_AmStar, 12);
}

/// The picture of a run is a promise: the same seed gives the same pixels, in every build. If a
/// change is meant to alter pictures, these numbers change with it, and the change log says so.
TEST(Determinism, ThePinnedPicturesStand) {
  Stage plain(320, 200);
  RunFrames(plain, 700);
  EXPECT_EQ(plain.Canvas.Hash(), 2331413076646788581U);

  Stage colourful(320, 200, 77);
  MakeColourful(colourful.Settings());
  colourful.Settings().Universe.Universe_STrail = 3;
  colourful.Settings().Advanced.Adv_Randomize = true;
  RunFrames(colourful, 900);
  EXPECT_EQ(colourful.Canvas.Hash(), 6117863179652412281U);
}

/// Short runs through creation, tour and pull-out and into the universe after it, with one setting
/// each that the pictures above do not show. Every frame is part of the hash.
TEST(Determinism, SmallUniversesAreAsPinned) {
  struct Case {
    const char* Name;
    void (*Change)(SettingsRecords&);
    std::uint64_t Hash;
  };
  const Case cases[] = {
      {"gravity, evaluated in every second frame",
       [](SettingsRecords& s) {
         s.Universe.Universe_GravForce = 99999;
         s.Universe.Universe_GravFrame = 2;
       },
       6599919459680375301U},
      {"bodies in turn, without steps close to them",
       [](SettingsRecords& s) {
         s.Universe.Universe_GVisit = true;
         s.Universe.Universe_GCCtrl = 0;
         for (const int profile : {2, 5, 49}) s.Profiles[profile].UniFoldPct = 1;
       },
       7101527426763720763U},
      {"comet hues that drift by half a degree a frame",
       [](SettingsRecords& s) {
         s.Universe.Universe_GSteps = 20;
         for (StarfoldProfile& profile : s.Profiles) {
           profile.Starfold_HWC_Inc = 0.5F;
           profile.Starfold_HWC_End = 60;
           profile.Starfold_NovaFreq = 3000;
           profile.Starfold_CometFreq = 9999;
         }
       },
       5483511483916773776U},
      {"a composite of several bodies",
       [](SettingsRecords& s) {
         s.Composites[0].CompFoldPct = 9999;
         s.Composites[0].CompFold_Count = 4;
         s.Composites[0].CompFold_Type = {14, 3, 4, 2};
         for (const Integer body : {2, 3, 4, 14}) {
           s.Profiles[body].Starfold_RadSegs = static_cast<Integer>(4 + body);
           s.Profiles[body].Starfold_Radius = 100 * body;
         }
       },
       6598404112273737445U},
      {"a list of visits",
       [](SettingsRecords& s) { s.Universe.Universe_GS_Idx = " 3  x 66 0 67 1.0 12"; },
       9579622239061947776U},
      {"a list of visits without a tour",
       [](SettingsRecords& s) {
         s.Universe.Universe_GS_Idx = " 3  x 66 0 67 1.0 12";
         s.Universe.Universe_Tour = false;
       },
       1360538768169823102U},
  };
  for (const Case& c : cases) {
    Stage stage(160, 120);
    for (int p = 0; p < kProfileCount; ++p) {
      stage.Settings().Profiles[p].Starfold_FoldStyle = static_cast<Integer>(p % kStyleCount);
    }
    MakeSmall(stage.Settings().Universe);
    c.Change(stage.Settings());
    std::uint64_t hash = 0;
    stage.Canvas.OnFrame = [&] {
      hash = hash * 31 + stage.Canvas.Hash();
      if (++stage.FramesShown == 150) stage.Process->Requests.AskStop();
    };
    stage.Read();
    UniverseRun(*stage.Process);
    EXPECT_EQ(hash, c.Hash) << c.Name;
  }
}

/// Every number of every record at one end of its range, or beyond.
void SetAll(SettingsRecords& settings, double value) {
  const std::string text = NumberText(static_cast<Single>(value));
  const auto set = [&](auto& record, auto fields) {
    for (const auto& field : fields) {
      if (field.Rule != RangeRule::None) SetFieldText(record, field, text);
    }
  };
  set(settings.Universe, UniverseFields());
  for (StarfoldProfile& profile : settings.Profiles) {
    const Integer style = profile.Starfold_FoldStyle;
    set(profile, ProfileFields());
    profile.Starfold_FoldStyle = style;
    profile.UniFoldPct = 1;
    for (IfsPoint& point : profile.IFS.Points) set(point, IfsPointFields());
    for (AtomPoint& atom : profile.Atom.Atoms) set(atom, AtomPointFields());
  }
  for (CompositeProfile& composite : settings.Composites) set(composite, CompositeFields());
}

TEST(Limits, Run) {
  for (const double value : {0.0, -1e30, 1e30}) {
    Stage stage(160, 120);
    MakeSmall(stage.Settings().Universe);
    MakeColourful(stage.Settings());
    SetAll(stage.Settings(), value);
    if (value > 0) stage.Settings().Universe.Universe_ESteps = 20;
    RunFrames(stage, 120);
    EXPECT_EQ(stage.FramesShown, 120) << value;
  }
}

}  // namespace
}  // namespace starfolds
