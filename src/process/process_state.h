// The state of one process as one value, created by `main` or by a test and passed as an argument.
// There is no other state but this and the arrays of a run, so several can exist at the same time.
#pragma once

#include "colour/tables.h"
#include "numbers/rnd.h"
#include "platform/desktop_services.h"
#include "platform/key_value_tree.h"
#include "platform/pump.h"
#include "platform/saver_platform.h"
#include "platform/surface.h"
#include "prepared/prepared.h"
#include "process/run_requests.h"
#include "settings/fields.h"
#include "settings/records.h"

namespace starfolds {

/// `RunMode`.
enum class RunMode : Integer {
  Application = 0,
  ScreenSaver = 1,  // also while the properties dialog is open
  Preview = 2,      // inside a host's window
};

/// The surface a run plots on, as measured when its host was set up.
struct Display {
  Surface* hDCDraw = nullptr;
  Integer SurfaceWidth = 0;
  Integer SurfaceHeight = 0;
  Integer CenterX = 0;
  Integer CenterY = 0;
  Single FocalLength = 1;
  Single FocalPixels = 0;  // (CenterX + CenterY) * 0.5 * FocalLength
  Long FrameDelayMs = 0;   // least time of a frame; 0 until a host sets it
  Long FrameStartTick = 0;
  Long FrameShownTick = 0;
};

struct ProcessState {
  ProcessState() = default;
  /// Not copyable: `Tree` may point to `StandIn` of the same value.
  ProcessState(const ProcessState&) = delete;
  ProcessState& operator=(const ProcessState&) = delete;

  /// What the user has stored: the truth between runs. Set before the first one, outlives all.
  KeyValueTree* Tree = nullptr;
  /// Whether the tree holds bodies. If not, because it cannot be read or written, a run shows the
  /// factory's.
  bool HasBodies = true;

  // The records of the run, copied from the tree when its host is set up and clamped ...
  AdvancedSettings Advanced;
  // ... and again for each run by `ReadUniverseSettings`; the run clamps them in place.
  UniverseSettings Universe;
  ProfileArray Profiles;
  CompositeArray Composites;
  VisitList Visits;

  PreparedArray Prepared;
  PreparedUniverse RunUniverse;
  MemberSums MemberSum{};
  ColourTables Colours;
  Display Screen;
  Rnd Random;

  RunMode Mode = RunMode::Application;
  RunRequests Requests;
  Long PreviewParent = 0;

  // The machine. All of it is set before a run begins and outlives it.
  Pump* Events = nullptr;
  DesktopServices* Desktop = nullptr;
  SaverPlatform* Platform = nullptr;
};

}  // namespace starfolds
