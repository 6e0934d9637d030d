// A text box for a number, with spin buttons.
#pragma once

#include <QAbstractSpinBox>
#include <string>

#include "settings/number_range.h"

namespace starfolds {

/// Rejects keys that are not part of a number, with a beep. Clamps to the range when it loses the
/// focus. Ignores wheel events without the focus, so that the page under it can be scrolled.
class NumberBox : public QAbstractSpinBox {
  Q_OBJECT

 public:
  explicit NumberBox(QWidget* parent = nullptr);

  /// Names the parts of element `index` of a control array, for example the text box "txtUni_0" and
  /// the spin buttons "spnUni_0".
  void SetNames(const QString& array, int index);

  /// Names the parts of a box without an array: "txtUniFoldPct" and "spnUniFoldPct".
  void SetNames(const QString& name);

  /// Sets the range, and from it the step of the buttons and the maximum length. The current text
  /// is kept until the box loses the focus, so that trying another style of body and going back
  /// loses nothing.
  void SetRange(const NumberRange& range);
  const NumberRange& Range() const { return range_; }
  /// Accepts no text until the next `SetRange`.
  void SetNoRange();
  /// An empty box then stays empty when it loses the focus, instead of being clamped.
  void SetBlankAllowed() { blankAllowed_ = true; }

  /// The text in the box, which may be out of range while the user types.
  std::string Text() const;
  /// The number in the box, 0 without one.
  double Number() const;
  /// The change by one press of a button.
  double Step() const;
  /// Shows a text unchanged.
  void SetText(const std::string& text);

  /// `ClampTextField`: clamps the text to the range. Called when the box loses the focus.
  void ClampTextField();

  void stepBy(int steps) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  /// The text has changed, by the user or the program.
  void Changed();
  /// The box has lost the focus, or Return was pressed in it; its text is in range.
  void Left();

 protected:
  QValidator::State validate(QString& text, int& position) const override;
  StepEnabled stepEnabled() const override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int LongestText() const;
  bool Takes(QChar c) const;

  NumberRange range_;
  bool blankAllowed_ = false;
};

}  // namespace starfolds
