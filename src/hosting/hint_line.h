// A line of hints at the lower edge of a window, hidden after some time.
#pragma once

#include <QTimer>
#include <chrono>
#include <string>

#include "desktop/message_window.h"
#include "platform/user_text.h"

namespace starfolds {

class HintLine {
 public:
  /// `outer` must outlive the line.
  explicit HintLine(QWindow& outer);

  /// Shows `text`, or `shortText` if the window is too narrow for it, in the user's language, until
  /// `time` is over or another text is shown. With a time of 0 it stays.
  void Show(const UserText& text, const UserText& shortText, std::chrono::milliseconds time);
  void Hide();

  /// Moves the line to the current lower edge of the window.
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
