#include "bodies/styles.h"

#include <cmath>

#include "bodies/emitters.h"
#include "bodies/ifs.h"
#include "bodies/molecule.h"
#include "bodies/radial.h"
#include "bodies/ribbon.h"
#include "bodies/star_motion.h"

namespace starfolds {
namespace {

/// For styles that place their stars from the profile alone.
void SetUpNothing(BodySlots&, std::size_t, const Body&) {}
void StepNothing(BodySlots&, std::size_t, const Body&) {}

void SeedStandardStar(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedRadial(point, body, body.Prepared.RunSpin, body.Prepared.SpinPhase);
}

/// Where the stars of a body do not orbit, its comets still do, as in a Standard body.
void SeedOrbitingNucleus(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedRadial(point, body, body.Prepared.RunCometOrbit, body.Prepared.SpinPhase);
}

void SeedRadialBlast(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedRadial(point, body, body.Prepared.RunSpin, 0);
}

void MoveOrbitingNucleus(CometHead& head, const Body&, const BodySlots&, std::size_t) {
  RotateAboutY(head.CometX, head.CometZ, head.CometSpinCos, head.CometSpinSin);
}

/// `Prepare` is the routine that prepares the slot.
template <void (*Prepare)(IfsSlot&, const Body&)>
void SetUpIfsSlot(BodySlots& slots, std::size_t slot, const Body& body) {
  Prepare(slots.Ifs[slot], body);
  // Only the first slot's running point starts at a vertex; the others start at the origin.
  slots.Ifs[0].IfsPoint = slots.Ifs[slot].IfsVertex[0];
}

template <void (*Prepare)(IfsSlot&, const Body&)>
void SetUpIfsBlast(BodySlots& slots, std::size_t slot, const Body& body) {
  Prepare(slots.Ifs[slot], body);
}

template <void (*Seed)(SeedPoint&, const Body&, IfsSlot&)>
void SeedIfsStar(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot) {
  Seed(point, body, slots.Ifs[slot]);
}

void SetUpNebulaSlot(BodySlots& slots, std::size_t slot, const Body& body) {
  SetUpRibbon(slots.Ribbon, slot, body);
}

void StepNebulaSlot(BodySlots& slots, std::size_t slot, const Body& body) {
  MorphRibbon(slots.Ribbon[slot], body);
}

void SetUpNebulaBlast(BodySlots& slots, std::size_t slot, const Body& body) {
  SetUpStillRibbon(slots.Ribbon[slot], body);
}

void SeedNebulaStar(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot) {
  SeedRibbon(point, body, slots.Ribbon[slot]);
}

void MoveNebulaNucleus(CometHead& head, const Body& body, const BodySlots& slots,
                       std::size_t slot) {
  const int points = body.Profile.Starfold_CP_Points;
  double phase = static_cast<double>(head.CometPhase) + body.Prepared.RunCometOrbit;
  if (phase >= points) phase = std::fmod(phase, points);
  head.CometPhase = static_cast<Single>(phase);
  const Point3 place = RibbonPoint(slots.Ribbon[slot], points, head.CometPhase);
  head.CometX = place.X;
  head.CometY = place.Y;
  head.CometZ = place.Z;
}

void SeedQuasarStar(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedQuasar(point, body);
}

void SeedGravitonStar(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedGraviton(point, body);
}

void SeedStarwaveStar(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedStarwave(point, body);
}

void SeedMoleculeStar(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedMolecule(point, body, true);
}

/// Exactly on a point of the structure.
void SeedMoleculeNucleus(SeedPoint& point, const Body& body, BodySlots&, std::size_t) {
  SeedMolecule(point, body, false);
}

/// The row of a style that places its stars as a disc and moves them in its own way.
constexpr StyleRoutines RadialStyle(FoldStyle style, decltype(StyleRoutines::SeedStar) seedStar) {
  return {style,        SetUpNothing,        StepNothing,
          seedStar,     SeedOrbitingNucleus, MoveOrbitingNucleus,
          SetUpNothing, SeedRadialBlast};
}

template <void (*Prepare)(IfsSlot&, const Body&), void (*Seed)(SeedPoint&, const Body&, IfsSlot&)>
constexpr StyleRoutines IfsStyle(FoldStyle style) {
  return {style,
          SetUpIfsSlot<Prepare>,
          StepNothing,
          SeedIfsStar<Seed>,
          SeedIfsStar<Seed>,
          MoveOrbitingNucleus,
          SetUpIfsBlast<Prepare>,
          SeedIfsStar<Seed>};
}

constexpr std::array<StyleRoutines, kStyleCount> kRoutines{{
    RadialStyle(FoldStyle::Standard, SeedStandardStar),
    IfsStyle<SetUpIfsPoint, SeedIfsPoint>(FoldStyle::IfsPoint),
    IfsStyle<SetUpIfsFigure, SeedIfsWireframe>(FoldStyle::IfsWireframe),
    IfsStyle<SetUpIfsFigure, SeedIfsFractal>(FoldStyle::IfsFractal),
    {FoldStyle::Nebula, SetUpNebulaSlot, StepNebulaSlot, SeedNebulaStar, SeedNebulaStar,
     MoveNebulaNucleus, SetUpNebulaBlast, SeedNebulaStar},
    RadialStyle(FoldStyle::Quasar, SeedQuasarStar),
    RadialStyle(FoldStyle::Graviton, SeedGravitonStar),
    RadialStyle(FoldStyle::Starwave, SeedStarwaveStar),
    IfsStyle<SetUpIfsFigure, SeedUserIfs>(FoldStyle::UserIfs),
    {FoldStyle::Molecule, SetUpNothing, StepNothing, SeedMoleculeStar, SeedMoleculeNucleus,
     MoveOrbitingNucleus, SetUpNothing, SeedMoleculeStar},
}};
static_assert(IsInStyleOrder(kRoutines));

}  // namespace

const StyleRoutines& RoutinesOf(FoldStyle style) {
  return kRoutines[static_cast<std::size_t>(style)];
}

}  // namespace starfolds
