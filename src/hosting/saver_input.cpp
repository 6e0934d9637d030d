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
  if (moveCount_ == 0 || secondsSinceMidnight - firstMoveTime_ > kSecondsForMoves) {
    AssignRounded(firstMoveTime_, secondsSinceMidnight);
    moveCount_ = 0;
  }
  ++moveCount_;
  return moveCount_ == kMovesToClose && !backG_;
}

}  // namespace starfolds
