// Message boxes of the toolkit.
#pragma once

#include "platform/message_boxes.h"

namespace starfolds {

/// Boxes over the dialog that is open, the last one of several, which they block; their text can be
/// selected and copied. Esc answers as closing the box does.
class QtMessageBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const std::string& text, BoxStyle style, const std::string& caption) override;
};

}  // namespace starfolds
