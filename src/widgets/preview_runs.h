// Runs inside a dialog: from the values that stand there, whether they are saved or not.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "process/process_state.h"

namespace starfolds {

/// Puts the profiles and composites back as they were when it goes: a run clamps its records in
/// place, and a dialog edits the same ones. Changes that are made meanwhile are lost.
class RecordsKept {
 public:
  explicit RecordsKept(ProcessState& process);
  ~RecordsKept();
  RecordsKept(const RecordsKept&) = delete;
  RecordsKept& operator=(const RecordsKept&) = delete;

 private:
  struct Records;

  ProcessState& process_;
  std::unique_ptr<Records> records_;
};

/// Runs whole universes on `surface` until a flag says stop, with `universeOnDialog` (held to its
/// ranges) and the records in memory. The frame's delay is whatever the process has: none in one
/// that was started for the dialog alone.
void PreviewUniverse(ProcessState& process, Surface& surface,
                     const UniverseSettings& universeOnDialog, std::uint64_t seed);

/// What stands on the dialog for the preview of a body.
struct BodyPreview {
  Integer Body = 0;  // a profile, or a composite if `IsComposite`
  bool IsComposite = false;
  Long Stars = 5000;       // held to 10 to 30000
  Long Trail = 1;          // held to 1 to 999
  Integer HueStart = 165;  // of the universe's flares; both held to 0 to 999
  Integer HueEnd = 210;
};

/// What the settings of a universe say for the preview of one body in it.
BodyPreview PreviewIn(const UniverseSettings& universe, int body, bool isComposite);

/// Runs one body on `surface` until a flag says stop, at the pace of the screen whatever the
/// frame's delay. A body that does not exist shows nothing.
void PreviewBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                 std::uint64_t seed);

/// The same in an editor's picture: focal length 1, whatever the settings say.
void PreviewEditedBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                       std::uint64_t seed);

/// How the call came to an end that was to run a preview.
enum class PreviewEnd {
  Refused,  // another preview is on, or the process is about to end; nothing was run
  Stopped,
  Close,  // the window was to be closed meanwhile, and may be now
};

/// The handshake of preview buttons. The first press runs the preview inside its handler; the
/// second one comes through the pump while the first has not returned, and stops it.
class PreviewSwitch {
 public:
  explicit PreviewSwitch(ProcessState& process) : process_(process) {}

  bool IsOn() const { return on_; }

  /// Calls `run`, which returns when the run has ended. There is one run at a time.
  PreviewEnd Start(const std::function<void()>& run);

  /// Ends the run within a frame, whatever stage it is in.
  void Stop();

  /// A window asks this before it closes. True: a run is on, and the window has to stay until
  /// `Start` has returned `Close`, which it does within a frame. The run draws on its widgets.
  bool DelaysClose();

 private:
  ProcessState& process_;
  bool on_ = false;
  bool stopped_ = false;
  bool closing_ = false;
};

}  // namespace starfolds
