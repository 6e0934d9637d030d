// Which input ends the saver.
#pragma once

#include "numbers/words.h"

namespace starfolds {

/// The rules of the saver's window. Each routine takes an event and tells whether the saver is to
/// be closed now.
class SaverInput {
 public:
  /// `mouseMoveOff`: the pointer's movement never ends the saver. `backG`: it runs as a background
  /// of the desktop, which only a double click ends.
  SaverInput(bool mouseMoveOff, bool backG) : mouseMoveOff_(mouseMoveOff), backG_(backG) {}

  bool KeyDown() const { return !backG_; }
  bool Scroll() const { return !backG_; }
  bool MouseDown() const { return !backG_; }
  bool DoubleClick() const { return backG_; }

  /// Four moves within ten seconds of the first end the saver; a move that comes later begins a new
  /// series and is its first. So a knocked table does not end it, nor does the place that a new
  /// window is told of first: nobody has moved then.
  bool MouseMove(double secondsSinceMidnight);

 private:
  bool CountMove(double secondsSinceMidnight);

  bool mouseMoveOff_;
  bool backG_;
  bool placeKnown_ = false;
  Long moveCount_ = 0;      // MoveCount, of the series
  Long firstMoveTime_ = 0;  // FirstMoveTime, in seconds since midnight
};

}  // namespace starfolds
