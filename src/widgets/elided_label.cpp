#include "widgets/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace starfolds {

void ElidedLabel::paintEvent(QPaintEvent*) {
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  setToolTip(shown == text() ? QString() : text());
  QPainter painter(this);
  style()->drawItemText(&painter, rect(), static_cast<int>(alignment() | Qt::TextSingleLine),
                        palette(), isEnabled(), shown, foregroundRole());
}

}  // namespace starfolds
