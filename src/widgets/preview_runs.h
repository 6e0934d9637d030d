// Runs inside a dialog, with the values in its controls, saved or not.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "process/process_state.h"

namespace starfolds {

/// Restores the profiles and composites when it is destroyed: a run clamps its records in place,
/// and a dialog edits the same ones. Changes made meanwhile are lost.
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

/// Runs universes on `surface` until a run flag is set, with `universeOnDialog` (clamped) and the
/// records in memory. The frame's delay is that of the process: none in a process that was started
/// for the dialog alone.
void PreviewUniverse(ProcessState& process, Surface& surface,
                     const UniverseSettings& universeOnDialog, std::uint64_t seed);

/// The values of the dialog for the preview of a body.
struct BodyPreview {
  Integer Body = 0;  // a profile, or a composite if `IsComposite`
  bool IsComposite = false;
  Long Stars = 5000;       // clamped to 10 to 30000
  Long Trail = 1;          // clamped to 1 to 999
  Integer HueStart = 165;  // of the universe's flares; both are clamped to 0 to 999
  Integer HueEnd = 210;
};

/// The preview values of one body, from the settings of a universe.
BodyPreview PreviewIn(const UniverseSettings& universe, int body, bool isComposite);

/// Runs one body on `surface` until a run flag is set, at the refresh rate of the screen whatever
/// the frame's delay. Shows nothing if the body does not exist.
void PreviewBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                 std::uint64_t seed);

/// The same in an editor's picture, with focal length 1 whatever the settings say.
void PreviewEditedBody(ProcessState& process, Surface& surface, const BodyPreview& preview,
                       std::uint64_t seed);

/// How a call of `PreviewSwitch::Start` ended.
enum class PreviewEnd {
  Refused,  // another preview is running, or the process is about to end; nothing was run
  Stopped,
  Close,  // the window was asked to close meanwhile, and may close now
};

/// Handles the preview buttons. The first press runs the preview inside its handler; the second
/// press arrives through the pump before the first handler has returned, and stops the preview.
class PreviewSwitch {
 public:
  explicit PreviewSwitch(ProcessState& process) : process_(process) {}

  bool IsOn() const { return on_; }

  /// Calls `run`, which returns when the run has ended. Only one run at a time.
  PreviewEnd Start(const std::function<void()>& run);

  /// Ends the run within a frame, in any stage.
  void Stop();

  /// Called by a window before it closes. True: a run draws on its widgets, and the window must
  /// stay open until `Start` has returned `Close`, which it does within a frame.
  bool DelaysClose();

 private:
  ProcessState& process_;
  bool on_ = false;
  bool stopped_ = false;
  bool closing_ = false;
};

}  // namespace starfolds
