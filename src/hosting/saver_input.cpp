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

/// The saver may stay open after the fourth move (wrong password), so counting continues beyond
/// four: moves are then ignored until the ten seconds are over. At midnight the seconds restart at
/// 0, which only makes the wait longer.
bool SaverInput::CountMove(double secondsSinceMidnight) {
  if (moveCount_ == 0 || secondsSinceMidnight - firstMoveTime_ > kSecondsForMoves) {
    AssignRounded(firstMoveTime_, secondsSinceMidnight);
    moveCount_ = 0;
  }
  ++moveCount_;
  return moveCount_ == kMovesToClose && !backG_;
}

}  // namespace starfolds
