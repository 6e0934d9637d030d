// Lists with a still beside each name.
#pragma once

#include <QComboBox>
#include <QStyledItemDelegate>
#include <functional>

#include "widgets/still_service.h"

namespace starfolds {

/// The still of row `row` of a list, in the given size; a key without members for a row without a
/// body.
using StillOfRow = std::function<StillKey(int row, QSize size, qreal ratio)>;

/// Paints a still left of an entry's text. Long texts are elided, and complete in the tool tip.
class StillDelegate : public QStyledItemDelegate {
 public:
  /// `list` shows the entries; it is repainted when a still is ready. `stills` must outlive it.
  StillDelegate(QWidget* list, StillService& stills, StillOfRow stillOfRow);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

  /// Draws the still in `place`, or a black place while it is not ready; nothing without a body.
  void PaintStill(QPainter& painter, QRect place, int row) const;

 private:
  StillService& stills_;
  StillOfRow stillOfRow_;
};

/// Shows stills in the opened list of a box. `stills` must outlive it; nullptr: none.
void ShowStillsIn(QComboBox& box, StillService* stills, StillOfRow stillOfRow);

}  // namespace starfolds
