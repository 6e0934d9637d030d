// Message boxes with Qt.
#pragma once

#include "platform/message_boxes.h"
#include "platform/user_text.h"

namespace starfolds {

/// Boxes over the active window, or else over the dialog that was opened last; they are modal to
/// both. Their text can be selected and copied. Esc answers like closing the box.
class QtMessageBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const UserText& text, BoxStyle style, const std::string& caption) override;
};

}  // namespace starfolds
