// A text box for a number, with spin buttons.
#pragma once

#include <QAbstractSpinBox>
#include <string>

namespace starfolds {

/// What a box takes: the whole kinds let through digits only, `AsSingle` one point as well.
enum class NumberKind { AsInteger = 0, AsSingle = 1, AsLong = 2 };

struct NumberRange {
  NumberKind Kind = NumberKind::AsInteger;
  double Low = 0;
  double High = 0;
};

/// The text that is left of what was typed: a lenient number, rounded where the kind is a whole
/// one, held to the range.
std::string ClampedText(const std::string& text, const NumberRange& range);

/// Keys that belong to no number are dropped with a beep. What is out of range is held to it when
/// the box is left. The wheel turns it only while it has the focus, so that a page can be scrolled
/// over it.
class NumberBox : public QAbstractSpinBox {
  Q_OBJECT

 public:
  explicit NumberBox(QWidget* parent = nullptr);

  /// Names the parts of element `index` of a control array: the text box "txtUni_0", say, and the
  /// spin buttons "spnUni_0".
  void SetNames(const QString& array, int index);

  /// Names the parts of a box that stands alone: "txtUniFoldPct" and "spnUniFoldPct".
  void SetNames(const QString& name);

  /// Sets the range and with it the step of the buttons and the longest text. The present text
  /// stays until the box is left: who tries another style of body and goes back loses nothing.
  void SetRange(const NumberRange& range);
  const NumberRange& Range() const { return range_; }
  /// Takes no text at all until the next range is set.
  void SetNoRange();
  /// For a box in which no number is a choice: one that is empty when it is left stays so.
  void SetBlankAllowed() { blankAllowed_ = true; }

  /// As it stands in the box, which may be out of range while somebody types.
  std::string Text() const;
  /// Shows a text as it is.
  void SetText(const std::string& text);

  /// `ClampTextField`: holds the text to the range. Runs by itself when the box is left.
  void ClampTextField();

  void stepBy(int steps) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  /// The text has changed, by whatever means.
  void Changed();
  /// The user has left the box, or pressed Return in it; its text is in range now.
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
  double Step() const;

  NumberRange range_;
  bool blankAllowed_ = false;
};

}  // namespace starfolds
