// A line of text above the pixels of a window.
#pragma once

#include <memory>
#include <string>

#include "platform/surface.h"

class QWindow;

namespace starfolds {

/// The look of a message.
struct MessageStyle {
  std::string FontName;  // if it does not exist, the window system substitutes one
  int FontSize = 20;     // points
  Colour Ink = 0xFFFFFF;
};

/// The edge of the outer window at which a message is centred.
enum class MessagePlace { UpperEdge, LowerEdge };

/// Width of the text in logical pixels.
int MessageWidth(const std::string& utf8, const MessageStyle& style);

/// A child window: the window system clips the outer window's drawing to its outside, so the text
/// is painted once and stays. All input passes through to the outer window.
class MessageWindow {
 public:
  /// Hidden until the first `Print`. `outer` must outlive it.
  explicit MessageWindow(QWindow& outer, const char* name = "picMessage",
                         MessagePlace place = MessagePlace::UpperEdge);
  ~MessageWindow();

  /// Shows one line at its edge of the outer window's current size, in a box as large as the text.
  /// A line wider than the window is clipped at both sides.
  void Print(const std::string& utf8, const MessageStyle& style);
  void Hide();

  /// True: the text moves one logical pixel a second, from its resting position across the whole
  /// outer window and back, to prevent burn-in. False: it stays where `Print` puts it.
  void SetDrift(bool drifts);

 private:
  class Line;
  std::unique_ptr<Line> line_;
};

}  // namespace starfolds
