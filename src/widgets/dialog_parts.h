// Helpers for all dialogs.
#pragma once

#include <QPushButton>
#include <QString>
#include <string_view>

namespace starfolds {

/// Converts UTF-8 to Qt's text.
inline QString Shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QPushButton* MakeButton(const QString& text, const char* name) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  return button;
}

}  // namespace starfolds
