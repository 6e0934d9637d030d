#include "idle/idle_model.h"

namespace starfolds {

/// A change of state ends the timer, unless the step sets it.
IdleStep IdleModel::Enter(State state, IdleStep step) {
  state_ = state;
  bumped_ = false;
  touched_ = false;
  if (!step.Timer) step.Timer = IdleTime::zero();
  return step;
}

IdleStep IdleModel::WatchAgain(IdleStep step) {
  step.Watch = timeout_;
  return Enter(State::Active, step);
}

IdleStep IdleModel::End(State state) {
  IdleStep step;
  step.StopSaver = true;
  return state == State::Active ? WatchAgain(step) : Enter(state, step);
}

IdleStep IdleModel::Begin(IdleTime timeout, bool endsOnInput) {
  timeout_ = timeout;
  endsOnInput_ = endsOnInput;
  return IsShowing() ? IdleStep() : WatchAgain();
}

IdleStep IdleModel::Idled() {
  if (state_ == State::Active) {
    if (hindered_) return Enter(State::Held);
    return Enter(State::Showing, {.StartSaver = true});
  }
  touched_ = false;
  if (state_ != State::Touched) return {};
  IdleStep step = Enter(State::Showing, {.Timer = kBumpIsRecent});
  bumped_ = true;
  return step;
}

IdleStep IdleModel::Resumed() {
  switch (state_) {
    case State::Held:
    case State::Again:
    case State::Spent: return WatchAgain();
    case State::Showing:
      touched_ = true;
      if (!endsOnInput_) return {};
      if (bumped_) return End(State::Active);
      return Enter(State::Touched, {.Watch = kPause, .Timer = kLongestBump});
    default: return {};
  }
}

IdleStep IdleModel::TimerElapsed() {
  switch (state_) {
    case State::Again: return Enter(State::Showing, {.StartSaver = true});
    case State::Touched: return End(State::Active);
    case State::Showing: bumped_ = false; return {};
    default: return {};
  }
}

IdleStep IdleModel::SaverEnded() {
  if (!IsShowing()) return {};
  return state_ == State::Touched || touched_ ? WatchAgain() : Enter(State::Spent);
}

IdleStep IdleModel::Hindered(bool hindered) {
  if (hindered == hindered_) return {};
  hindered_ = hindered;
  if (!hindered) {
    return state_ == State::Held ? Enter(State::Again, {.Timer = timeout_}) : IdleStep();
  }
  switch (state_) {
    case State::Again: return Enter(State::Held);
    case State::Showing: return End(State::Held);
    case State::Touched: return End(State::Active);
    default: return {};
  }
}

IdleStep IdleModel::LockAsked() {
  if (state_ == State::Touched) return End(State::Active);
  if (state_ == State::Showing) return End(State::Spent);
  return state_ == State::Held || state_ == State::Again ? Enter(State::Spent) : IdleStep();
}

}  // namespace starfolds
