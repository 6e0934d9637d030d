#include "idle/service.h"

#include <utility>

namespace starfolds {

IdleService::IdleService(IdleSource& source, Hindrances& hindrances, const QString& program,
                         const IdlePlan& plan, Say say, std::function<void()> done)
    : source_(source),
      hindrances_(hindrances),
      plan_(plan),
      say_(std::move(say)),
      done_(std::move(done)),
      model_(plan.Timeout, plan.EndsOnInput),
      saver_(program, [this](const QString& fault) { SaverEnded(fault); }) {
  timer_.setSingleShot(true);
  timer_.callOnTimeout([this] {
    hindrances_.Refresh();
    Do(model_.TimerElapsed());
  });
  source_.Idled = [this] { SourceIdled(); };
  source_.Resumed = [this] { Do(model_.Resumed()); };
  hindrances_.Changed = [this] { HindrancesChanged(); };
  hindrances_.LockAsked = [this] { Do(model_.LockAsked()); };
  Do(model_.Hindered(hindrances_.Any()));
  Do(model_.Begin(plan.Timeout, plan.EndsOnInput));
}

void IdleService::Change(const IdlePlan& plan) {
  plan_ = plan;
  Do(model_.Begin(plan.Timeout, plan.EndsOnInput));
}

/// Mutter does not report idleness while a program inhibits it, so a test would say nothing.
void IdleService::HindrancesChanged() {
  if (plan_.Once && hindrances_.Any() && !model_.IsShowing()) {
    say_(tr("Against a screen saver now: %1").arg(hindrances_.Reasons().join(' ')));
  }
  Do(model_.Hindered(hindrances_.Any()));
}

void IdleService::SourceIdled() {
  hindrances_.Refresh();
  const bool hindered = hindrances_.Any();
  if (hindered && !model_.IsShowing()) {
    say_(tr("Not started: %1").arg(hindrances_.Reasons().join(' ')));
  }
  Do(model_.Idled());
}

/// The model's events may come while a step is being done, but no step depends on what follows it.
void IdleService::Do(const IdleStep& step) {
  if (step.Timer) {
    timer_.stop();
    if (*step.Timer > IdleTime::zero()) timer_.start(*step.Timer);
  }
  if (step.Watch) source_.Watch(*step.Watch);
  if (step.StartSaver) {
    say_(tr("The screen saver starts."));
    if (ShowingChanged) ShowingChanged(true);
    saver_.Start();
  }
  if (step.StopSaver) {
    say_(hindrances_.Any()
             ? tr("The screen saver is ended: %1").arg(hindrances_.Reasons().join(' '))
             : tr("The screen saver is ended."));
    saver_.Stop();
  }
}

void IdleService::SaverEnded(const QString& fault) {
  say_(fault.isEmpty() ? tr("The screen saver has ended.")
                       : tr("The screen saver has ended: %1.").arg(fault));
  if (ShowingChanged) ShowingChanged(false);
  Do(model_.SaverEnded());
  if (plan_.Once) done_();
}

}  // namespace starfolds
