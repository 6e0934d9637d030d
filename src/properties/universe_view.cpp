#include "properties/universe_view.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "desktop/translation.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/factory.h"
#include "settings/registry.h"
#include "widgets/lines.h"
#include "widgets/page_tabs.h"
#include "widgets/samples.h"

namespace starfolds {
namespace {

using U = UniverseSettings;

constexpr NumberRange kWeightRange{NumberKind::AsInteger, 0, 9999};
constexpr int kProfileNameLength = 30;  // characters of an entry of `cboUniProfile`
constexpr int kLeastListHeight = 150;
constexpr int kAllRoom = 1000;  // stretch factor
constexpr int kLeastLabel = 200;
constexpr int kLeastShortLabel = 100;
constexpr QSize kSampleSize{160, 90};
constexpr QSize kHueSize{188, 14};

/// The Boolean settings of a universe and the names of their check boxes.
struct Check {
  Setting<UniverseSettings> What;
  const char* Name;
};
constexpr Check kChecks[] = {{&U::Universe_Tour, "chkUniTour"},
                             {&U::Universe_GVisit, "chkVisitSeq"},
                             {&U::Universe_RotCam, "chkRotCamera"}};

constexpr Setting<U> kProfileSetting = &U::Universe_Profile;
constexpr Setting<U> kHueSetting = &U::Universe_HW_Start;
constexpr Setting<U> kTourListSetting = &U::Universe_GS_Idx;

constexpr const char* kGravityNote = STARFOLDS_TEXT(
    "Note:  The time required to compute the gravitational attraction \n"
    "between Starfolds is related to the Square of the number of Starfolds \n"
    "in the Universe.  Entering 0 will ensure that gravity computations are \n"
    "bypassed entirely.  See the Online help for more information.\n"
    "Comets will NOT appear in any of the Starfolds if a non-zero Gravity is entered.");

/// In a narrow window the text takes two lines.
void LetWrap(QLabel& label, int leastWidth) {
  label.setWordWrap(true);
  label.setMinimumWidth(leastWidth);
}

/// The profiles that `picUniProfile` shows for a position of its list, and where: one, or for the
/// two that cycle through all profiles some of them.
std::vector<std::pair<int, QRect>> TilesOfSample(int position) {
  if (position < kProfileCount) return {{std::max(position, 0), QRect({}, kSampleSize)}};
  constexpr int columns = 3;
  constexpr int rows = 2;
  constexpr int stride = 17;  // coprime to the number of profiles
  const QSize tile(kSampleSize.width() / columns, kSampleSize.height() / rows);
  std::vector<std::pair<int, QRect>> tiles;
  for (int i = 0; i < columns * rows; ++i) {
    const QPoint corner(i % columns * tile.width(), i / columns * tile.height());
    const int profile = position == kCycleRandomly ? (i + 1) * stride % kProfileCount : i;
    tiles.emplace_back(profile, QRect(corner, tile));
  }
  return tiles;
}

QGroupBox* MakeFrame(const QString& title, const char* name) {
  auto* frame = new QGroupBox(title);
  frame->setObjectName(name);
  return frame;
}

}  // namespace

UniverseView::UniverseView(const PropsModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  auto* left = new QVBoxLayout;
  left->addWidget(MakeStarfoldTypes(), 1);
  left->addWidget(MakePropertyCopy());
  columns->addLayout(left, 2);
  auto* right = new QVBoxLayout;
  right->addWidget(MakeUniverseProperties());
  right->addWidget(MakePages(), 1);
  columns->addLayout(right, 3);
  ShowStills();
  EnableTour();
}

std::string UniverseView::Text(const Field<UniverseSettings>& field) const {
  if (const auto check = checks_.find(&field); check != checks_.end()) {
    return check->second->isChecked() ? "1" : "0";
  }
  if (field.Where == kProfileSetting) return std::to_string(cboUniProfile_->currentIndex());
  if (field.Where == kTourListSetting) return cboTourStarfolds_->currentText().toStdString();
  return Box(field.Where)->Text();
}

void UniverseView::SetText(const Field<UniverseSettings>& field, const std::string& text) {
  const bool wasSetting = std::exchange(setting_, true);
  if (const auto check = checks_.find(&field); check != checks_.end()) {
    check->second->setChecked(LenientNumber(text) != 0);
  } else if (field.Where == kProfileSetting) {
    const int last = cboUniProfile_->count() - 1;
    cboUniProfile_->setCurrentIndex(ClampTo(RoundedToLimits<Long>(LenientNumber(text)), 0, last));
  } else if (field.Where == kTourListSetting) {
    cboTourStarfolds_->setEditText(Shown(text));
    tourText_ = cboTourStarfolds_->currentText();
  } else {
    Box(field.Where)->SetText(text);
  }
  setting_ = wasSetting;
}

void UniverseView::SetTexts(const std::vector<std::string>& texts) {
  std::size_t i = 0;
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    if (Text(field) != texts[i]) SetText(field, texts[i]);
    ++i;
  }
}

void UniverseView::Settle() {
  themeChoice_->Settle();
  StoreTyped();
  composites_->StoreEdited();
  for (const auto& [name, box] : boxes_) box->ClampTextField();
}

UniverseSettings UniverseView::Settings() const {
  UniverseSettings universe;
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    if (field.Where == kTourListSetting) {
      universe.Universe_GS_Idx = Text(field);
    } else {
      SetFieldNumber(universe, field, LenientNumber(Text(field)));
    }
  }
  ClampUniverse(universe);
  return universe;
}

void UniverseView::ClearProfileList() {
  typedFor_ = -1;  // its record has changed
  lstUniStarfold_->clear();
}

void UniverseView::AddProfileEntry(std::string_view name, int weight) {
  lstUniStarfold_->AddEntry(std::string(name), weight);
}

void UniverseView::RebuildProfileList() {
  const int selected = lstUniStarfold_->Selected();
  ClearProfileList();
  for (const StarfoldProfile& profile : model_.Profiles()) {
    AddProfileEntry(profile.UniFoldName, profile.UniFoldPct);
  }
  if (selected >= 0) lstUniStarfold_->setCurrentRow(selected);
  BodiesChanged();
}

void UniverseView::BodiesChanged() {
  std::vector<std::string> names;
  const int shown = cboUniProfile_->currentIndex();
  const bool wasSetting = std::exchange(setting_, true);
  cboUniProfile_->blockSignals(true);
  cboUniProfile_->clear();
  for (int i = 0; i < lstUniStarfold_->count(); ++i) {
    names.push_back(lstUniStarfold_->EntryName(i));
    const QString entry = lstUniStarfold_->item(i)->text();
    cboUniProfile_->addItem(entry.left(kProfileNameLength).trimmed());
  }
  cboUniProfile_->addItems({tr("Cycle All Randomly"), tr("Cycle All Sequentially")});
  cboUniProfile_->setCurrentIndex(shown);
  cboUniProfile_->blockSignals(false);
  composites_->SetBodies(names);

  const QString tour = cboTourStarfolds_->currentText();
  cboTourStarfolds_->clear();
  for (int i = 0; i < kBodyCount; ++i) {
    const std::string& name = i < kProfileCount
                                  ? model_.Profiles()[i].UniFoldName
                                  : model_.Composites()[i - kFirstComposite].CompFoldName;
    cboTourStarfolds_->addItem(QString::number(i + 1) + "  " + Shown(name));
  }
  cboTourStarfolds_->setCurrentIndex(-1);
  cboTourStarfolds_->setEditText(tour);
  setting_ = wasSetting;
  ShowProfileSample();
  ShowShares();
}

/// Profiles and composites share the universe.
void UniverseView::ShowShares() {
  lstUniStarfold_->SetOtherWeights(composites_->List().Weights());
  composites_->List().SetOtherWeights(lstUniStarfold_->Weights());
}

void UniverseView::ShowStills() {
  const auto body = [this](int row, QSize size, qreal ratio) {
    if (row >= kBodyCount) return StillKey{};
    if (row < kProfileCount) return StillOf(model_.Profiles()[row], size, ratio);
    return StillOf(model_.Composites()[row - kFirstComposite], model_.Profiles(), size, ratio);
  };
  if (model_.Stills) {
    connect(model_.Stills, &StillService::Ready, this, [this] {
      if (!sampleIsComplete_) ShowProfileSample();
    });
  }
  lstUniStarfold_->ShowStills(model_.Stills, body);
  ShowStillsIn(*cboTourStarfolds_, model_.Stills, body);
  ShowStillsIn(*cboUniProfile_, model_.Stills, [body](int row, QSize size, qreal ratio) {
    return row < kProfileCount ? body(row, size, ratio) : StillKey{};  // or a cycle
  });
}

void UniverseView::ApplyThemeRowToPage(std::string_view row) {
  UniverseSettings universe = Settings();
  DecodeThemeRow(universe, row);
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    SetText(field, FieldText(universe, field));
  }
  composites_->ClearEditor();
}

QWidget* UniverseView::MakeStarfoldTypes() {
  auto* frame = MakeFrame(tr("Starfold Types"), "fraStarfoldTypes");
  auto* page = MakePage(frame);
  MakeListHead(*page);
  lstUniStarfold_->setObjectName("lstUniStarfold");
  lstUniStarfold_->setAccessibleName(tr("Starfold types and their relative percent"));
  lstUniStarfold_->setMinimumHeight(kLeastListHeight);
  AddWideLine(*page, lstUniStarfold_);
  page->setRowStretch(page->rowCount() - 1, 1);

  txtUniFoldName_ = new NameBox;
  txtUniFoldName_->setObjectName("txtUniFoldName");
  AddLine(*page, tr("&Name:"), txtUniFoldName_, {txtUniFoldName_});
  txtUniFoldPct_ = new NumberBox;
  txtUniFoldPct_->SetNames("UniFoldPct");
  txtUniFoldPct_->SetRange(kWeightRange);
  auto* commit = MakeButton(tr("Commit"), "cmdFoldCommit");
  LetWrap(*AddLine(*page, tr("&Relative Percent in Universe:"), txtUniFoldPct_,
                   {txtUniFoldPct_, commit}),
          kLeastShortLabel);
  txtResetFoldPct_ = new NumberBox;
  txtResetFoldPct_->SetNames("ResetFoldPct");
  txtResetFoldPct_->SetRange(kWeightRange);
  txtResetFoldPct_->SetBlankAllowed();
  auto* reset = MakeButton(tr("Reset All"), "cmdResetFoldPct");
  reset->setToolTip(tr("Gives all 50 types this percent"));
  LetWrap(
      *AddLine(*page, tr("Reset all percents to:"), txtResetFoldPct_, {txtResetFoldPct_, reset}),
      kLeastShortLabel);
  auto* props = MakeButton(tr("Sho&w Props"), "cmdFoldProps");
  props->setToolTip(tr("Opens the properties of the selected type"));
  AddWideLine(*page, props);
  SetReturnButton(*txtUniFoldName_, *commit);
  SetReturnButton(*txtUniFoldPct_, *commit);
  SetReturnButton(*txtResetFoldPct_, *reset);

  connect(lstUniStarfold_, &QListWidget::itemSelectionChanged, this, &UniverseView::SelectBody);
  connect(lstUniStarfold_, &BodyList::Opened, this, &UniverseView::PropsAskedFor);
  connect(commit, &QPushButton::clicked, this, &UniverseView::CommitBody);
  connect(txtUniFoldName_, &QLineEdit::editingFinished, this, &UniverseView::StoreTyped);
  connect(txtUniFoldPct_, &NumberBox::Left, this, &UniverseView::StoreTyped);
  connect(reset, &QPushButton::clicked, this, &UniverseView::ResetWeights);
  connect(props, &QPushButton::clicked, this,
          [this] { emit PropsAskedFor(lstUniStarfold_->Selected()); });
  return frame;
}

/// The filter line, and the switch between list and grid.
void UniverseView::MakeListHead(QGridLayout& page) {
  lstUniStarfold_ = new BodyList;
  auto* filter = new QLineEdit;
  filter->setObjectName("txtListFilter");
  filter->setAccessibleName(tr("Filter of the starfold types"));
  filter->setPlaceholderText(tr("Filter"));
  filter->setClearButtonEnabled(true);
  auto* grid = new QToolButton;
  grid->setObjectName("cmdListGrid");
  grid->setText(tr("Pictures"));
  grid->setToolTip(tr("Shows the types as large pictures"));
  grid->setCheckable(true);
  grid->setFocusPolicy(Qt::TabFocus);
  auto* line = new QHBoxLayout;
  line->addWidget(filter, 1);
  line->addWidget(grid);
  page.addLayout(line, page.rowCount(), 0, 1, 2);
  connect(filter, &QLineEdit::textChanged, lstUniStarfold_, &BodyList::SetFilter);
  connect(grid, &QToolButton::toggled, lstUniStarfold_, &BodyList::ShowAsGrid);
}

QWidget* UniverseView::MakePropertyCopy() {
  auto* frame = MakeFrame(tr("Copy Starfold Props to All Types"), "fraPropCopy");
  auto* layout = new QVBoxLayout(frame);
  propertyCopy_ = new PropertyCopy(model_);
  layout->addWidget(propertyCopy_);
  connect(propertyCopy_, &PropertyCopy::AboutToChange, this, &UniverseView::AboutToChange);
  connect(propertyCopy_, &PropertyCopy::Copied, this, [this](int types) {
    emit ProfilesChanged();
    emit Said(tr("Set on %1 of %2 types").arg(types).arg(kProfileCount));
  });
  return frame;
}

QWidget* UniverseView::MakeUniverseProperties() {
  auto* frame = MakeFrame(tr("Universe Properties"), "fraUniverseProps");
  auto* page = MakePage(frame);
  cboUniTheme_ = new QComboBox;
  cboUniTheme_->setObjectName("cboUniTheme");
  for (int entry = 0; entry <= kThemeCount; ++entry) {
    cboUniTheme_->addItem(Translated(FactoryThemeName(entry)));
  }
  LetShrink(cboUniTheme_);
  auto* surprise = MakeButton(tr("Surprise Me"), "cmdUniSurprise");
  surprise->setToolTip(tr("Draws a universe at random: its settings, and the types in it"));
  AddLine(*page, tr("&Theme:"), cboUniTheme_, {cboUniTheme_, surprise});
  AddRows(*page, UniversePage::Always);
  themeChoice_ = new ListChoice(*cboUniTheme_);
  connect(themeChoice_, &ListChoice::Chosen, this, &UniverseView::ThemeChosen);
  connect(surprise, &QPushButton::clicked, this, &UniverseView::SurpriseAskedFor);
  return frame;
}

QWidget* UniverseView::MakePages() {
  auto* all = new QWidget;
  auto* layout = new QVBoxLayout(all);
  layout->setContentsMargins(0, 0, 0, 0);
  cboUniExtras_ = new QComboBox;
  cboUniExtras_->setObjectName("cboUniExtras");
  cboUniExtras_->setAccessibleName(tr("Page of universe properties"));
  pages_ = new QStackedWidget;
  composites_ = new CompositeEditor(model_);
  for (int i = 0; i < kUniversePageCount; ++i) {
    const QString name = Translated(UniversePageName(i));
    cboUniExtras_->addItem(name);
    auto* frame = MakeFrame({}, qPrintable("fraUniProp_" + QString::number(i)));
    frame->setAccessibleName(name);
    auto* page = MakePage(frame);
    switch (static_cast<UniversePage>(i)) {
      case UniversePage::Creation: FillCreationPage(*page); break;
      case UniversePage::NewAndAmbient: AddRows(*page, UniversePage::NewAndAmbient); break;
      case UniversePage::Tour: FillTourPage(*page); break;
      case UniversePage::Composites:
        AddWideLine(*page, composites_);
        page->setRowStretch(page->rowCount() - 1, kAllRoom);
        break;
      case UniversePage::Gravity: FillGravityPage(*page); break;
      case UniversePage::Always: break;
    }
    EndPage(*page);
    pages_->addWidget(frame);
  }
  connect(cboUniExtras_, &QComboBox::currentIndexChanged, pages_, &QStackedWidget::setCurrentIndex);
  connect(composites_, &CompositeEditor::PreviewRequested, this,
          &UniverseView::CompositePreviewAskedFor);
  connect(composites_, &CompositeEditor::AboutToChange, this, &UniverseView::AboutToChange);
  connect(composites_, &CompositeEditor::RecordsChanged, this, &UniverseView::BodiesChanged);
  layout->addWidget(cboUniExtras_);
  layout->addWidget(MakePageTabs(*cboUniExtras_, {tr("Creation"), tr("New / Ambient"), tr("Tour"),
                                                  tr("Composites"), tr("Gravity")}));
  layout->addWidget(pages_, 1);
  return all;
}

void UniverseView::FillCreationPage(QGridLayout& page) {
  picUniHue_ = MakeSamplePlace("picUniHue", tr("Hues from start to end"), kHueSize);
  AddRows(page, UniversePage::Creation);
  for (const auto hue : {&U::Universe_HW_Start, &U::Universe_HW_End}) {
    connect(Box(hue), &NumberBox::Changed, this, &UniverseView::ShowHueSample);
  }
  cboUniProfile_ = new QComboBox;
  cboUniProfile_->setObjectName("cboUniProfile");
  LetShrink(cboUniProfile_);
  LetWrap(*AddLine(page, EscapedTranslation(FieldOf(kProfileSetting).Label), cboUniProfile_,
                   {cboUniProfile_}),
          kLeastLabel);
  picUniProfile_ =
      MakeSamplePlace("picUniProfile", tr("Sample of the universe profile"), kSampleSize);
  page.addWidget(picUniProfile_, page.rowCount(), 1);
  connect(cboUniProfile_, &QComboBox::currentIndexChanged, this, &UniverseView::ShowProfileSample);
  connect(cboUniProfile_, &QComboBox::currentIndexChanged, this, &UniverseView::NoteEdit);
}

void UniverseView::FillTourPage(QGridLayout& page) {
  for (const Check& check : kChecks) {
    auto* box = new QCheckBox(EscapedTranslation(FieldOf(check.What).Label));
    box->setObjectName(check.Name);
    checks_[&FieldOf(check.What)] = box;
  }
  QCheckBox* tour = checks_.at(&FieldOf(&U::Universe_Tour));
  QCheckBox* visit = checks_.at(&FieldOf(&U::Universe_GVisit));
  QCheckBox* rotate = checks_.at(&FieldOf(&U::Universe_RotCam));
  AddWideLine(page, tour);
  AddRows(page, UniversePage::Tour);
  rampBox_ = Box(&U::Universe_C_Ramp);
  for (QWidget* check : {visit, rotate}) AddWideLine(page, check);
  cboTourStarfolds_ = new QComboBox;
  cboTourStarfolds_->setObjectName("cboTourStarfolds");
  cboTourStarfolds_->setEditable(true);
  cboTourStarfolds_->setInsertPolicy(QComboBox::NoInsert);
  cboTourStarfolds_->setCompleter(nullptr);
  LetShrink(cboTourStarfolds_);
  ChooseOnlyInOpenedList(*cboTourStarfolds_);
  cboTourStarfolds_->lineEdit()->setMaxLength(static_cast<int>(kLongestValue));
  cboTourStarfolds_->setToolTip(tr("Choosing a body from the list adds its number"));
  auto* label = new QLabel(EscapedTranslation(FieldOf(kTourListSetting).Label));
  LetWrap(*label, kLeastLabel);
  label->setBuddy(cboTourStarfolds_);
  AddWideLine(page, label);
  AddWideLine(page, cboTourStarfolds_);
  for (QWidget* widget : {static_cast<QWidget*>(visit), static_cast<QWidget*>(rotate),
                          static_cast<QWidget*>(label), static_cast<QWidget*>(cboTourStarfolds_)}) {
    tourWidgets_.push_back(widget);
  }
  connect(tour, &QCheckBox::toggled, this, &UniverseView::EnableTour);
  connect(rotate, &QCheckBox::toggled, this, &UniverseView::EnableTour);
  connect(cboTourStarfolds_->lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { tourText_ = text; });
  connect(cboTourStarfolds_, &QComboBox::editTextChanged, this, &UniverseView::NoteEdit);
  for (QCheckBox* check : {tour, visit, rotate}) {
    connect(check, &QCheckBox::toggled, this, &UniverseView::NoteEdit);
  }
  connect(cboTourStarfolds_, &QComboBox::activated, this, &UniverseView::AddTourBody);
}

void UniverseView::FillGravityPage(QGridLayout& page) {
  AddRows(page, UniversePage::Gravity);
  auto* note = new QLabel(Translated(kGravityNote));
  note->setObjectName("lblGravityWarning");
  note->setWordWrap(true);
  AddWideLine(page, note);
}

/// Consecutive rows with the same label share a line.
void UniverseView::AddRows(QGridLayout& page, UniversePage which) {
  std::vector<const UniverseRow*> line;
  const auto label = [](const UniverseRow& row) { return FieldOf(row.What).Label; };
  for (const UniverseRow& row : UniverseRows()) {
    if (row.Page != which) continue;
    if (!line.empty() && label(*line.front()) != label(row)) {
      AddRowLine(page, line);
      line.clear();
    }
    line.push_back(&row);
  }
  AddRowLine(page, line);
}

QLabel* UniverseView::AddRowLine(QGridLayout& page, const std::vector<const UniverseRow*>& rows) {
  std::vector<QWidget*> widgets;
  for (const UniverseRow* row : rows) {
    auto* box = new NumberBox;
    box->SetNames("Uni", row->Index);
    box->SetRange(RangeOf(*row));
    connect(box, &NumberBox::Changed, this, &UniverseView::NoteEdit);
    boxes_[&FieldOf(row->What)] = box;
    widgets.push_back(box);
  }
  const std::string_view label = FieldOf(rows.front()->What).Label;
  if (rows.size() > 1) {
    for (QWidget* box : widgets) box->setAccessibleName(Translated(label));
  }
  QLabel* text = AddLine(page, EscapedTranslation(label), widgets.front(), widgets);
  LetWrap(*text, kLeastLabel);
  if (rows.front()->What == kHueSetting) page.addWidget(picUniHue_, page.rowCount(), 1);
  if (rows.front()->Page == UniversePage::Tour) {
    tourWidgets_.push_back(text);
    tourWidgets_.insert(tourWidgets_.end(), widgets.begin(), widgets.end());
  }
  return text;
}

void UniverseView::NoteEdit() {
  if (!setting_) emit Edited();
}

void UniverseView::SelectBody() {
  StoreTyped();
  const int index = lstUniStarfold_->Selected();
  typedFor_ = index;
  if (index < 0) return;
  const StarfoldProfile& profile = model_.Profiles()[index];
  txtUniFoldName_->ShowName(Shown(profile.UniFoldName));
  txtUniFoldPct_->SetText(std::to_string(profile.UniFoldPct));
  shownName_ = txtUniFoldName_->text();
  shownWeight_ = txtUniFoldPct_->Text();
}

void UniverseView::CommitBody() {
  const int index = lstUniStarfold_->Selected();
  if (index < 0) return model_.Inform(tr("Please select a Starfold Profile."));
  typedFor_ = index;
  StoreNameAndWeight();
}

/// The name box may not be able to show a name from a file as it is: it is stored only if it was
/// edited.
void UniverseView::StoreTyped() {
  if (typedFor_ < 0) return;
  const bool edited =
      txtUniFoldName_->text() != shownName_ || txtUniFoldPct_->Text() != shownWeight_;
  if (edited) StoreNameAndWeight();
}

void UniverseView::StoreNameAndWeight() {
  const int index = typedFor_;
  txtUniFoldPct_->ClampTextField();
  shownName_ = txtUniFoldName_->text();
  shownWeight_ = txtUniFoldPct_->Text();
  const auto weight = RoundedToLimits<Integer>(LenientNumber(txtUniFoldPct_->Text()));
  const std::string name(StorableText(txtUniFoldName_->text().toStdString()));
  StarfoldProfile& profile = model_.Profiles()[index];
  if (profile.UniFoldPct == weight && profile.UniFoldName == name) return;
  emit AboutToChange(tr("Name and Percent of %1").arg(Shown(profile.UniFoldName)));
  profile.UniFoldPct = weight;
  profile.UniFoldName = name;
  lstUniStarfold_->ReplaceEntry(index, profile.UniFoldName, profile.UniFoldPct);
  BodiesChanged();
}

void UniverseView::ResetWeights() {
  if (Trimmed(txtResetFoldPct_->Text()).empty()) {
    return model_.Inform(tr("Please enter a value for the Reset percent."));
  }
  txtResetFoldPct_->ClampTextField();
  StoreTyped();
  const auto weight = RoundedToLimits<Integer>(LenientNumber(txtResetFoldPct_->Text()));
  emit AboutToChange(tr("Percent of All Types"));
  for (StarfoldProfile& profile : model_.Profiles()) profile.UniFoldPct = weight;
  RebuildProfileList();
  emit Said(tr("All types have the percent %1").arg(weight));
}

void UniverseView::ShowProfileSample() {
  const int position = cboUniProfile_->currentIndex();
  const qreal ratio = devicePixelRatioF();
  if (!model_.Stills) {
    return ShowSample(picUniProfile_,
                      ProfileSample(model_.Profiles(), position, {kSampleSize, ratio}));
  }
  QImage picture(kSampleSize * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  sampleIsComplete_ = true;
  for (const auto& [profile, place] : TilesOfSample(position)) {
    StillKey key = StillOf(model_.Profiles()[profile], place.size(), ratio);
    key.Fit = true;
    const QImage still = model_.Stills->Still(key);
    if (still.isNull()) sampleIsComplete_ = false;
    painter.drawImage(place.topLeft(), still);
  }
  painter.end();
  ShowSample(picUniProfile_, picture);
}

void UniverseView::ShowHueSample() {
  const UniverseSettings universe = Settings();
  ShowSample(picUniHue_, HueWheelSample(universe.Universe_HW_Start, universe.Universe_HW_End,
                                        {kHueSize, devicePixelRatioF()}));
}

void UniverseView::EnableTour() {
  const bool tour = checks_.at(&FieldOf(&U::Universe_Tour))->isChecked();
  for (QWidget* widget : tourWidgets_) widget->setEnabled(tour);
  rampBox_->setEnabled(tour && checks_.at(&FieldOf(&U::Universe_RotCam))->isChecked());
}

/// Qt has already replaced the text by the entry.
void UniverseView::AddTourBody(int position) {
  QString text = tourText_.trimmed();
  if (!text.isEmpty()) text += ' ';
  text += QString::number(position + 1);
  cboTourStarfolds_->setCurrentIndex(-1);
  tourText_ = text;
  cboTourStarfolds_->setEditText(text);
}

NumberBox* UniverseView::Box(Setting<UniverseSettings> setting) const {
  return boxes_.at(&FieldOf(setting));
}

}  // namespace starfolds
