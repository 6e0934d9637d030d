// A text box for the name of a body.
#pragma once

#include <QLineEdit>

namespace starfolds {

/// Removes "[", ",", "]" and "=", which would break the formats of templates and rows, from typed
/// and pasted text, with a beep. Names are limited to the length of a stored value.
class NameBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit NameBox(QWidget* parent = nullptr);

  /// Shows a name from its beginning, if it is longer than the box.
  void ShowName(const QString& name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace starfolds
