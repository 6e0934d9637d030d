// A quiet line at the lower edge of a window that goes by itself.
#pragma once

#include <QTimer>
#include <chrono>
#include <string>

#include "desktop/message_window.h"

namespace starfolds {

class HintLine {
 public:
  /// `outer` outlives the line.
  explicit HintLine(QWindow& outer);

  /// Shows `text`, or `shortText` if the window is too narrow for it, until the time is over or
  /// another text is shown. With a time of 0 it stays.
  void Show(const std::string& text, const std::string& shortText, std::chrono::milliseconds time);
  void Hide();

  /// Moves the line to where the window's lower edge is now.
  void FollowWindow();

 private:
  void Print();

  QWindow& outer_;
  MessageWindow picHints_;
  QTimer end_;
  std::string text_;
  std::string shortText_;
};

}  // namespace starfolds
