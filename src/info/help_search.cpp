#include "info/help_search.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace starfolds {
namespace {

constexpr int kTopicRole = Qt::UserRole;
constexpr int kLineRole = Qt::UserRole + 1;
constexpr int kLongestText = 200;  // of the input line
constexpr int kPadding = 4;
constexpr int kLinesShown = 2;

/// Paints the title of a topic, and below it the text around the first match.
class FoundTopic : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, option.fontMetrics.height() * (1 + kLinesShown) + 2 * kPadding};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString title = item.text;
    item.text.clear();
    const QWidget* const list = item.widget;
    list->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, list);
    painter->save();
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    QRect place = item.rect.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    QFont bold = item.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(bold).elidedText(title, Qt::ElideRight, place.width()));
    place.setTop(place.top() + item.fontMetrics.height());
    painter->setFont(item.font);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                      index.data(kLineRole).toString());
    painter->restore();
  }
};

}  // namespace

HelpSearch::HelpSearch(const HelpBook& book, QWidget* parent) : QWidget(parent), book_(book) {
  auto* column = new QVBoxLayout(this);
  auto* label = new QLabel(tr("&Words to look for:"));
  txtSearch_ = new QLineEdit;
  txtSearch_->setObjectName("txtSearch");
  txtSearch_->setMaxLength(kLongestText);
  txtSearch_->setClearButtonEnabled(true);
  txtSearch_->installEventFilter(this);
  label->setBuddy(txtSearch_);
  lstFound_ = new QListWidget;
  lstFound_->setObjectName("lstFound");
  lstFound_->setAccessibleName(tr("Topics found"));
  lstFound_->setItemDelegate(new FoundTopic(lstFound_));
  lstFound_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  column->addWidget(label);
  column->addWidget(txtSearch_);
  column->addWidget(lstFound_, 1);

  connect(txtSearch_, &QLineEdit::textChanged, this, &HelpSearch::Find);
  connect(txtSearch_, &QLineEdit::returnPressed, this, [this] { Choose(lstFound_->item(0)); });
  connect(lstFound_, &QListWidget::itemActivated, this, &HelpSearch::Choose);
  connect(lstFound_, &QListWidget::itemClicked, this, &HelpSearch::Choose);
}

void HelpSearch::Begin() {
  txtSearch_->setFocus(Qt::ShortcutFocusReason);
  txtSearch_->selectAll();
}

void HelpSearch::Find() {
  lstFound_->clear();
  for (const HelpBook::Hit& hit : book_.Search(txtSearch_->text())) {
    auto* item = new QListWidgetItem(book_.Title(hit.Topic), lstFound_);
    item->setData(kTopicRole, hit.Topic);
    item->setData(kLineRole, hit.Line);
  }
  if (lstFound_->count() > 0 || Words().isEmpty()) return;
  auto* nothing = new QListWidgetItem(tr("No topic contains these words."), lstFound_);
  nothing->setFlags(Qt::NoItemFlags);
}

void HelpSearch::Choose(const QListWidgetItem* item) {
  if (item && item->data(kTopicRole).isValid()) emit TopicChosen(item->data(kTopicRole).toInt());
}

bool HelpSearch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {  // NOLINT: the event type is checked
    lstFound_->setFocus();
    lstFound_->setCurrentRow(0);
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace starfolds
