#include "widgets/lines.h"

#include <QHBoxLayout>
#include <QRegularExpression>

#include "desktop/translation.h"
#include "widgets/dialog_model.h"
#include "widgets/range_label.h"

namespace starfolds {
namespace {

constexpr int kLabelColumn = 0;
constexpr int kBoxColumn = 1;
constexpr int kColumns = 2;
constexpr int kSpacing = 6;
constexpr int kMostCharacters = 56;  // maximum width of a list of choices

bool CanGrow(const QWidget* widget) {
  const QSizePolicy::Policy policy = widget->sizePolicy().horizontalPolicy();
  return policy != QSizePolicy::Fixed && policy != QSizePolicy::Minimum;
}

}  // namespace

QLabel* AddLine(QGridLayout& page, const QString& label, QWidget* buddy,
                const std::vector<QWidget*>& widgets) {
  const int row = page.rowCount();
  auto* text = new RangeLabel(label, page.parentWidget());
  text->setBuddy(buddy);
  if (buddy && buddy->accessibleName().isEmpty()) buddy->setAccessibleName(SpokenLabel(label));
  page.addWidget(text, row, kLabelColumn);
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(kSpacing);
  for (QWidget* widget : widgets) boxes->addWidget(widget, CanGrow(widget) ? 1 : 0);
  boxes->addStretch(0);  // boxes of fixed width stay next to their label
  page.addLayout(boxes, row, kBoxColumn);
  return text;
}

QString SpokenLabel(const QString& label) {
  static const QRegularExpression range(R"(\([^()]*\))");
  QString spoken = label.simplified();
  spoken.remove(range).replace("&&", "\n").remove('&').replace('\n', '&').remove(':');
  return spoken.simplified();
}

void AddWideLine(QGridLayout& page, QWidget* widget) {
  page.addWidget(widget, page.rowCount(), kLabelColumn, 1, kColumns);
}

void AddHeading(QGridLayout& page, const QString& text) {
  auto* heading = new QLabel(text);
  heading->setTextFormat(Qt::PlainText);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  if (page.rowCount() > 1) heading->setContentsMargins(0, kSpacing, 0, 0);
  AddWideLine(page, heading);
}

void SetLabelWidth(QGridLayout& page, int width) {
  page.setColumnMinimumWidth(kLabelColumn, width);
}

QGridLayout* MakePage(QWidget* page) {
  auto* grid = new QGridLayout(page);
  grid->setColumnStretch(kBoxColumn, 1);
  grid->setVerticalSpacing(kSpacing);
  return grid;
}

void EndPage(QGridLayout& page) { page.setRowStretch(page.rowCount(), 1); }

QLabel* MakeSamplePlace(const char* name, const QString& description, QSize size) {
  auto* place = new QLabel;
  place->setObjectName(name);
  place->setAccessibleName(description);
  place->setFixedSize(size);
  return place;
}

void ShowSample(QLabel* place, const QImage& sample) {
  place->setPixmap(QPixmap::fromImage(sample));
}

void LetShrink(QComboBox* list) {
  constexpr int characters = 14;
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(characters);
  list->setMaximumWidth(list->fontMetrics().averageCharWidth() * kMostCharacters);
}

QString Escaped(std::string_view text) { return Shown(text).replace("&", "&&"); }

QString EscapedTranslation(std::string_view text) { return Translated(text).replace("&", "&&"); }

}  // namespace starfolds
