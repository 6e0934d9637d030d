#include "widgets/still_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

namespace starfolds {
namespace {

constexpr QSize kStillSize{44, 33};
constexpr int kGap = 6;         // logical pixels between still and text
constexpr int kMostText = 300;  // longer texts do not widen a list

}  // namespace

StillDelegate::StillDelegate(QWidget* list, StillService& stills, StillOfRow stillOfRow)
    : QStyledItemDelegate(list), stills_(stills), stillOfRow_(std::move(stillOfRow)) {
  connect(&stills, &StillService::Ready, list, [list] {
    if (auto* view = qobject_cast<QAbstractItemView*>(list)) view->viewport()->update();
  });
}

void StillDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  const QString text = std::exchange(row.text, {});
  const QStyle* style = row.widget ? row.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
  QRect still({}, kStillSize);
  still.moveLeft(row.rect.left() + 1);
  still.moveTop(row.rect.center().y() - kStillSize.height() / 2);
  PaintStill(*painter, still, index.row());
  const bool selected = row.state.testFlag(QStyle::State_Selected);
  painter->setPen(row.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect place = row.rect.adjusted(kStillSize.width() + 1 + kGap, 0, -kGap, 0);
  painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                    row.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
}

QSize StillDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QString text = index.data(Qt::DisplayRole).toString();
  const int width = std::min(option.fontMetrics.horizontalAdvance(text), kMostText);
  return {kStillSize.width() + 2 * kGap + 2 + width,
          std::max(kStillSize.height() + 2, option.fontMetrics.height())};
}

bool StillDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                              const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.data(Qt::ToolTipRole).toString().isEmpty()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), index.data(Qt::DisplayRole).toString(), view);
  return true;
}

void StillDelegate::PaintStill(QPainter& painter, QRect place, int row) const {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const StillKey key = stillOfRow_(row, place.size(), ratio);
  if (key.Members.empty()) return;
  painter.fillRect(place, Qt::black);
  const QImage still = stills_.Still(key);
  if (!still.isNull()) painter.drawImage(place.topLeft(), still);
}

void ShowStillsIn(QComboBox& box, StillService* stills, StillOfRow stillOfRow) {
  if (!stills) return;
  box.view()->setItemDelegate(new StillDelegate(box.view(), *stills, std::move(stillOfRow)));
}

}  // namespace starfolds
