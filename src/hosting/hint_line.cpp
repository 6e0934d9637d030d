#include "hosting/hint_line.h"

#include <QWindow>

#include "desktop/translation.h"

namespace starfolds {
namespace {

/// Grey, in about the font size of dialogs.
const MessageStyle kStyle{"", 11, 0xA0A0A0};

/// Minimum distance of both ends from the window's edges, in logical pixels.
constexpr int kMargin = 10;

}  // namespace

HintLine::HintLine(QWindow& outer)
    : outer_(outer), picHints_(outer, "picHints", MessagePlace::LowerEdge) {
  end_.setSingleShot(true);
  QObject::connect(&end_, &QTimer::timeout, &end_, [this] { Hide(); });
}

void HintLine::Show(const UserText& text, const UserText& shortText,
                    std::chrono::milliseconds time) {
  text_ = TranslatedText(text);
  shortText_ = TranslatedText(shortText);
  Print();
  end_.stop();
  if (time.count() > 0) end_.start(time);
}

void HintLine::Hide() {
  text_.clear();
  end_.stop();
  picHints_.Hide();
}

void HintLine::FollowWindow() {
  if (!text_.empty()) Print();
}

void HintLine::Print() {
  const bool fits = MessageWidth(text_, kStyle) + 2 * kMargin <= outer_.width();
  picHints_.Print(fits ? text_ : shortText_, kStyle);
}

}  // namespace starfolds
