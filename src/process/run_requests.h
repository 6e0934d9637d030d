// What windows and dialogs ask of the run in progress.
#pragma once

namespace starfolds {

/// Three plain flags: window events set them from inside the run's pump, and the frame loop looks
/// at them between frames. Nothing is interrupted, so a request takes effect within a frame.
class RunRequests {
 public:
  /// The host begins a run: forgets what was asked of an earlier one, but not that the process must
  /// end.
  void BeginRun() { stopRun_ = newRun_ = false; }

  /// The effect must stop for good.
  void AskStop() { stopRun_ = true; }
  /// The run must be abandoned for one with fresh settings.
  void AskNewRun() { newRun_ = true; }
  /// The application must end, and no further run may begin in it.
  void AskQuit() { quitApp_ = true; }
  /// The run continues after all (the password was wrong), unless the process must end.
  void TakeBackStop() { stopRun_ = false; }

  bool StopRun() const { return stopRun_ || quitApp_; }
  bool NewRun() const { return newRun_; }
  bool QuitApp() const { return quitApp_; }

  /// Whether a new run is asked for. Answers the request, so that the new run does not end at once.
  bool TakeNewRun() {
    const bool asked = newRun_;
    newRun_ = false;
    return asked;
  }

 private:
  bool stopRun_ = false;
  bool newRun_ = false;
  bool quitApp_ = false;
};

}  // namespace starfolds
