// A line of text that may be narrower than its text.
#pragma once

#include <QLabel>

namespace starfolds {

/// Cuts a text that is too long at its end, and shows it completely in the tool tip. It never makes
/// a window wider.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace starfolds
