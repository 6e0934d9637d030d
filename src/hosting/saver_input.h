// Which input ends the saver.
#pragma once

#include "numbers/words.h"

namespace starfolds {

/// The rules for the saver's window. Each function takes an event and returns whether the saver
/// must end now.
class SaverInput {
 public:
  /// `mouseMoveOff`: pointer movement never ends the saver. `backG`: it runs as a background of the
  /// desktop, which only a double click ends.
  SaverInput(bool mouseMoveOff, bool backG) : mouseMoveOff_(mouseMoveOff), backG_(backG) {}

  bool KeyDown() const { return !backG_; }
  bool Scroll() const { return !backG_; }
  bool MouseDown() const { return !backG_; }
  bool DoubleClick() const { return backG_; }

  /// Four moves within ten seconds of the first end the saver; a later move starts a new series as
  /// its first. So a bump of the table does not end the saver, nor does the initial position that a
  /// new window receives without any movement.
  bool MouseMove(double secondsSinceMidnight);

 private:
  bool CountMove(double secondsSinceMidnight);

  bool mouseMoveOff_;
  bool backG_;
  bool placeKnown_ = false;
  Long moveCount_ = 0;      // MoveCount, in the series
  Long firstMoveTime_ = 0;  // FirstMoveTime, in seconds since midnight
};

}  // namespace starfolds
