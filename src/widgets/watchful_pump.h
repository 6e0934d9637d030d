// The pump of a run inside a dialog.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// The process's pump, for a run with a process state of its own: stops the run when the process is
/// to end.
class WatchfulPump : public Pump {
 public:
  WatchfulPump(ProcessState& process, ProcessState& run) : process_(process), run_(run) {}

  Long TickCount() override { return process_.Events->TickCount(); }
  void PumpEvents() override {
    process_.Events->PumpEvents();
    Watch();
  }
  void WaitForEvents(Long milliseconds) override {
    process_.Events->WaitForEvents(milliseconds);
    Watch();
  }
  void WaitForRefresh() override {
    process_.Events->WaitForRefresh();
    Watch();
  }

 private:
  void Watch() {
    if (process_.Requests.QuitApp()) run_.Requests.AskStop();
  }

  ProcessState& process_;
  ProcessState& run_;
};

}  // namespace starfolds
