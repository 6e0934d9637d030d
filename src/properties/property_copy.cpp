#include "properties/property_copy.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>

#include "colour/tables.h"
#include "desktop/translation.h"
#include "numbers/text.h"
#include "properties/property_copy_table.h"

namespace starfolds {
namespace {

constexpr int kAllRoom = 1000;  // stretch factor, against the empty space beside the other two

}  // namespace

PropertyCopy::PropertyCopy(const PropsModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      property_(new QComboBox(this)),
      valueLabel_(new QLabel(tr("Val&ue:"), this)),
      range_(new QLabel(this)),
      text_(new NumberBox(this)),
      choice_(new QComboBox(this)),
      check_(new QCheckBox(this)),
      copy_(new QPushButton(tr("&Copy to All"), this)) {
  property_->setObjectName("cboPropCopyList");
  range_->setObjectName("lblPropCopy");
  text_->SetNames("PropCopy");
  choice_->setObjectName("cboPropCopy");
  check_->setObjectName("chkPropCopy");
  copy_->setObjectName("cmdPropCopy");
  for (const CopyRow& row : CopyRows()) property_->addItem(Translated(EntryText(row)));
  property_->setCurrentIndex(-1);
  LayOut();
  ConnectControls();
  SetupPropCopyValue(-1);
}

void PropertyCopy::LayOut() {
  auto* propertyLabel = new QLabel(tr("Propert&y:"), this);
  propertyLabel->setBuddy(property_);
  copy_->setAutoDefault(false);
  QSizePolicy keepsItsLine = valueLabel_->sizePolicy();
  keepsItsLine.setRetainSizeWhenHidden(true);
  valueLabel_->setSizePolicy(keepsItsLine);
  copy_->setAccessibleDescription(tr("Writes the value into all fifty types of starfold"));
  for (QComboBox* box : {property_, choice_}) {
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(20);
    box->setMaxVisibleItems(20);
  }
  // One of the three is visible at a time, in the same place.
  auto* value = new QHBoxLayout;
  value->addWidget(range_);
  value->addWidget(text_);
  value->addWidget(choice_, kAllRoom);
  value->addWidget(check_);
  value->addStretch(1);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(propertyLabel, 0, 0);
  grid->addWidget(property_, 0, 1);
  grid->addWidget(valueLabel_, 1, 0);
  grid->addLayout(value, 1, 1);
  grid->addWidget(copy_, 2, 1, Qt::AlignRight);
  grid->setColumnStretch(1, 1);
  grid->setRowMinimumHeight(1, std::max(text_->sizeHint().height(), choice_->sizeHint().height()));
  grid->setRowStretch(3, 1);
}

void PropertyCopy::ConnectControls() {
  for (QWidget* box : std::initializer_list<QWidget*>{property_, text_, choice_, check_}) {
    SetReturnButton(*box, *copy_);
  }
  connect(property_, &QComboBox::currentIndexChanged, this, &PropertyCopy::SetupPropCopyValue);
  connect(text_, &NumberBox::Left, this, &PropertyCopy::ClampPropCopyValue);
  // The mnemonic presses the button without taking the focus from the box.
  connect(copy_, &QPushButton::clicked, this, [this] {
    if (HasValue()) ClampPropCopyValue();
    CopyPropertyToAllProfiles();
  });
}

void PropertyCopy::SetupPropCopyValue(int position) {
  for (QWidget* control : std::initializer_list<QWidget*>{text_, choice_, check_}) control->hide();
  text_->SetText({});
  choice_->clear();
  check_->setChecked(false);
  check_->setText({});
  range_->clear();
  range_->hide();
  valueLabel_->setVisible(position >= 0);
  const auto rows = CopyRows();
  if (position < 0 || position >= static_cast<int>(rows.size())) {
    text_->SetNoRange();
    return;
  }
  const CopyRow& row = rows[position];
  switch (row.Control) {
    case CopyControl::Text: ShowTextBox(row); break;
    case CopyControl::Choice: ShowChoices(row); break;
    case CopyControl::Check: ShowCheckBox(row); break;
  }
}

void PropertyCopy::ShowTextBox(const CopyRow& row) {
  const NumberRange range = RangeOf(row);
  text_->SetRange(range);
  range_->setText(Translated(RangeText(range)));
  range_->show();
  ShowValueControl(*text_, row);
}

/// Qt selects the first entry that is added.
void PropertyCopy::ShowChoices(const CopyRow& row) {
  for (const std::string_view name : row.Choices()) choice_->addItem(Translated(name));
  ShowValueControl(*choice_, row);
}

void PropertyCopy::ShowCheckBox(const CopyRow& row) {
  check_->setText(tr("Control Point Loop is Closed?"));
  ShowValueControl(*check_, row);
}

void PropertyCopy::ShowValueControl(QWidget& control, const CopyRow& row) {
  control.setAccessibleName(Translated(EntryText(row)));
  valueLabel_->setBuddy(&control);
  control.show();
}

void PropertyCopy::ClampPropCopyValue() {
  if (!text_->isHidden() && Row()) text_->ClampTextField();
}

void PropertyCopy::CopyPropertyToAllProfiles() {
  const CopyRow* row = Row();
  if (!row) {
    model_.Inform(tr("Please select a Property to copy."));
    property_->setFocus();
    return;
  }
  if (!HasValue()) {
    AskForValue();
    return;
  }
  if (!row->Target) return;
  emit AboutToChange(tr("Copy of %1").arg(Translated(EntryText(*row))));
  const int types = TypesSetBy(*row, model_.Profiles());
  CopyProperty(*row, Value(), model_.Profiles());
  ProcessState& process = model_.Process;
  BuildFlareTables(process.Colours, process.Profiles, process.Universe.Universe_HW_Start,
                   process.Universe.Universe_HW_End);
  BuildHueWheels(process.Colours, process.Profiles);
  emit Copied(types);
}

const CopyRow* PropertyCopy::Row() const {
  const int position = property_->currentIndex();
  return position < 0 ? nullptr : &CopyRows()[position];
}

bool PropertyCopy::HasValue() const {
  if (!check_->isHidden()) return true;
  if (!choice_->isHidden()) return choice_->currentIndex() >= 0;
  return !text_->isHidden() && !Trimmed(text_->Text()).empty();
}

Single PropertyCopy::Value() const {
  if (!choice_->isHidden()) return static_cast<Single>(choice_->currentIndex());
  if (!text_->isHidden()) return static_cast<Single>(LenientNumber(text_->Text()));
  return check_->isChecked() ? 1 : 0;
}

void PropertyCopy::AskForValue() {
  const bool fromList = !choice_->isHidden();
  model_.Inform(fromList ? tr("Please select a Property value.")
                         : tr("Please enter a Property value."));
  if (fromList) {
    choice_->setFocus();
  } else {
    text_->setFocus();
  }
}

}  // namespace starfolds
