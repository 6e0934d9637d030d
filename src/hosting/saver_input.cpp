#include "hosting/saver_input.h"

#include "numbers/conversions.h"

namespace starfolds {
namespace {

constexpr Long kMovesToClose = 4;
constexpr double kSecondsForMoves = 10;

}  // namespace

bool SaverInput::MouseMove(double secondsSinceMidnight) {
  if (!placeKnown_) {
    placeKnown_ = true;
    return false;
  }
  return !mouseMoveOff_ && CountMove(secondsSinceMidnight);
}

/// The saver may stay although it was to be closed (a refused password), so the count goes on past
/// four: the pointer is ignored then until the ten seconds are over. At midnight the seconds fall
/// back and the wait only gets longer.
bool SaverInput::CountMove(double secondsSinceMidnight) {
  ++moveCount_;
  const bool close = moveCount_ == kMovesToClose && !backG_;
  if (firstMoveTime_ == 0) {
    AssignRounded(firstMoveTime_, secondsSinceMidnight);
  } else if (secondsSinceMidnight - firstMoveTime_ > kSecondsForMoves) {
    firstMoveTime_ = 0;
    moveCount_ = 0;
  }
  return close;
}

}  // namespace starfolds
