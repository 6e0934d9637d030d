#include "settings/surprise.h"

#include <array>
#include <cmath>
#include <initializer_list>

#include "numbers/conversions.h"

namespace starfolds {
namespace {

using P = StarfoldProfile;

/// Draws of numbers that a person could have typed.
class Dice {
 public:
  explicit Dice(Rnd& random) : random_(random) {}

  bool Chance(double share) { return random_() < share; }

  /// A multiple of `step` from `low` to `high`.
  Integer Whole(int low, int high, int step = 1) {
    const int choices = (high - low) / step + 1;
    return static_cast<Integer>(low +
                                static_cast<int>(random_() * static_cast<Single>(choices)) * step);
  }

  /// With two decimals.
  Single Real(double low, double high) {
    return static_cast<Single>(std::round((low + random_() * (high - low)) * 100) / 100);
  }

  Integer OneOf(std::initializer_list<Integer> values) {
    return values.begin()[Whole(0, static_cast<int>(values.size()) - 1)];
  }

 private:
  Rnd& random_;
};

/// The camera stands at some multiple of the body's extent.
void Place(P& body, double extent, double nearest, double farthest, Dice& dice) {
  const double distance = extent * dice.Real(nearest, farthest);
  body.Starfold_Distance = RoundedToLimits<Long>(std::round(distance / 10) * 10);
}

void ColourStars(P& body, Dice& dice) {
  body.Starfold_HueStart = dice.Whole(0, 350, 10);
  body.Starfold_HWheelInc = dice.Chance(0.5) ? 0 : dice.Real(0.02, 0.3);
  body.Starfold_ColorMult = dice.Whole(300, 3500, 100);
  body.Starfold_ColorComp = dice.OneOf({1, 2, 2, 3, 3});
  body.Starfold_HueRed = body.Starfold_HueGrn = body.Starfold_HueBlu = 100;
  body.Starfold_HueBase = dice.OneOf({0, 0, 10, 25});
  body.Starfold_HueBlend = dice.OneOf({60, 60, 30, 12});
}

void AddFlares(P& body, Dice& dice) {
  body.Starfold_NewFreq = dice.Whole(300, 2000, 100);
  body.Starfold_NewFrames = dice.Whole(3, 12);
  body.Starfold_NewExtMult = dice.Whole(40, 200, 10);
  body.Starfold_NovaFreq = dice.Chance(0.5) ? dice.Whole(50, 300, 50) : Integer{0};
  body.Starfold_NovaFrames = dice.Whole(20, 40);
  body.Starfold_NovaExtMult = dice.Whole(500, 2500, 100);
  body.Starfold_PulsarFreq = dice.Chance(0.3) ? dice.Whole(20, 120, 20) : Integer{0};
  body.Starfold_PulsarShape = dice.Whole(0, 4);
  body.Starfold_PulsarDepth = 100;
  body.Starfold_PulsarCycles = dice.Whole(1, 3);
  body.Starfold_PulsarFrames = dice.Whole(24, 60);
  body.Starfold_PulsarMinExt = dice.Whole(50, 300, 10);
  body.Starfold_PulsarMaxExt = dice.Whole(800, 4000, 100);
}

void AddComets(P& body, Dice& dice) {
  body.Starfold_CometFreq = dice.Chance(0.6) ? dice.Whole(100, 600, 50) : Integer{0};
  body.Starfold_CometStars = dice.Whole(40, 100, 10);
  body.Starfold_CometOrbit = dice.Whole(50, 400, 10);
  body.Starfold_CometSpeed = dice.Whole(30, 250, 10);
  body.Starfold_CometSWind = dice.Whole(50, 1000, 50);
  body.Starfold_CometCPersist = 0.997F;
  body.Starfold_CometSPersist = 0.95F;
  body.Starfold_HWC_Start = dice.Whole(0, 350, 10);
  body.Starfold_HWC_End = dice.Whole(0, 350, 10);
  body.Starfold_HWC_Inc = 0;
}

/// Arms and bands, with gaps between them if there is more than one.
void Cut(P& body, double armed, double banded, Dice& dice) {
  const bool hasArms = dice.Chance(armed);
  body.Starfold_RadSegs = hasArms ? dice.Whole(2, 12) : Integer{1};
  body.Starfold_RadFill = hasArms ? dice.Whole(10, 50, 5) : 100;
  const bool hasBands = dice.Chance(banded);
  body.Starfold_RadBands = hasBands ? dice.Whole(2, 7) : Integer{1};
  body.Starfold_RadBFill = hasBands ? dice.Whole(15, 60, 5) : 100;
}

void AddLevels(P& body, Dice& dice) {
  body.Starfold_StdLevels = dice.OneOf({1, 1, 1, 2, 3, 4});
  body.Starfold_StdLevDRad = RoundedToLimits<Long>(body.Starfold_Radius * dice.Real(0.4, 1));
  body.Starfold_StdLevHSca = dice.Real(0.3, 1.5);
  body.Starfold_StdLevB_HS = dice.Whole(0, 1);
  body.Starfold_StdLevB_A0 = dice.Whole(0, 1);
  body.Starfold_StdLevB_A1 = dice.Whole(0, 1);
}

void MakeStandard(P& body, Dice& dice) {
  Cut(body, 0.6, 0.3, dice);
  AddLevels(body, dice);
  body.Starfold_GHW_Ratio = dice.Real(0.1, 1.2);
  body.Starfold_RadiusExp = dice.Real(0.4, 1.6);
  body.Starfold_HeightExp = dice.Real(0.02, 2);
  const double outer =
      body.Starfold_Radius + (body.Starfold_StdLevels - 1.0) * body.Starfold_StdLevDRad;
  Place(body, outer, 1.3, 2, dice);
}

void MakeIfsPoint(P& body, Dice& dice) {
  body.Starfold_Profile = dice.Whole(0, 3);  // the open shapes leave little of it
  body.Starfold_RadSegs = dice.Whole(10, 70);
  body.Starfold_RadFill = dice.Whole(97, 99);
  body.Starfold_RadBands = dice.OneOf({0, 3, 5, 61, 72, 91, 119, 120, 121, 181, 355, 357});
  body.Starfold_GHW_Ratio = dice.Real(0.3, 1);
  body.Starfold_RadiusExp = dice.Real(0, 0.6);
  body.Starfold_HeightExp = dice.Real(0.1, 1.5);
  body.Starfold_ColorComp = dice.OneOf({2, 3});  // all stars turn alike
  Place(body, static_cast<double>(body.Starfold_Radius), 1.1, 1.4, dice);
}

void MakeWireframe(P& body, Dice& dice) {
  body.Starfold_RadSegs = dice.Whole(4, 10);
  body.Starfold_RadFill = dice.Whole(30, 60, 5);
  body.Starfold_RadBands = dice.Whole(1, 3);
  body.Starfold_GHW_Ratio = dice.Real(0.8, 2);
  Place(body, static_cast<double>(body.Starfold_Radius), 1.6, 2.4, dice);
}

void MakeFractal(P& body, Dice& dice) {
  body.Starfold_RadSegs = dice.Whole(4, 10);
  body.Starfold_RadFill = body.Starfold_RadSegs < 6 ? dice.Whole(45, 58) : dice.Whole(52, 68);
  body.Starfold_GHW_Ratio = dice.Real(0.8, 1.6);
  Place(body, static_cast<double>(body.Starfold_Radius), 1.5, 2.2, dice);
}

void MakeNebula(P& body, Dice& dice) {
  body.Starfold_CP_Points = dice.Whole(4, 12);
  body.Starfold_CP_Steps = dice.Whole(150, 500, 50);
  body.Starfold_CP_B_Pts = dice.OneOf({1, 1, 3, 5, 12});
  body.Starfold_CP_B_Exp = body.Starfold_CP_B_Pts == 1 ? Integer{100} : dice.Whole(5, 30, 5);
  body.Starfold_CP_B_Spd = dice.Whole(0, 4);
  body.Starfold_CP_Close = dice.Whole(0, 1);
  body.Starfold_CP_AdvHW = dice.Whole(0, 1);
  body.Starfold_GHW_Ratio = dice.Real(0.5, 1.2);
  body.Starfold_RadiusExp = dice.Real(0.3, 2.5);
  body.Starfold_HeightExp = dice.Real(0, 0.5);
  body.Starfold_NewFreq = dice.Whole(3000, 6000, 500);
  body.Starfold_ColorMult = dice.Whole(200, 1200, 100);
  Place(body, static_cast<double>(body.Starfold_Radius), 1, 1.5, dice);
}

void MakeQuasar(P& body, Dice& dice) {
  Cut(body, 0.7, 0.2, dice);
  body.Starfold_QG_Force = dice.Real(1, 5);
  body.Starfold_GHW_Ratio = dice.Real(0.1, 1.2);
  body.Starfold_RadiusExp = dice.Real(0.1, 3);
  body.Starfold_HeightExp = dice.Real(0.1, 1);
  body.Starfold_NewFreq = dice.Whole(4000, 7000, 500);
  body.Starfold_NewFrames = 0;  // so many new stars would hide the body
  Place(body, static_cast<double>(body.Starfold_Radius), 3, 5, dice);
}

void MakeGraviton(P& body, Dice& dice) {
  body.Starfold_Profile = dice.Whole(0, 3);  // the open shapes leave little of it
  Cut(body, 0.7, 0.2, dice);
  body.Starfold_QG_Force = dice.Real(1, 6);
  body.Starfold_GHW_Ratio = dice.Real(0.05, 1);
  body.Starfold_RadiusExp = dice.Real(0, 0.5);
  body.Starfold_HeightExp = dice.Real(0.1, 1);
  body.Starfold_NewFreq = dice.Whole(2500, 5000, 500);
  body.Starfold_NewFrames = 0;
  Place(body, static_cast<double>(body.Starfold_Radius), 1.5, 2.4, dice);
}

/// The radius of a Starwave is the speed at which it expands.
void MakeStarwave(P& body, Dice& dice) {
  const bool hasSectors = dice.Chance(0.6);
  body.Starfold_RadSegs = hasSectors ? dice.Whole(3, 14) : Integer{1};
  body.Starfold_RadFill = hasSectors ? dice.Whole(10, 40, 5) : 100;
  body.Starfold_Radius = dice.Whole(50, 100, 10);
  body.Starfold_Distance = dice.Whole(180, 300, 10);
  body.Starfold_RadBands = dice.Whole(1, 3);
  body.Starfold_RadBFill = dice.Whole(100, 400, 50);
  body.Starfold_GHW_Ratio = dice.Real(0.3, 1.2);
  body.Starfold_RadiusExp = dice.Real(3, 10);
  body.Starfold_NewFreq = dice.Whole(3000, 5000, 500);
  body.Starfold_NewFrames = 0;
}

/// The first rule makes the large copy.
void MakeUserIfs(P& body, Dice& dice) {
  const Integer count = dice.Whole(3, kMaxIfsPoints);
  body.Starfold_IFS_Points = count;
  body.IFS = {};
  body.IFS.IFS_CenterX = body.IFS.IFS_CenterY = body.IFS.IFS_CenterZ = 1000;
  for (Integer i = 0; i < count; ++i) {
    IfsPoint& point = body.IFS.Points[i];
    point.IFS_LocX = dice.Whole(200, 1800, 100);
    point.IFS_LocY = dice.Whole(200, 1800, 100);
    point.IFS_LocZ = dice.Whole(200, 1800, 100);
    point.IFS_Scale = i == 0 ? dice.Whole(20, 40, 5) : dice.Whole(40, 65, 5);
    point.IFS_Axis = dice.Whole(0, 2);
    point.IFS_Angle = dice.Whole(0, 345, 15);
    point.IFS_RelPct = i == 0 ? Integer{4} : dice.Whole(1, 2);
  }
  Place(body, static_cast<double>(body.Starfold_Radius), 1.2, 1.8, dice);
}

/// Shells around the centre, from the innermost outwards. The elements differ in colour.
void MakeMolecule(P& body, Dice& dice) {
  const Integer count = dice.Whole(2, 5);
  body.Starfold_Atoms = count;
  body.Atom = {};
  Integer radius = dice.Whole(50, 150, 10);
  for (Integer i = 0; i < count; ++i) {
    AtomPoint& atom = body.Atom.Atoms[i];
    atom.Atom_Element = dice.OneOf({1, 2, 6, 7, 8, 9, 10, 11, 16, 17});
    atom.Atom_Structure = dice.Whole(1, 5);
    atom.Atom_Size = dice.Whole(10, 60, 5);
    atom.Atom_Radius = radius;
    radius = static_cast<Integer>(radius + dice.Whole(60, 250, 10));
  }
  body.Starfold_Radius = dice.Whole(800, 1500, 50);
  Place(body, static_cast<double>(body.Starfold_Radius) * radius / 1000, 1.3, 2, dice);
}

using Make = void (*)(P& body, Dice& dice);
constexpr std::array<Make, kStyleCount> kMakers = {
    MakeStandard, MakeIfsPoint, MakeWireframe, MakeFractal, MakeNebula,
    MakeQuasar,   MakeGraviton, MakeStarwave,  MakeUserIfs, MakeMolecule};

}  // namespace

StarfoldProfile SurprisingBody(const StarfoldProfile& like, Rnd& random) {
  Dice dice(random);
  StarfoldProfile body;
  body.UniFoldName = like.UniFoldName;
  body.UniFoldPct = like.UniFoldPct;
  body.Starfold_FoldStyle = ClampTo<Integer>(like.Starfold_FoldStyle, 0, kStyleCount - 1);
  body.Starfold_Radius = dice.Whole(150, 500, 10);
  body.Starfold_Rotation = dice.Whole(3, 30) * 100;
  body.Starfold_AxisPlane = dice.Chance(0.25) ? 1 : 0;
  body.Starfold_AngleTilt = dice.Whole(110, 160, 5);
  body.Starfold_AngleTInc = dice.Chance(0.5) ? 0 : dice.Real(0.05, 0.3);
  body.Starfold_Profile = dice.Whole(0, 6);
  ColourStars(body, dice);
  AddFlares(body, dice);
  AddComets(body, dice);
  kMakers[static_cast<std::size_t>(body.Starfold_FoldStyle)](body, dice);
  return body;
}

}  // namespace starfolds
