// Helpers for all dialogs.
#pragma once

#include <QPushButton>
#include <QString>
#include <QVariant>
#include <string_view>

namespace starfolds {

/// Converts UTF-8 to Qt's text.
inline QString Shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A button whose text does not touch its border, which some styles allow.
class RoomyButton : public QPushButton {
 public:
  using QPushButton::QPushButton;
  QSize sizeHint() const override { return QPushButton::sizeHint() + kRoom; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  static constexpr QSize kRoom{14, 2};
};

inline QPushButton* MakeButton(const QString& text, const char* name) {
  auto* button = new RoomyButton(text);
  button->setObjectName(name);
  return button;
}

/// Return in `box` presses `button`, and not the default button of the window.
inline void SetReturnButton(QWidget& box, QAbstractButton& button) {
  box.setProperty("returnButton", QVariant::fromValue<QObject*>(&button));
}

/// The button that Return in `box` presses; nullptr if that is the default button of the window.
inline QAbstractButton* ReturnButton(const QWidget* box) {
  if (!box) return nullptr;
  return qobject_cast<QAbstractButton*>(box->property("returnButton").value<QObject*>());
}

}  // namespace starfolds
