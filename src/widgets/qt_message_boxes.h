// Message boxes of the toolkit.
#pragma once

#include "platform/message_boxes.h"

namespace starfolds {

/// Boxes over the window that the user works in, or else over the dialog that was opened last; they
/// block both. Their text can be selected and copied. Esc answers as closing the box does.
class QtMessageBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const std::string& text, BoxStyle style, const std::string& caption) override;
};

}  // namespace starfolds
