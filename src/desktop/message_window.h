// A line of text that stands above a window's pixels.
#pragma once

#include <memory>
#include <string>

#include "platform/surface.h"

class QWindow;

namespace starfolds {

/// How a message looks.
struct MessageStyle {
  std::string FontName;  // one that does not exist is replaced by the window system's choice
  int FontSize = 20;     // points
  Colour Ink = 0xFFFFFF;
};

/// At which edge of the outer window a message stands, in its middle.
enum class MessagePlace { UpperEdge, LowerEdge };

/// Width of the text in logical pixels.
int MessageWidth(const std::string& utf8, const MessageStyle& style);

/// A window of its own inside another one: the window system keeps the pixels of the outer window
/// away from it, so it is printed once and stays. It passes all input through to the outer window.
class MessageWindow {
 public:
  /// Nothing shows before the first `Print`. The outer window outlives it.
  explicit MessageWindow(QWindow& outer, const char* name = "picMessage",
                         MessagePlace place = MessagePlace::UpperEdge);
  ~MessageWindow();

  /// Shows one line at its edge of the outer window as it is now, in a box no larger than the text.
  /// A line wider than the window is cut off at both sides.
  void Print(const std::string& utf8, const MessageStyle& style);
  void Hide();

  /// From now on the text wanders, from its place of rest through the whole outer window and back,
  /// a logical pixel a second, so that it burns into no screen. False: it rests, where `Print` puts
  /// it.
  void SetDrift(bool drifts);

 private:
  class Line;
  std::unique_ptr<Line> line_;
};

}  // namespace starfolds
