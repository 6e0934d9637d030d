#include "properties/starfold_view.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/translation.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/factory.h"
#include "settings/surprise.h"
#include "widgets/lines.h"
#include "widgets/page_tabs.h"
#include "widgets/range_label.h"
#include "widgets/samples.h"
#include "widgets/setting_guide.h"
#include "widgets/still_delegate.h"

namespace starfolds {
namespace {

constexpr QSize kShapeSize{120, 60};
constexpr QSize kHueSize{220, 22};
constexpr Integer kDefaultColorRule = 3;  // after a style that has its own rule

// The lines with another control beside their boxes.
constexpr int kDistanceLabel = 1;
constexpr int kColorLabel = 7;

/// A heading above the line of a box.
struct Heading {
  int Box;
  const char* Text;
};
constexpr Heading kHeadings[] = {{10, STARFOLDS_TEXT("New Stars")},
                                 {20, STARFOLDS_TEXT("Novas")},
                                 {30, STARFOLDS_TEXT("Pulsars")},
                                 {40, STARFOLDS_TEXT("Comets")}};

/// The entries are marked for translation.
QComboBox* MakeList(const char* name, std::span<const std::string_view> entries) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  LetShrink(list);
  for (const std::string_view entry : entries) list->addItem(Translated(entry));
  return list;
}

QString CaptionOf(int label, int style) {
  const RowLabel caption = LabelOf(label, style);
  return Translated(caption.Text) + Shown(caption.Range);
}

}  // namespace

StarfoldView::StarfoldView(const PropsModel& model, std::function<std::uint64_t()> seed,
                           QWidget* parent)
    : QWidget(parent), model_(model), seed_(std::move(seed)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(MakeHead());
  layout->addLayout(MakeActions());
  QWidget* pages = MakePages();
  layout->addWidget(
      MakePageTabs(*cboFoldExtras_, {tr("Shape and Color"), tr("Flares"), tr("Comets")}));
  layout->addWidget(pages, 1);
  GuideLists();
  themeChoice_ = new ListChoice(*cboFoldTheme_);
  connect(themeChoice_, &ListChoice::Chosen, this, &StarfoldView::ChooseTheme);
  connect(cboFoldStyle_, &QComboBox::currentIndexChanged, this, &StarfoldView::ChangeStyle);
  for (QComboBox* list : {cboFoldPlane_, cboFoldColor_, cboPulsarShape_}) {
    connect(list, &QComboBox::currentIndexChanged, this, &StarfoldView::ShowSamples);
  }
  for (QCheckBox* check : {chkCP_Closed_, chkCP_AdvHW_}) {
    connect(check, &QCheckBox::toggled, this, &StarfoldView::ShowSamples);
  }
}

QLayout* StarfoldView::MakeHead() {
  auto* head = new QHBoxLayout;
  const auto addList = [&](const QString& label, QComboBox* list) {
    auto* text = new QLabel(label);
    text->setBuddy(list);
    list->setAccessibleName(SpokenLabel(label));
    head->addWidget(text);
    head->addWidget(list, 1);
  };
  cboFoldTheme_ = MakeList("cboFoldTheme", {});
  cboFoldTheme_->addItem(tr("< NONE >"));
  for (int row = 0; row < kProfileCount; ++row) {
    cboFoldTheme_->addItem(Shown(FactoryProfileName(row, FactorySet::Starfolds4x)));
  }
  ShowStillsIn(*cboFoldTheme_, model_.Stills, [](int row, QSize size, qreal ratio) {
    if (row < 1) return StillKey{};
    StarfoldProfile profile;
    LoadFactoryProfile(profile, FactorySet::Starfolds4x, row - 1);
    return StillOf(profile, size, ratio);
  });
  addList(tr("&Theme:"), cboFoldTheme_);
  cboFoldExtras_ = MakeList("cboFoldExtras", {});
  addList(tr("&Page:"), cboFoldExtras_);
  return head;
}

void StarfoldView::GuideLists() {
  const auto guide = [this](QWidget* control, Setting<StarfoldProfile> setting) {
    new SettingGuide(*control, model_.HelpBook,
                     [this, setting] { return Guided(FieldOf(setting), Style()); });
  };
  guide(cboFoldStyle_, &StarfoldProfile::Starfold_FoldStyle);
  guide(cboFoldPlane_, &StarfoldProfile::Starfold_AxisPlane);
  guide(cboFoldProfile_, &StarfoldProfile::Starfold_Profile);
  guide(cboFoldColor_, &StarfoldProfile::Starfold_ColorComp);
  guide(cboPulsarShape_, &StarfoldProfile::Starfold_PulsarShape);
  guide(chkCP_Closed_, &StarfoldProfile::Starfold_CP_Close);
  guide(chkCP_AdvHW_, &StarfoldProfile::Starfold_CP_AdvHW);
}

/// Ways to other values of the whole body.
QLayout* StarfoldView::MakeActions() {
  auto* line = new QHBoxLayout;
  const auto add = [&](const QString& text, const char* name, const QString& tip, auto act) {
    QPushButton* button = MakeButton(text, name);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, act);
    line->addWidget(button);
  };
  add(tr("S&urprise Me"), "cmdSurprise", tr("A random body of this style."),
      &StarfoldView::SurpriseMe);
  add(tr("Start from a Sa&mple"), "cmdSample",
      tr("The values of an original type of this style, which are a good start for your own."),
      &StarfoldView::StartFromSample);
  add(tr("Revert This &Body"), "cmdRevert", tr("The values that this type had when you opened it."),
      &StarfoldView::Revert);
  line->addStretch();
  return line;
}

void StarfoldView::LoadProfileToPage(int index) {
  opened_ = model_.Profiles()[index];
  ReloadPage(index);
}

void StarfoldView::ReloadPage(int index) {
  page_ = model_.Profiles()[index];
  const QSignalBlocker quiet(cboFoldTheme_);
  cboFoldTheme_->setCurrentIndex(0);
  themeChoice_->Reset();
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
    NameBoxes(line, style);
    line.Text->setText(Escaped(CaptionOf(line.Label, style).toStdString()));
    line.Text->setVisible(any);
    if (line.Label == kColorLabel) {
      if (facts.OwnColorRule) line.Text->setText(EscapedTranslation(facts.OwnColorCaption));
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
  cmdIFS_Chem_->setText(EscapedTranslation(facts.BodyEditorCaption));
}

/// For screen readers: by the style's caption if it has one of its own, or else by the setting.
void StarfoldView::NameBoxes(const Line& line, int style) {
  const StyleFacts& facts = FactsOf(static_cast<Integer>(style));
  QStringList captions;
  for (const StyleCaption& caption : facts.Captions) {
    if (caption.Label == line.Label)
      captions = SpokenLabel(EscapedTranslation(caption.Text)).split(", ");
  }
  if (line.Label == kColorLabel && facts.OwnColorRule) {
    captions = {SpokenLabel(EscapedTranslation(facts.OwnColorCaption))};
  }
  qsizetype shown = 0;
  for (const StarfoldRow* row : line.Rows) {
    if (boxes_[row]->isHidden()) continue;
    const QString name = shown < captions.size()
                             ? captions[shown].simplified()
                             : Translated(FieldOf(*row, style).Label).simplified();
    boxes_[row]->setAccessibleName(name);
    ++shown;
  }
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
  const int labels = LabelWidth();
  for (int i = 0; i < kStarfoldPageCount; ++i) {
    const QString name = Translated(StarfoldPageName(i));
    cboFoldExtras_->addItem(name);
    auto* frame = new QGroupBox;
    frame->setAccessibleName(name);
    frame->setObjectName("fraFoldProp_" + QString::number(i));
    auto* page = MakePage(frame);
    SetLabelWidth(*page, labels);
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

/// The width of the longest label of any style, so that the boxes stay where they are.
int StarfoldView::LabelWidth() const {
  int width = 0;
  for (int style = 0; style < kStyleCount; ++style) {
    const StyleFacts& facts = FactsOf(static_cast<Integer>(style));
    width = std::max(width, RangeLabel::WidthOf(Translated(facts.OwnColorCaption), fontMetrics()));
    for (const StarfoldRow& row : StarfoldRows()) {
      const QString label = CaptionOf(row.Label, style);
      width = std::max(width, RangeLabel::WidthOf(label, fontMetrics()));
    }
  }
  return width;
}

void StarfoldView::FillShapePage(QGridLayout& page) {
  cboFoldStyle_ = MakeList("cboFoldStyle", StyleNames());
  AddLine(page, tr("&Style:"), cboFoldStyle_, {cboFoldStyle_});
  cboFoldPlane_ = MakeList("cboFoldPlane", PlaneNames());
  cboFoldPlane_->setAccessibleName(tr("Axial plane"));
  cboFoldPlane_->setMaximumWidth(cboFoldPlane_->fontMetrics().averageCharWidth() * 14);
  cmdFoldLevels_ = MakeButton(tr("&Levels..."), "cmdFoldLevels");
  cmdIFS_Chem_ = MakeButton({}, "cmdIFS_Chem");
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
  for (QWidget* widget :
       {static_cast<QWidget*>(chkCP_Closed_), static_cast<QWidget*>(chkCP_AdvHW_),
        static_cast<QWidget*>(cmdFoldLevels_), static_cast<QWidget*>(cmdIFS_Chem_)}) {
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
  AddHeading(page, tr("Star Color"));
  AddPixHue(page);
}

/// Consecutive rows with the same label share a line.
void StarfoldView::AddRows(QGridLayout& page, StarfoldPage which) {
  std::vector<const StarfoldRow*> line;
  const auto end = [&] {
    if (line.empty()) return;
    std::vector<QWidget*> also;
    if (line.front()->Label == kDistanceLabel) also = {cboFoldPlane_};
    AddRowLine(page, line, also);
    line.clear();
  };
  for (const StarfoldRow& row : StarfoldRows()) {
    if (row.Page != which) continue;
    if (!line.empty() && line.front()->Label != row.Label) end();
    for (const Heading& heading : kHeadings) {
      if (heading.Box == row.Index) AddHeading(page, Translated(heading.Text));
    }
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
  QLabel* text = AddLine(page, Escaped(CaptionOf(label, Style()).toStdString()), buddy, widgets);
  text->setObjectName("lblStarfold_" + QString::number(label));
  lines_.push_back({label, text, rows});
}

NumberBox* StarfoldView::MakeBox(const QString& array, const StarfoldRow& row) {
  auto* box = new NumberBox;
  box->SetNames(array, row.Index);
  box->SetRange(RangeOf(row, 0));
  box->setAccessibleName(Translated(FieldOf(row, 0).Label).simplified());
  boxes_[&row] = box;
  new SettingGuide(*box, model_.HelpBook,
                   [this, &row] { return Guided(FieldOf(row, Style()), Style()); });
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
  if (position <= 0) return;
  emit AboutToChange(tr("Theme"));
  ApplyFactoryRowToPage(FactoryProfileRow(FactorySet::Starfolds4x, position));
  emit Said(tr("Theme: %1").arg(cboFoldTheme_->currentText()));
}

/// Of the style that is shown. Name and weight are not on the page.
void StarfoldView::SurpriseMe() {
  emit AboutToChange(tr("Surprise Me"));
  Rnd random(seed_());
  StoreBoxes(page_, Numbers::Clamped);
  page_ = SurprisingBody(page_, random);
  LoadBoxes();
  emit Said(tr("A random body. Press again for another one."));
}

/// The first original type of the style, with its points or atoms.
void StarfoldView::StartFromSample() {
  for (int row = 0; row < kProfileCount; ++row) {
    StarfoldProfile sample = page_;
    LoadFactoryProfile(sample, FactorySet::Starfolds4x, row);
    if (sample.Starfold_FoldStyle != Style()) continue;
    emit AboutToChange(tr("Start from a Sample"));
    page_ = sample;
    LoadBoxes();
    emit Said(tr("Sample: %1").arg(Shown(FactoryProfileName(row, FactorySet::Starfolds4x))));
    return;
  }
}

void StarfoldView::Revert() {
  emit AboutToChange(tr("Revert This Body"));
  page_ = opened_;
  LoadBoxes();
  emit Said(tr("The values are those of the type when you opened it."));
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
