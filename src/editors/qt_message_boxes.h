// Message boxes of the toolkit.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/message_boxes.h"

namespace starfolds {

/// Boxes over a window, or over the dialog that stands over it, which they block; their text can be
/// selected and copied. Esc answers as closing the box does.
class QtMessageBoxes : public MessageBoxes {
 public:
  explicit QtMessageBoxes(QWidget* parent = nullptr) : parent_(parent) {}

  void SetParent(QWidget* parent) { parent_ = parent; }

  BoxAnswer Show(const std::string& text, BoxStyle style, const std::string& caption) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace starfolds
