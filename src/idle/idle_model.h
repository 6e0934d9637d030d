// Decides when the idle service starts and ends the saver. It knows no clock, no process and no
// desktop: events go in, and each returns what the service must do.
#pragma once

#include <chrono>
#include <optional>

namespace starfolds {

using IdleTime = std::chrono::milliseconds;

/// What the service must do after an event.
struct IdleStep {
  bool StartSaver = false;
  bool StopSaver = false;
  std::optional<IdleTime> Watch = {};  // watch anew for this time without input
  std::optional<IdleTime> Timer = {};  // replaces the running timer; zero: none

  bool operator==(const IdleStep&) const = default;
};

class IdleModel {
 public:
  /// Input that goes on for this time while the saver is shown ends it, and so does input that
  /// comes again within the second time. A single bump of the table does not, as in the saver
  /// itself. Input has paused after the third time without any.
  static constexpr IdleTime kLongestBump{2'000};
  static constexpr IdleTime kBumpIsRecent{10'000};
  static constexpr IdleTime kPause{1'000};

  /// `timeout`: the time without input after which the saver starts. `endsOnInput`: false if the
  /// user has chosen that input, or pointer movement, does not end the saver; then only the saver
  /// itself decides about input.
  IdleModel(IdleTime timeout, bool endsOnInput) : timeout_(timeout), endsOnInput_(endsOnInput) {}

  /// The service has started, or the settings have changed.
  IdleStep Begin(IdleTime timeout, bool endsOnInput);

  /// There was no input for the watched time.
  IdleStep Idled();
  /// The first input after that.
  IdleStep Resumed();
  IdleStep TimerElapsed();
  /// The saver that the last step started has ended.
  IdleStep SaverEnded();
  /// Something that forbids the saver has come, or the last such thing has gone.
  IdleStep Hindered(bool hindered);
  /// The desktop is about to lock the screen. It may never tell that it has.
  IdleStep LockAsked();

  bool IsShowing() const { return state_ == State::Showing || state_ == State::Touched; }

 private:
  enum class State {
    Active,   // input within the time, as far as known
    Held,     // no input for long enough, but something forbids the saver
    Again,    // the same, but that has gone; the time begins again, as for input
    Showing,  // the saver is shown
    Touched,  // input while the saver is shown
    Spent,    // the saver has ended; the next input begins a new time
  };

  IdleStep Enter(State state, IdleStep step = {});
  IdleStep WatchAgain(IdleStep step = {});
  IdleStep End(State state);

  IdleTime timeout_;
  bool endsOnInput_;
  State state_ = State::Active;
  bool hindered_ = false;
  bool bumped_ = false;   // the saver is shown, and its last bump is recent
  bool touched_ = false;  // the saver is shown in spite of input, which is going on
};

}  // namespace starfolds
