#include "widgets/body_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "numbers/text.h"

namespace starfolds {
namespace {

constexpr int kWeightCharacters = 4;
constexpr int kLeastBlanks = 3;
constexpr int kNameTwips = 2400;
constexpr int kTwipsPerInch = 1440;

// Logical pixels.
constexpr int kEdge = 4;
constexpr int kGap = 6;
constexpr int kBarHeight = 5;
constexpr int kDot = 6;  // diameter of the mark of a changed entry
constexpr QSize kRowStill{40, 30};
constexpr QSize kGridStill{80, 60};

constexpr qreal kDimmed = 0.5;  // opacity of what no universe shows

enum Role { kNameRole = Qt::UserRole, kWeightRole, kChangedRole };

QString ShareText(double share) {
  return QString::number(share * 100, 'f', share < 0.1 ? 1 : 0) + " %";
}

}  // namespace

/// Paints an entry as a row or as a cell of the grid.
class BodyList::EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  StillDelegate* Stills = nullptr;
  bool Grid = false;
  // Up to date while the list is painted.
  int Total = 0;     // the sum of all weights
  int Heaviest = 0;  // of this list

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    const int line = option.fontMetrics.height();
    if (Grid) {
      return kGridStill + QSize(2 * kEdge, 2 * kEdge + line + kGap + kBarHeight);
    }
    const int lines = line + kEdge / 2 + std::max(kBarHeight, SmallHeight(option));
    return {kRowStill.width(), std::max(kRowStill.height(), lines) + kEdge};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle* style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    // Styles highlight only the text and the icon of a cell.
    const bool selected = row.state.testFlag(QStyle::State_Selected);
    if (Grid && selected) painter->fillRect(row.rect, row.palette.color(QPalette::Highlight));
    const int weight = index.data(kWeightRole).toInt();
    painter->save();
    if ((weight == 0 && !selected) || !row.state.testFlag(QStyle::State_Enabled)) {
      painter->setOpacity(kDimmed);
    }
    painter->setPen(TextColour(row));
    if (Grid) {
      PaintCell(*painter, row, index);
    } else {
      PaintRow(*painter, row, index);
    }
    painter->restore();
  }

 private:
  static QColor TextColour(const QStyleOptionViewItem& row) {
    const bool selected = row.state.testFlag(QStyle::State_Selected);
    return row.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
  }

  static QFont SmallFont(const QStyleOptionViewItem& row) {
    QFont small = row.font;
    small.setPointSizeF(small.pointSizeF() * 0.85);
    return small;
  }
  static int SmallHeight(const QStyleOptionViewItem& row) {
    return QFontMetrics(SmallFont(row)).height();
  }

  double Share(const QModelIndex& index) const {
    return Total > 0 ? static_cast<double>(index.data(kWeightRole).toInt()) / Total : 0;
  }

  /// Elided at the right, with the mark in front if the entry was changed.
  static void PaintName(QPainter& painter, const QStyleOptionViewItem& row,
                        const QModelIndex& index, QRect place, Qt::Alignment alignment) {
    if (index.data(kChangedRole).toBool()) {
      painter.save();
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setBrush(TextColour(row));
      painter.drawEllipse(place.left(), place.center().y() - kDot / 2, kDot, kDot);
      painter.restore();
      place.setLeft(place.left() + kDot + kGap / 2);
    }
    painter.drawText(place, alignment | Qt::AlignVCenter,
                     row.fontMetrics.elidedText(index.data(kNameRole).toString(), Qt::ElideRight,
                                                place.width()));
  }

  /// Full for the heaviest body. A weight that is not 0 is at least visible.
  void PaintBar(QPainter& painter, const QStyleOptionViewItem& row, const QModelIndex& index,
                QRect place) const {
    const int weight = index.data(kWeightRole).toInt();
    QColor back = TextColour(row);
    back.setAlphaF(0.18F);
    painter.fillRect(place, back);
    const bool selected = row.state.testFlag(QStyle::State_Selected);
    const auto ink = selected ? QPalette::HighlightedText : QPalette::Highlight;
    const int filled =
        weight > 0 ? std::max(2, place.width() * weight / std::max(weight, Heaviest)) : 0;
    painter.fillRect(QRect(place.topLeft(), QSize(filled, place.height())), row.palette.color(ink));
  }

  void PaintRow(QPainter& painter, const QStyleOptionViewItem& row,
                const QModelIndex& index) const {
    QRect rest = row.rect.adjusted(kEdge, kEdge / 2, -kEdge, -kEdge / 2);
    if (Stills) {
      QRect still({}, kRowStill);
      still.moveTopLeft({rest.left(), rest.center().y() - kRowStill.height() / 2});
      Stills->PaintStill(painter, still, index.row());
      rest.setLeft(still.right() + kGap);
    }
    const QString weight = QString::number(index.data(kWeightRole).toInt());
    QRect first(rest.topLeft(), QSize(rest.width(), row.fontMetrics.height()));
    painter.drawText(first, Qt::AlignRight | Qt::AlignVCenter, weight);
    first.setRight(first.right() - row.fontMetrics.horizontalAdvance(weight) - 2 * kGap);
    PaintName(painter, row, index, first, Qt::AlignLeft);

    const QFont small = SmallFont(row);
    const QFontMetrics metrics(small);
    const QRect second = rest.adjusted(0, rest.height() - metrics.height(), 0, 0);
    painter.setFont(small);
    painter.drawText(second, Qt::AlignRight | Qt::AlignVCenter, ShareText(Share(index)));
    QRect bar(second.left(), second.center().y() - kBarHeight / 2, 0, kBarHeight);
    bar.setRight(second.right() - metrics.horizontalAdvance("100.0 %") - kGap);
    PaintBar(painter, row, index, bar);
  }

  void PaintCell(QPainter& painter, const QStyleOptionViewItem& row,
                 const QModelIndex& index) const {
    const QRect cell = row.rect.adjusted(kEdge, kEdge, -kEdge, -kEdge);
    QRect still({}, kGridStill);
    still.moveTopLeft({cell.center().x() - kGridStill.width() / 2, cell.top()});
    if (Stills) Stills->PaintStill(painter, still, index.row());
    const QRect name(cell.left(), still.bottom() + 1, cell.width(), row.fontMetrics.height());
    PaintName(painter, row, index, name, Qt::AlignHCenter);
    PaintBar(painter, row, index, {cell.left(), name.bottom() + 2, cell.width(), kBarHeight});
  }
};

BodyList::BodyList(QWidget* parent) : QListWidget(parent), delegate_(new EntryDelegate(this)) {
  setItemDelegate(delegate_);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  verticalScrollBar()->setSingleStep(kRowStill.height() / 2);
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* entry) { emit Opened(row(entry)); });
}

void BodyList::ShowStills(StillService* stills, StillOfRow stillOfRow) {
  if (!stills) return;
  delegate_->Stills = new StillDelegate(this, *stills, std::move(stillOfRow));
}

void BodyList::AddEntry(const std::string& name, int weight) {
  auto* item = new QListWidgetItem;
  SetEntry(*item, name, weight);
  addItem(item);
  ApplyFilter(count() - 1);
}

void BodyList::ReplaceEntry(int position, const std::string& name, int weight) {
  if (QListWidgetItem* entry = item(position)) SetEntry(*entry, name, weight);
}

std::string BodyList::EntryName(int position) const {
  const QListWidgetItem* entry = item(position);
  return entry ? entry->text().chopped(kWeightCharacters).trimmed().toStdString() : std::string();
}

int BodyList::Selected() const { return selectedItems().isEmpty() ? -1 : currentRow(); }

int BodyList::Heaviest() const {
  int heaviest = -1;
  int most = 0;
  for (int i = 0; i < count(); ++i) {
    const int weight = item(i)->data(kWeightRole).toInt();
    if (weight > most) heaviest = i;
    most = std::max(most, weight);
  }
  return heaviest;
}

int BodyList::Weights() const {
  int sum = 0;
  for (int i = 0; i < count(); ++i) sum += item(i)->data(kWeightRole).toInt();
  return sum;
}

void BodyList::SetOtherWeights(int weights) {
  otherWeights_ = weights;
  viewport()->update();
}

void BodyList::MarkChanged(int position, bool changed) {
  if (QListWidgetItem* entry = item(position)) entry->setData(kChangedRole, changed);
}

void BodyList::SetFilter(const QString& text) {
  filter_ = text.trimmed();
  for (int i = 0; i < count(); ++i) ApplyFilter(i);
  if (currentItem()) scrollToItem(currentItem());
}

void BodyList::ApplyFilter(int position) {
  const QString name = item(position)->data(kNameRole).toString();
  setRowHidden(position, !name.contains(filter_, Qt::CaseInsensitive));
}

void BodyList::ShowAsGrid(bool grid) {
  delegate_->Grid = grid;
  setViewMode(grid ? IconMode : ListMode);
  setMovement(Static);  // an entry's position is the number of its body
  setResizeMode(Adjust);
  setWrapping(grid);
  for (int i = 0; i < count(); ++i) ApplyFilter(i);  // Qt shows all rows in a new mode
  scheduleDelayedItemsLayout();
  if (currentItem()) scrollToItem(currentItem());
}

void BodyList::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn) return QListWidget::keyPressEvent(event);
  event->accept();
  if (Selected() >= 0) emit Opened(Selected());
}

void BodyList::paintEvent(QPaintEvent* event) {
  delegate_->Total = Weights() + otherWeights_;
  const int heaviest = Heaviest();
  delegate_->Heaviest = heaviest < 0 ? 0 : item(heaviest)->data(kWeightRole).toInt();
  QListWidget::paintEvent(event);
}

void BodyList::SetEntry(QListWidgetItem& item, const std::string& name, int weight) {
  const QString shownName = QString::fromStdString(name);
  const QString shownWeight = QString::number(weight);
  const QFontMetrics metrics(font());
  const int column = kNameTwips * logicalDpiX() / kTwipsPerInch;
  const int room = column - metrics.horizontalAdvance(shownName);
  const int blanks = std::max(kLeastBlanks, room / std::max(1, metrics.horizontalAdvance(' ')));
  item.setText(shownName + QString(blanks, ' ') + shownWeight.rightJustified(kWeightCharacters));
  item.setData(kNameRole, shownName);
  item.setData(kWeightRole, weight);
  item.setToolTip(shownName);  // the painted name may be elided
  item.setData(Qt::AccessibleTextRole, shownName + ", " + shownWeight);
}

}  // namespace starfolds
