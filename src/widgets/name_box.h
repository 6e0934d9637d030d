// A text box for the name of a body.
#pragma once

#include <QLineEdit>

namespace starfolds {

/// Drops "[", ",", "]" and "=", which would break the formats of templates and rows, with a beep;
/// from what is pasted as well. Names are as long as a stored value may be.
class NameBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit NameBox(QWidget* parent = nullptr);

  /// Of one that is longer than the box its beginning.
  void ShowName(const QString& name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace starfolds
