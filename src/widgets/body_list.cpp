#include "widgets/body_list.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

#include "numbers/text.h"

namespace starfolds {
namespace {

constexpr int kWeightCharacters = 4;
constexpr int kLeastBlanks = 3;
constexpr int kNameTwips = 2400;
constexpr int kTwipsPerInch = 1440;
constexpr int kEdge = 6;  // logical pixels between the text and the edge of its row

enum Role { kNameRole = Qt::UserRole, kWeightRole };

/// Paints the two columns.
class EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle* style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const bool selected = row.state.testFlag(QStyle::State_Selected);
    const bool enabled = row.state.testFlag(QStyle::State_Enabled);
    const auto group = enabled ? QPalette::Normal : QPalette::Disabled;
    painter->setPen(
        row.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect place = row.rect.adjusted(kEdge, 0, -kEdge, 0);
    const QString weight = index.data(kWeightRole).toString();
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter, weight);
    const int width = place.width() - row.fontMetrics.horizontalAdvance(weight) - 2 * kEdge;
    painter->drawText(
        place, Qt::AlignLeft | Qt::AlignVCenter,
        row.fontMetrics.elidedText(index.data(kNameRole).toString(), Qt::ElideRight, width));
  }
};

}  // namespace

BodyList::BodyList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new EntryDelegate(this));
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void BodyList::AddEntry(const std::string& name, int weight) {
  auto* item = new QListWidgetItem;
  SetEntry(*item, name, weight);
  addItem(item);
}

void BodyList::ReplaceEntry(int position, const std::string& name, int weight) {
  if (QListWidgetItem* entry = item(position)) SetEntry(*entry, name, weight);
}

std::string BodyList::EntryName(int position) const {
  const QListWidgetItem* entry = item(position);
  return entry ? entry->text().chopped(kWeightCharacters).trimmed().toStdString() : std::string();
}

int BodyList::Selected() const { return selectedItems().isEmpty() ? -1 : currentRow(); }

void BodyList::SetEntry(QListWidgetItem& item, const std::string& name, int weight) {
  const QString shownName = QString::fromStdString(name);
  const QString shownWeight = QString::number(weight);
  const QFontMetrics metrics(font());
  const int column = kNameTwips * logicalDpiX() / kTwipsPerInch;
  const int room = column - metrics.horizontalAdvance(shownName);
  const int blanks = std::max(kLeastBlanks, room / std::max(1, metrics.horizontalAdvance(' ')));
  item.setText(shownName + QString(blanks, ' ') + shownWeight.rightJustified(kWeightCharacters));
  item.setData(kNameRole, shownName);
  item.setData(kWeightRole, shownWeight);
  item.setToolTip(shownName);  // the painted name may be elided
  item.setData(Qt::AccessibleTextRole, shownName + ", " + shownWeight);
}

}  // namespace starfolds
