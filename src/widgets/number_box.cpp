#include "widgets/number_box.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <algorithm>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "widgets/number_box_access.h"

namespace starfolds {
namespace {

constexpr int kSingleLength = 8;  // maximum length of a number with a point

}  // namespace

NumberBox::NumberBox(QWidget* parent) : QAbstractSpinBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setKeyboardTracking(true);
  InstallNumberBoxAccess();
  connect(lineEdit(), &QLineEdit::textChanged, this, &NumberBox::Changed);
  connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent changed(this, Number());
    QAccessible::updateAccessibility(&changed);
  });
}

void NumberBox::SetNames(const QString& array, int index) {
  SetNames(array + "_" + QString::number(index));
}

void NumberBox::SetNames(const QString& name) {
  lineEdit()->setObjectName("txt" + name);
  setObjectName("spn" + name);
}

void NumberBox::SetRange(const NumberRange& range) {
  range_ = range;
  const int present = static_cast<int>(lineEdit()->text().size());
  lineEdit()->setMaxLength(std::max(LongestText(), present));  // keeps the current text
  setAccessibleDescription(tr("%1 to %2")
                               .arg(QString::fromStdString(TextOf(range.Low, range.Kind)),
                                    QString::fromStdString(TextOf(range.High, range.Kind))));
}

void NumberBox::SetNoRange() {
  range_ = {};
  lineEdit()->setMaxLength(0);
}

/// All boxes have the width of the longest number that any of them accepts.
QSize NumberBox::sizeHint() const {
  const int digits = fontMetrics().horizontalAdvance(QString(kSingleLength, '0'));
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const QSize text(digits + kSingleLength, lineEdit()->sizeHint().height());
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

std::string NumberBox::Text() const { return lineEdit()->text().toStdString(); }

double NumberBox::Number() const { return LenientNumber("0" + Text()); }

void NumberBox::SetText(const std::string& text) {
  const QString shown = QString::fromStdString(text);
  lineEdit()->setMaxLength(std::max(lineEdit()->maxLength(), static_cast<int>(shown.size())));
  lineEdit()->setText(shown);
}

void NumberBox::ClampTextField() {
  if (blankAllowed_ && Trimmed(Text()).empty()) return;
  const std::string clamped = ClampedText(Text(), range_);
  if (clamped != Text()) SetText(clamped);
  lineEdit()->setMaxLength(LongestText());
}

void NumberBox::stepBy(int steps) {
  const double number = LenientNumber(Text()) + steps * Step();
  SetText(TextOf(ClampTo(number, range_.Low, range_.High), range_.Kind));
  lineEdit()->selectAll();
}

/// Text that cannot become a number of the box's kind cannot be pasted either.
QValidator::State NumberBox::validate(QString& text, int&) const {
  for (const QChar c : text) {
    if (!Takes(c)) return QValidator::Invalid;
  }
  if (text.count('.') > 1) return QValidator::Invalid;
  return text.isEmpty() ? QValidator::Intermediate : QValidator::Acceptable;
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const {
  const double number = LenientNumber(Text());
  StepEnabled steps = StepNone;
  if (number < range_.High) steps |= StepUpEnabled;
  if (number > range_.Low) steps |= StepDownEnabled;
  return steps;
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool printable = !command && text.size() == 1 && text[0].isPrint();
  const bool secondPoint =
      text == "." && lineEdit()->text().contains('.') && !lineEdit()->selectedText().contains('.');
  if (printable && (!Takes(text[0]) || secondPoint)) {
    QApplication::beep();
    event->accept();
    return;
  }
  QAbstractSpinBox::keyPressEvent(event);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    ClampTextField();
    emit Left();
  }
}

void NumberBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QAbstractSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void NumberBox::focusInEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusInEvent(event);
  lineEdit()->selectAll();  // so that typing replaces the text
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
  ClampTextField();
  QAbstractSpinBox::focusOutEvent(event);
  emit Left();
}

int NumberBox::LongestText() const {
  if (!IsWhole(range_.Kind)) return kSingleLength;
  return static_cast<int>(TextOf(range_.High, range_.Kind).size());
}

bool NumberBox::Takes(QChar c) const {
  const bool isDigit = c >= '0' && c <= '9';
  return isDigit || (c == '.' && !IsWhole(range_.Kind));
}

double NumberBox::Step() const {
  if (!IsWhole(range_.Kind)) return range_.High <= 1 ? 0.01 : range_.High <= 10 ? 0.1 : 1;
  if (range_.High < 101) return 1;
  if (range_.High < 999) return 5;
  return range_.High < 30000 ? 10 : 50;
}

}  // namespace starfolds
