#include "properties/starfold_view.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/factory.h"
#include "widgets/lines.h"
#include "widgets/samples.h"

namespace starfolds {
namespace {

constexpr QSize kShapeSize{120, 60};
constexpr QSize kHueSize{220, 22};
constexpr Integer kDefaultColorRule = 3;  // after a style that has its own rule

// The lines with another control beside their boxes.
constexpr int kDistanceLabel = 1;
constexpr int kLevelsLabel = 90;
constexpr int kColorLabel = 7;

QComboBox* MakeList(const char* name, std::span<const std::string_view> entries) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  LetShrink(list);
  for (const std::string_view entry : entries) list->addItem(Shown(entry));
  return list;
}

}  // namespace

StarfoldView::StarfoldView(const PropsModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* head = new QHBoxLayout;
  const auto addList = [&](const QString& label, QComboBox* list) {
    auto* text = new QLabel(label);
    text->setBuddy(list);
    head->addWidget(text);
    head->addWidget(list, 1);
  };
  cboFoldTheme_ = MakeList("cboFoldTheme", {});
  cboFoldTheme_->addItem(tr("< NONE >"));
  for (int row = 0; row < kProfileCount; ++row) {
    cboFoldTheme_->addItem(Shown(FactoryProfileName(row, FactorySet::Starfolds4x)));
  }
  addList(tr("&Theme:"), cboFoldTheme_);
  cboFoldExtras_ = MakeList("cboFoldExtras", {});
  addList(tr("&Page:"), cboFoldExtras_);
  head->addStretch();
  layout->addLayout(head);
  layout->addWidget(MakePages(), 1);
  connect(cboFoldTheme_, &QComboBox::currentIndexChanged, this, &StarfoldView::ChooseTheme);
  connect(cboFoldStyle_, &QComboBox::currentIndexChanged, this, &StarfoldView::ChangeStyle);
  for (QComboBox* list : {cboFoldPlane_, cboFoldColor_}) {
    connect(list, &QComboBox::currentIndexChanged, this, &StarfoldView::ShowSamples);
  }
}

void StarfoldView::LoadProfileToPage(int index) {
  page_ = model_.Profiles()[index];
  const QSignalBlocker quiet(cboFoldTheme_);
  cboFoldTheme_->setCurrentIndex(0);
  LoadBoxes();
}

void StarfoldView::StorePageToProfile(int index) {
  StoreBoxes(page_, Numbers::Clamped);
  StarfoldProfile& profile = model_.Profiles()[index];
  // Name and weight are edited in the universe view.
  page_.UniFoldName = profile.UniFoldName;
  page_.UniFoldPct = profile.UniFoldPct;
  profile = page_;
}

void StarfoldView::TakeProfile(int index) {
  page_ = model_.Profiles()[index];
  emit Changed();
}

void StarfoldView::SetBox(int index, const std::string& text) {
  for (const StarfoldRow& row : StarfoldRows()) {
    if (row.Index == index) boxes_[&row]->SetText(text);
  }
}

StarfoldProfile StarfoldView::Page() const {
  StarfoldProfile shown = page_;
  StoreBoxes(shown, Numbers::Clamped);
  return shown;
}

void StarfoldView::ApplyStyle(int style) {
  const StyleFacts& facts = FactsOf(static_cast<Integer>(style));
  for (const Line& line : lines_) {
    bool any = false;
    for (const StarfoldRow* row : line.Rows) {
      NumberBox* box = boxes_[row];
      box->SetRange(RangeOf(*row, style));
      box->setVisible(IsShown(*row, style));
      any = any || IsShown(*row, style);
    }
    line.Text->setText(Escaped(LabelOf(line.Label, style)));
    line.Text->setVisible(any);
    if (line.Label == kColorLabel) {
      if (facts.OwnColorRule) line.Text->setText(Escaped(facts.OwnColorCaption));
      line.Text->setObjectName(facts.OwnColorRule ? "lblOtherColorCycles" : "lblStarfold_7");
    }
  }
  const auto show = [&facts](StyleBox group, std::initializer_list<QWidget*> widgets) {
    for (QWidget* widget : widgets) widget->setVisible(facts.Boxes.Has(group));
  };
  show(StyleBox::Shape, {cboFoldProfile_, picFoldProfile_, lblFoldProfile_});
  show(StyleBox::BodyEditor, {cmdIFS_Chem_});
  show(StyleBox::Spline, {chkCP_Closed_, chkCP_AdvHW_});
  show(StyleBox::ColorRule, {cboFoldColor_, lblFoldColor_});
  show(StyleBox::Levels, {cmdFoldLevels_});
  cmdIFS_Chem_->setText(Escaped(facts.BodyEditorCaption));
}

/// If the row has no points or atoms, those of the profile are kept.
void StarfoldView::ApplyFactoryRowToPage(std::string_view row) {
  const StarfoldProfile before = page_;
  DecodeProfileRow(page_, row);
  if (page_.Starfold_IFS_Points == 0) {
    page_.Starfold_IFS_Points = before.Starfold_IFS_Points;
    page_.IFS = before.IFS;
  }
  if (page_.Starfold_Atoms == 0) {
    page_.Starfold_Atoms = before.Starfold_Atoms;
    page_.Atom = before.Atom;
  }
  LoadBoxes();
}

QWidget* StarfoldView::MakePages() {
  pages_ = new QStackedWidget;
  for (int i = 0; i < kStarfoldPageCount; ++i) {
    const QString name = Shown(StarfoldPageName(i));
    cboFoldExtras_->addItem(name);
    auto* frame = new QGroupBox;
    frame->setAccessibleName(name);
    frame->setObjectName("fraFoldProp_" + QString::number(i));
    auto* page = MakePage(frame);
    switch (static_cast<StarfoldPage>(i)) {
      case StarfoldPage::Shape: FillShapePage(*page); break;
      case StarfoldPage::Flares: FillFlaresPage(*page); break;
      case StarfoldPage::Comets: FillCometsPage(*page); break;
    }
    EndPage(*page);
    pages_->addWidget(frame);
  }
  connect(cboFoldExtras_, &QComboBox::currentIndexChanged, pages_,
          &QStackedWidget::setCurrentIndex);
  return pages_;
}

void StarfoldView::FillShapePage(QGridLayout& page) {
  cboFoldStyle_ = MakeList("cboFoldStyle", StyleNames());
  AddLine(page, tr("&Style:"), cboFoldStyle_, {cboFoldStyle_});
  cboFoldPlane_ = MakeList("cboFoldPlane", PlaneNames());
  cboFoldPlane_->setAccessibleName(tr("Axial plane"));
  cboFoldPlane_->setMaximumWidth(cboFoldPlane_->fontMetrics().averageCharWidth() * 14);
  cmdFoldLevels_ = new QPushButton(tr("&Levels..."));
  cmdFoldLevels_->setObjectName("cmdFoldLevels");
  cmdIFS_Chem_ = new QPushButton;
  cmdIFS_Chem_->setObjectName("cmdIFS_Chem");
  AddRows(page, StarfoldPage::Shape);

  cboFoldProfile_ = MakeList("cboFoldProfile", ShapeNames());
  picFoldProfile_ = MakeSamplePlace("picFoldProfile", tr("Curve of the shape profile"), kShapeSize);
  lblFoldProfile_ =
      AddLine(page, tr("Sh&ape Profile:"), cboFoldProfile_, {cboFoldProfile_, picFoldProfile_});
  cboFoldColor_ = MakeList("cboFoldColor", ColorRuleNames());
  lblFoldColor_ = AddLine(page, tr("C&olor Computation:"), cboFoldColor_, {cboFoldColor_});
  chkCP_Closed_ = new QCheckBox(tr("Control Point Loop is Closed"));
  chkCP_Closed_->setObjectName("chkCP_Closed");
  chkCP_AdvHW_ = new QCheckBox(tr("Advance the Hue Wheel along the Ribbon"));
  chkCP_AdvHW_->setObjectName("chkCP_AdvHW");
  for (QWidget* widget : {static_cast<QWidget*>(chkCP_Closed_), static_cast<QWidget*>(chkCP_AdvHW_),
                          static_cast<QWidget*>(cmdIFS_Chem_)}) {
    AddWideLine(page, widget);
  }
  connect(cboFoldProfile_, &QComboBox::currentIndexChanged, this, &StarfoldView::ShowSamples);
  connect(cmdFoldLevels_, &QPushButton::clicked, this, &StarfoldView::LevelsAskedFor);
  connect(cmdIFS_Chem_, &QPushButton::clicked, this, &StarfoldView::BodyEditorAskedFor);
}

void StarfoldView::FillFlaresPage(QGridLayout& page) {
  AddRows(page, StarfoldPage::Flares);
  cboPulsarShape_ = MakeList("cboPulsarShape", PulsarShapeNames());
  AddLine(page, tr("Pulsar Star &General Shape:"), cboPulsarShape_, {cboPulsarShape_});
}

void StarfoldView::FillCometsPage(QGridLayout& page) {
  AddRows(page, StarfoldPage::Comets);
  picCometHue_ = MakeSamplePlace("picCometHue", tr("Hues of comets, novas and pulsars"), kHueSize);
  AddLine(page, tr("Hues from start to end:"), nullptr, {picCometHue_});
  AddPixHue(page);
}

/// Consecutive rows with the same label share a line.
void StarfoldView::AddRows(QGridLayout& page, StarfoldPage which) {
  std::vector<const StarfoldRow*> line;
  const auto end = [&] {
    if (line.empty()) return;
    std::vector<QWidget*> also;
    if (line.front()->Label == kDistanceLabel) also = {cboFoldPlane_};
    if (line.front()->Label == kLevelsLabel) also = {cmdFoldLevels_};
    AddRowLine(page, line, also);
    line.clear();
  };
  for (const StarfoldRow& row : StarfoldRows()) {
    if (row.Page != which) continue;
    if (!line.empty() && line.front()->Label != row.Label) end();
    line.push_back(&row);
  }
  end();
}

void StarfoldView::AddRowLine(QGridLayout& page, const std::vector<const StarfoldRow*>& rows,
                              const std::vector<QWidget*>& alsoInLine) {
  std::vector<QWidget*> widgets;
  widgets.reserve(rows.size() + alsoInLine.size());
  for (const StarfoldRow* row : rows) widgets.push_back(MakeBox("Starfold", *row));
  const int label = rows.front()->Label;
  QWidget* buddy = widgets.front();
  widgets.insert(widgets.end(), alsoInLine.begin(), alsoInLine.end());
  QLabel* text = AddLine(page, Escaped(LabelOf(label, Style())), buddy, widgets);
  text->setObjectName("lblStarfold_" + QString::number(label));
  lines_.push_back({label, text, rows});
}

NumberBox* StarfoldView::MakeBox(const QString& array, const StarfoldRow& row) {
  auto* box = new NumberBox;
  box->SetNames(array, row.Index);
  box->SetRange(RangeOf(row, 0));
  box->setAccessibleName(Shown(FieldOf(row, 0).Label));
  boxes_[&row] = box;
  connect(box, &NumberBox::Changed, this, &StarfoldView::ShowSamples);
  return box;
}

void StarfoldView::AddPixHue(QGridLayout& page) {
  std::vector<QWidget*> widgets;
  widgets.reserve(PixHueRows().size());
  for (const StarfoldRow& row : PixHueRows()) widgets.push_back(MakeBox("PixHue", row));
  auto* label = new QLabel(tr("Hue:  Red, Green, Blue, Base (0 - 100), Blend (1 - 60):"));
  label->setBuddy(widgets.front());
  AddWideLine(page, label);
  auto* line = new QWidget;
  auto* boxes = new QHBoxLayout(line);
  boxes->setContentsMargins(0, 0, 0, 0);
  for (QWidget* box : widgets) boxes->addWidget(box);
  boxes->addStretch();
  AddWideLine(page, line);
  picPixHue_ = MakeSamplePlace("picPixHue", tr("Hues of the stars"), kHueSize);
  AddLine(page, tr("Hues of the stars:"), nullptr, {picPixHue_});
}

void StarfoldView::LoadBoxes() {
  loading_ = true;
  cboFoldStyle_->setCurrentIndex(Style());
  cboFoldPlane_->setCurrentIndex(page_.Starfold_AxisPlane);
  const bool hasRule = page_.Starfold_ColorComp < static_cast<int>(ColorRuleNames().size());
  cboFoldColor_->setCurrentIndex(hasRule ? page_.Starfold_ColorComp : -1);
  cboFoldProfile_->setCurrentIndex(page_.Starfold_Profile);
  cboPulsarShape_->setCurrentIndex(page_.Starfold_PulsarShape);
  chkCP_Closed_->setChecked(page_.Starfold_CP_Close != 0);
  chkCP_AdvHW_->setChecked(page_.Starfold_CP_AdvHW != 0);
  ApplyStyle(Style());
  for (const auto& [row, box] : boxes_) box->SetText(FieldText(page_, FieldOf(*row, Style())));
  loading_ = false;
  ShowSamples();
}

/// Stores only the boxes that the style shows; hidden settings keep their values.
void StarfoldView::StoreBoxes(StarfoldProfile& profile, Numbers numbers) const {
  const int style = Style();
  for (const auto& [row, box] : boxes_) {
    if (!IsShown(*row, style)) continue;
    const bool clamped = numbers == Numbers::Clamped;
    const std::string text = clamped ? ClampedText(box->Text(), RangeOf(*row, style)) : box->Text();
    SetFieldNumber(profile, FieldOf(*row, style), LenientNumber(text));
  }
  profile.Starfold_AxisPlane = static_cast<Integer>(cboFoldPlane_->currentIndex());
  profile.Starfold_Profile = static_cast<Integer>(cboFoldProfile_->currentIndex());
  profile.Starfold_PulsarShape = static_cast<Integer>(cboPulsarShape_->currentIndex());
  profile.Starfold_CP_Close = chkCP_Closed_->isChecked() ? 1 : 0;
  profile.Starfold_CP_AdvHW = chkCP_AdvHW_->isChecked() ? 1 : 0;
  const int rule = cboFoldColor_->currentIndex();
  if (rule >= 0) profile.Starfold_ColorComp = static_cast<Integer>(rule);
  if (const auto& own = FactsOf(profile.Style()).OwnColorRule) profile.Starfold_ColorComp = *own;
}

/// Numbers are kept, even if they are out of range for the new style: they are clamped when their
/// box is left, or when the page is stored.
void StarfoldView::ChangeStyle(int style) {
  if (loading_) return;
  const int rule = cboFoldColor_->currentIndex();
  StoreBoxes(page_, Numbers::AsTyped);
  page_.Starfold_FoldStyle = static_cast<Integer>(style);
  LoadBoxes();
  cboFoldColor_->setCurrentIndex(rule >= 0 ? rule : kDefaultColorRule);
}

void StarfoldView::ChooseTheme(int position) {
  if (position > 0) {
    ApplyFactoryRowToPage(FactoryProfileRow(FactorySet::Starfolds4x, position));
  }
}

void StarfoldView::ShowSamples() {
  if (loading_) return;
  const StarfoldProfile shown = Page();
  const qreal ratio = devicePixelRatioF();
  const ShapeSetting shape{shown.Starfold_Profile, shown.Starfold_RadiusExp,
                           shown.Starfold_HeightExp, shown.Starfold_GHW_Ratio};
  ShowSample(picFoldProfile_, ShapeSample(shape, {kShapeSize, ratio}, palette()));
  ShowSample(picCometHue_,
             HueWheelSample(shown.Starfold_HWC_Start, shown.Starfold_HWC_End, {kHueSize, ratio}));
  ShowSample(picPixHue_, PixHueSample(shown, {kHueSize, ratio}));
  emit Changed();
}

}  // namespace starfolds
