#include "properties/composite_editor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/translation.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/dialog_rows.h"
#include "settings/registry.h"
#include "widgets/picture_box.h"
#include "widgets/still_delegate.h"

namespace starfolds {
namespace {

constexpr NumberRange kPercents{NumberKind::AsInteger, 0, 9999};
constexpr Colour kWarning = 0xFFFF00;
constexpr int kLabelGap = 3;         // logical pixels between a label and its control
constexpr int kGroupGap = 5;         // additional space between two such pairs
constexpr int kNameCharacters = 16;  // of a type's name that are always visible
constexpr std::string_view kIfsNote =
    STARFOLDS_TEXT("Two or more of the selected Starfold Types have a Style of IFS.");

QColor Halfway(const QColor& a, const QColor& b) {
  return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

/// Shows selected entries with a check mark. A highlight is hard to find in a long list with few
/// selected entries.
class TickDelegate : public QStyledItemDelegate {
 public:
  TickDelegate(QListWidget* list, const PropsModel& model)
      : QStyledItemDelegate(list), model_(model) {
    if (!model.Stills) return;
    connect(model.Stills, &StillService::Ready, list->viewport(), qOverload<>(&QWidget::update));
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowAir);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool selected = option->state.testFlag(QStyle::State_Selected);
    option->features |= QStyleOptionViewItem::HasCheckIndicator;
    option->checkState = selected ? Qt::Checked : Qt::Unchecked;
    option->state.setFlag(QStyle::State_Selected, false);
    // Qt draws the frame of an empty box in a shade of the window, which is invisible if dark.
    option->palette.setColor(QPalette::Window, Halfway(option->palette.color(QPalette::Text),
                                                       option->palette.color(QPalette::Base)));
    if (model_.Stills) AddStill(*option, index.row());
  }

 private:
  static constexpr int kRowAir = 2;
  static constexpr QSize kStill{32, 24};

  void AddStill(QStyleOptionViewItem& option, int row) const {
    const qreal ratio = option.widget ? option.widget->devicePixelRatioF() : 1;
    const QImage still = model_.Stills->Still(StillOf(model_.Profiles()[row], kStill, ratio));
    option.features |= QStyleOptionViewItem::HasDecoration;
    option.decorationSize = kStill;
    option.icon = still.isNull() ? QIcon() : QIcon(QPixmap::fromImage(still));
  }

  PropsModel model_;
};

QBoxLayout* Line(std::initializer_list<QWidget*> widgets) {
  auto* line = new QHBoxLayout;
  for (QWidget* widget : widgets) line->addWidget(widget);
  const bool alone = widgets.size() == 1;
  if (alone && qobject_cast<NumberBox*>(*widgets.begin())) line->addStretch();
  return line;
}

/// A label with its control below it.
void AddGroup(QBoxLayout& column, const QString& text, std::initializer_list<QWidget*> line,
              int stretch = 0) {
  QWidget* control = *line.begin();
  auto* label = new QLabel(text, control->parentWidget());
  label->setBuddy(control);
  label->setWordWrap(true);
  if (!column.isEmpty()) column.addSpacing(kGroupGap);
  column.addWidget(label);
  column.addLayout(Line(line), stretch);
}

}  // namespace

CompositeEditor::CompositeEditor(const PropsModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      list_(new BodyList(this)),
      resetPercent_(new NumberBox(this)),
      reset_(new QPushButton(tr("&Set All"), this)),
      name_(new NameBox(this)),
      percent_(new NumberBox(this)),
      major_(new QComboBox(this)),
      minors_(new QListWidget(this)),
      preview_(new QPushButton(tr("Preview Comp"), this)),
      commit_(new QPushButton(tr("Comm&it"), this)) {
  NameControls();
  percent_->SetRange(kPercents);
  resetPercent_->SetRange(kPercents);
  resetPercent_->SetBlankAllowed();
  // A long name must not make the page wider.
  major_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  major_->setMinimumContentsLength(kNameCharacters);
  minors_->setSelectionMode(QAbstractItemView::MultiSelection);
  minors_->setItemDelegate(new TickDelegate(minors_, model_));
  minors_->setUniformItemSizes(true);
  minors_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  LayOut();
  ShowStills();
  ConnectControls();
  Rebuild();
}

void CompositeEditor::NameControls() {
  list_->setObjectName("lstCompStarfold");
  resetPercent_->SetNames("ResetCompPct");
  reset_->setObjectName("cmdResetCompPct");
  name_->setObjectName("txtCompFoldName");
  percent_->SetNames("CompFoldPct");
  major_->setObjectName("cboCompMajor");
  minors_->setObjectName("lstCompMinor");
  preview_->setObjectName("cmdPreviewComp");
  commit_->setObjectName("cmdCompCommit");
  reset_->setAccessibleDescription(tr("Gives all composites this relative percent"));
  minors_->setAccessibleDescription(tr("Space chooses a type or lets it go"));
}

void CompositeEditor::LayOut() {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(12);
  columns->addLayout(ListColumn(), 6);
  columns->addLayout(EditColumn(), 5);
}

QBoxLayout* CompositeEditor::ListColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kLabelGap);
  AddGroup(*column, tr("Com&posites:"), {list_}, 1);
  AddGroup(*column, tr("Relative % of a&ll (0 - 9999):"), {resetPercent_, reset_});
  return column;
}

QBoxLayout* CompositeEditor::EditColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kLabelGap);
  AddGroup(*column, tr("Na&me:"), {name_});
  AddGroup(*column, tr("Relati&ve % (0 - 9999):"), {percent_});
  AddGroup(*column, tr("Ma&jor Starfold Type:"), {major_});
  AddGroup(*column, tr("Min&or Starfold Types:"), {minors_}, 1);
  column->addSpacing(kGroupGap);
  column->addLayout(Line({preview_, commit_}));
  return column;
}

void CompositeEditor::ConnectControls() {
  for (QPushButton* button : {reset_, preview_, commit_}) button->setAutoDefault(false);
  for (QWidget* box : std::initializer_list<QWidget*>{name_, percent_, major_, minors_}) {
    SetReturnButton(*box, *commit_);
  }
  SetReturnButton(*resetPercent_, *reset_);
  connect(list_, &QListWidget::itemSelectionChanged, this, &CompositeEditor::ShowSelected);
  connect(major_, &QComboBox::currentIndexChanged, this, &CompositeEditor::PaintWarning);
  connect(minors_, &QListWidget::itemSelectionChanged, this, &CompositeEditor::PaintWarning);
  connect(major_, &QComboBox::currentIndexChanged, this, &CompositeEditor::SetEdited);
  connect(minors_, &QListWidget::itemSelectionChanged, this, &CompositeEditor::SetEdited);
  connect(name_, &QLineEdit::textChanged, this, &CompositeEditor::SetEdited);
  connect(percent_, &NumberBox::Changed, this, &CompositeEditor::SetEdited);
  connect(name_, &QLineEdit::editingFinished, this, &CompositeEditor::StoreEdited);
  connect(percent_, &NumberBox::Left, this, &CompositeEditor::StoreEdited);
  connect(list_, &BodyList::Opened, name_, qOverload<>(&QWidget::setFocus));
  connect(commit_, &QPushButton::clicked, this, &CompositeEditor::Commit);
  connect(reset_, &QPushButton::clicked, this, &CompositeEditor::ResetPercents);
  connect(preview_, &QPushButton::clicked, this, &CompositeEditor::PreviewRequested);
}

void CompositeEditor::ShowStills() {
  list_->ShowStills(model_.Stills, [this](int row, QSize size, qreal ratio) {
    return StillOf(model_.Composites()[row], model_.Profiles(), size, ratio);
  });
  ShowStillsIn(*major_, model_.Stills, [this](int row, QSize size, qreal ratio) {
    return StillOf(model_.Profiles()[row], size, ratio);
  });
}

void CompositeEditor::Rebuild() {
  shown_ = -1;  // its record has changed
  list_->clear();
  for (const CompositeProfile& composite : model_.Composites()) {
    list_->AddEntry(composite.CompFoldName, composite.CompFoldPct);
  }
  ClearEditor();
}

void CompositeEditor::SetBodies(const std::vector<std::string>& names) {
  const int count = std::min(static_cast<int>(names.size()), kProfileCount);
  loading_ = true;
  const int major = major_->currentIndex();
  for (int i = 0; i < count; ++i) {
    const QString name = Shown(names[i]);
    if (i < major_->count()) {
      major_->setItemText(i, name);
      minors_->item(i)->setText(name);
    } else {
      major_->addItem(name);
      minors_->addItem(name);
    }
    major_->setItemData(i, name, Qt::ToolTipRole);  // it may be cut
    minors_->item(i)->setToolTip(name);
  }
  while (major_->count() > count) {
    major_->removeItem(major_->count() - 1);
    delete minors_->takeItem(minors_->count() - 1);
  }
  major_->setCurrentIndex(major < count ? major : -1);  // Qt selects the first entry that is added
  loading_ = false;
  PaintWarning();  // the style of a type may have changed
}

void CompositeEditor::ClearEditor() {
  shown_ = -1;
  loading_ = true;
  list_->clearSelection();
  minors_->clearSelection();
  major_->setCurrentIndex(-1);
  name_->clear();
  percent_->SetText({});
  loading_ = false;
  edited_ = false;
}

int CompositeEditor::Selected() const { return list_->Selected(); }

void CompositeEditor::ShowSelected() {
  StoreEdited();
  shown_ = Selected();
  if (shown_ < 0) return;
  loading_ = true;
  const CompositeProfile& composite = model_.Composites()[shown_];
  name_->ShowName(Shown(composite.CompFoldName));
  name_->setCursorPosition(0);  // shows the beginning of a long one
  percent_->SetText(NumberText(Long{composite.CompFoldPct}));
  ChooseMembers(composite);
  loading_ = false;
  edited_ = false;
}

void CompositeEditor::SetEdited() {
  if (!loading_ && shown_ >= 0) edited_ = true;
}

void CompositeEditor::ChooseMembers(const CompositeProfile& composite) {
  minors_->clearSelection();
  major_->setCurrentIndex(composite.MemberCount() > 0 ? composite.CompFold_Type[0] : -1);
  for (int i = 1; i < composite.MemberCount(); ++i) {
    if (QListWidgetItem* minor = minors_->item(composite.CompFold_Type[i])) {
      minor->setSelected(true);
    }
  }
}

void CompositeEditor::Commit() {
  const int selected = Selected();
  if (selected < 0) return;
  if (major_->currentIndex() < 0) {
    model_.Inform(tr("Please select a Major Starfold Type."));
    major_->setFocus();
    return;
  }
  percent_->ClampTextField();
  if (MixesIfs()) {
    model_.Inform(
        tr("Note:\n\nTwo or more of the selected Starfold Types have a Style of IFS.\n"
           "This may result in strange looking Starfolds."));
  }
  shown_ = selected;
  Store();
}

void CompositeEditor::StoreEdited() {
  if (edited_ && shown_ >= 0) Store();
}

void CompositeEditor::Store() {
  CompositeProfile& composite = model_.Composites()[shown_];
  emit AboutToChange(tr("Composite %1").arg(Shown(composite.CompFoldName)));
  edited_ = false;
  percent_->ClampTextField();
  composite.CompFoldName = StorableText(name_->text().toStdString());
  composite.CompFoldPct = RoundedToLimits<Integer>(LenientNumber(percent_->Text()));
  if (const std::vector<Integer> members = Members(); major_->currentIndex() >= 0) {
    composite.CompFold_Count = static_cast<Integer>(members.size());
    composite.CompFold_Type.fill(0);
    std::copy(members.begin(), members.end(), composite.CompFold_Type.begin());
  }
  ShowEntry(shown_);
  emit RecordsChanged();
}

void CompositeEditor::ResetPercents() {
  if (Trimmed(resetPercent_->Text()).empty()) {
    model_.Inform(tr("Please enter a value for the Reset percent."));
    resetPercent_->setFocus();
    return;
  }
  resetPercent_->ClampTextField();
  StoreEdited();
  const std::string text = resetPercent_->Text();
  emit AboutToChange(tr("Percent of All Composites"));
  for (int i = 0; i < kCompositeCount; ++i) {
    model_.Composites()[i].CompFoldPct = RoundedToLimits<Integer>(LenientNumber(text));
    ShowEntry(i);
  }
  loading_ = true;
  if (Selected() >= 0) percent_->SetText(text);
  loading_ = false;
  emit RecordsChanged();
}

void CompositeEditor::ShowEntry(int position) {
  const CompositeProfile& composite = model_.Composites()[position];
  list_->ReplaceEntry(position, composite.CompFoldName, composite.CompFoldPct);
}

/// At most `kMaxMembers`.
std::vector<Integer> CompositeEditor::Members() const {
  std::vector<Integer> members;
  const int major = major_->currentIndex();
  if (major >= 0) members.push_back(static_cast<Integer>(major));
  for (int i = 0; i < minors_->count() && members.size() < kMaxMembers; ++i) {
    if (i != major && minors_->item(i)->isSelected()) members.push_back(static_cast<Integer>(i));
  }
  return members;
}

bool CompositeEditor::MixesIfs() const {
  const std::vector<Integer> members = Members();
  const auto isIfs = [this](Integer member) {
    return FactsOf(model_.Profiles()[member].Style()).IsIfs;
  };
  return std::count_if(members.begin(), members.end(), isIfs) >= 2;
}

/// Black on the warning colour, on which the light text of a dark palette would be illegible.
void CompositeEditor::PaintWarning() {
  const bool warning = MixesIfs();
  QPalette colours;
  if (warning) {
    colours.setColor(QPalette::Base, QColor(ScreenWord(kWarning)));
    colours.setColor(QPalette::Text, Qt::black);
  }
  name_->setPalette(colours);
  name_->setToolTip(warning ? Translated(kIfsNote) : QString());
  name_->setAccessibleDescription(name_->toolTip());
}

}  // namespace starfolds
