// The label of an input box, with the range of its values in a quieter colour.
#pragma once

#include <QLabel>

namespace starfolds {

/// Draws what is in parentheses, "(1 - 30000)", in a colour between those of text and window. The
/// text itself is plain, with mnemonics.
class RangeLabel : public QLabel {
 public:
  explicit RangeLabel(const QString& text, QWidget* parent = nullptr);

  /// The width that a text of one line needs.
  static int WidthOf(const QString& text, const QFontMetrics& metrics);

  /// One line, also of a label that may wrap.
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList Lines() const;
};

}  // namespace starfolds
