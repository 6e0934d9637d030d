// A process state of its own for pictures of single bodies.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>

#include "platform/desktop_services.h"
#include "process/process_state.h"
#include "universe/single_body_run.h"

namespace starfolds {

/// What a picture of a single body depends on.
struct ShownBody {
  ProfileArray Profiles;  // number 0 is the body; with a composite, its members are among them
  std::optional<CompositeProfile> Composite = {};
  Long Stars = 5000;       // clamped to 10 to 30000
  Long Trail = 1;          // pixels per star, clamped to 1 to 999
  Integer HueStart = 165;  // of the universe's flares; both are clamped to 0 to 999
  Integer HueEnd = 210;
  Single FocalLength = 1;  // of the camera, clamped to 0.01 to 10

  /// One profile, or the members of a composite.
  static ShownBody Of(std::span<const StarfoldProfile> members);

  /// Takes the values that come from a universe over.
  void TakeUniverse(const UniverseSettings& universe);
};

/// A camera that shows a whole body: the values of `Display`.
struct BodyCamera {
  Single FocalPixels = 0;
  Integer CenterX = 0;
  Integer CenterY = 0;
};

/// Draws bodies without tree, clock and windows, so that a picture changes nothing of a dialog's
/// state. Always with the same random numbers: the same values show the same picture.
class BodyStage {
 public:
  BodyStage();

  /// Takes over the records, clamped.
  void Take(const ShownBody& body);

  /// The number of frames after which the body taken over looks as it does for the rest of its run:
  /// styles whose stars begin in the core need more.
  int WarmUpFrames() const;

  /// The camera for which the body fills a picture of this size, except a few outlying stars. Runs
  /// the body for some frames.
  BodyCamera FittedCamera(Integer width, Integer height);

  /// Begins to draw on `surface`, which is made black and must outlive the result. The camera is
  /// that of the run unless another is given. `stars` replaces the number of `ShownBody`.
  std::unique_ptr<SingleBody> Begin(Surface& surface, std::optional<BodyCamera> camera = {},
                                    std::optional<Long> stars = {});

 private:
  std::unique_ptr<ProcessState> process_ = std::make_unique<ProcessState>();
  CountedPump clock_;
  MemoryDesktop desktop_;
  MemoryTree tree_;
  SingleBodyPlan plan_;
  std::array<Integer, kProfileCount> renewed_{};  // `Starfold_NewFreq` of each profile
};

}  // namespace starfolds
