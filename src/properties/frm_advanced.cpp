#include "properties/frm_advanced.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "colour/tables.h"
#include "desktop/translation.h"
#include "settings/registry.h"
#include "widgets/dialog_model.h"
#include "widgets/editor_ranges.h"
#include "widgets/lines.h"
#include "widgets/number_box.h"
#include "widgets/picture_box.h"

namespace starfolds {
namespace {

constexpr QSize kHueSize{40, 20};
constexpr QSize kMessageSize{460, 84};
constexpr int kMessageMargin = 6;

using A = AdvancedSettings;
using AdvancedField = Field<A>;

constexpr Setting<A> kFont = &A::Adv_FontName;
constexpr Setting<A> kMessage = &A::LockMessage;
constexpr Setting<A> kDrift = &A::Adv_FontDrift;

/// A setting and its control, in the order in which they are read and stored.
struct Row {
  Setting<A> What;
  const char* Control;
  int Index;  // of `txtAdv`; negative if the control is not in that array
  const char* Label;
};
constexpr int kAlone = -1;
constexpr Row kRows[] = {
    {kFont, "cboFont", kAlone, STARFOLDS_TEXT("Fo&nt:")},
    {kMessage, "txtMessage", kAlone, STARFOLDS_TEXT("&Text:")},
    {&A::Adv_TimeDelay, "Adv", 0, STARFOLDS_TEXT("Frame &delay in milliseconds (0 - 999):")},
    {&A::FocalLength, "Adv", 1, STARFOLDS_TEXT("Fo&cal length distance (0.01 - 10.0):")},
    {&A::Adv_FontSize, "Adv", 2, STARFOLDS_TEXT("&Size:")},
    {&A::Adv_FontHueV, "Adv", 3, STARFOLDS_TEXT("Text H&ue (0 - 359):")},
    {&A::Adv_Randomize, "chkRandom", kAlone, STARFOLDS_TEXT("&Randomize Properties")},
    {&A::Adv_RandomMag, "Adv", 9, STARFOLDS_TEXT("Randomization &Magnitude (1 - 100):")},
    {&A::Adv_RandomExp, "Adv", 10, STARFOLDS_TEXT("&Bias Exponent to Normal (1 - 100):")},
    {&A::Adv_WinResize, "chkResize", kAlone,
     STARFOLDS_TEXT("&Window can be resized (EXE version only)")},
    {&A::Adv_MouseMove, "chkMouseM", kAlone,
     STARFOLDS_TEXT("&Ignore mouse moves in screen saver mode")},
    {&A::Adv_DispBackG, "chkBackGr", kAlone,
     STARFOLDS_TEXT("Display in bac&kground (double-click to stop)")},
    {kDrift, "chkDrift", kAlone, STARFOLDS_TEXT("&Let the text drift slowly")},
};

bool IsCheck(const AdvancedField& field) {
  return std::holds_alternative<bool AdvancedSettings::*>(field.Where);
}

QString LabelOf(const Setting<A>& setting) {
  const auto row = std::find_if(std::begin(kRows), std::end(kRows),
                                [&](const Row& each) { return each.What == setting; });
  return Translated(row->Label);
}

/// The default font is listed even if it is not installed: the window system then substitutes it.
QComboBox* MakeFontList() {
  QStringList names;
  for (const QString& name : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(name)) names.append(name);
  }
  const QString standard = Shown(AdvancedSettings().Adv_FontName);
  if (!names.contains(standard)) names.append(standard);
  names.sort(Qt::CaseInsensitive);
  auto* list = new QComboBox;
  LetShrink(list);
  list->setMaximumWidth(QWIDGETSIZE_MAX);
  list->addItems(names);
  return list;
}

/// Cuts the text, with a beep, to what can be stored.
void CutToStorable(QLineEdit* box, const QString& text) {
  const std::string typed = text.toStdString();
  const std::string_view kept = FirstStorableCharacters(typed);
  if (kept.size() == typed.size()) return;
  QApplication::beep();
  box->setText(Shown(kept));
}

std::string TextOf(const QWidget* control) {
  if (const auto* number = qobject_cast<const NumberBox*>(control)) return number->Text();
  if (const auto* check = qobject_cast<const QCheckBox*>(control)) {
    return check->isChecked() ? "1" : "0";
  }
  if (const auto* list = qobject_cast<const QComboBox*>(control)) {
    return list->currentText().toStdString();
  }
  return qobject_cast<const QLineEdit*>(control)->text().toStdString();
}

void SetText(QWidget* control, const std::string& text) {
  if (auto* number = qobject_cast<NumberBox*>(control)) {
    number->SetText(text);
  } else if (auto* check = qobject_cast<QCheckBox*>(control)) {
    check->setChecked(text != "0");
  } else if (auto* list = qobject_cast<QComboBox*>(control)) {
    list->setCurrentIndex(std::max(list->findText(Shown(text)), 0));
  } else {
    qobject_cast<QLineEdit*>(control)->setText(Shown(text));
  }
}

QColor InkOf(int hue) {
  return QColor::fromRgb(ScreenWord(HueToRgb(static_cast<Integer>(hue), 55, 100, 100, 100)));
}

/// The message in its font and colour, drawn smaller if it is too wide.
QImage MessageSample(const AdvancedSettings& advanced, qreal ratio) {
  QImage sample(kMessageSize * ratio, QImage::Format_RGB32);
  sample.setDevicePixelRatio(ratio);
  sample.fill(Qt::black);
  QFont font(Shown(advanced.Adv_FontName));
  font.setPointSize(advanced.Adv_FontSize);
  const QString text = Shown(advanced.LockMessage);
  const QFontMetricsF metrics(font);
  const QSizeF room = kMessageSize - QSize(kMessageMargin, kMessageMargin) * 2;
  const QSizeF taken(std::max(metrics.horizontalAdvance(text), 1.0), metrics.height());
  const qreal scale = std::min({1.0, room.width() / taken.width(), room.height() / taken.height()});
  QPainter painter(&sample);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setFont(font);
  painter.setPen(InkOf(advanced.Adv_FontHueV));
  painter.translate(kMessageSize.width() / 2.0, kMessageSize.height() / 2.0);
  painter.scale(scale, scale);
  painter.drawText(QPointF(-taken.width() / 2, metrics.ascent() - taken.height() / 2), text);
  return sample;
}

QImage HueSample(int hue, qreal ratio) {
  QImage sample(kHueSize * ratio, QImage::Format_RGB32);
  sample.setDevicePixelRatio(ratio);
  sample.fill(InkOf(hue));
  return sample;
}

}  // namespace

FrmAdvanced::FrmAdvanced(KeyValueTree& tree, Help& helpBook, QWidget* parent)
    : PlacedDialog({tree, sections::kAdvancedPlace, helpBook, help::kAdvanced}, parent),
      tree_(tree) {
  setObjectName("frmAdvanced");
  setWindowTitle(tr("Advanced Settings"));
  MakeControls();
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeOperationFrame());
  column->addWidget(MakeMessageFrame());
  column->addWidget(MakeEnhancementFrame());
  column->addStretch(1);
  column->addLayout(MakeButtons());
  LoadAdvancedToDialog();
  ShowSamples();
}

void FrmAdvanced::MakeControls() {
  for (const Row& row : kRows) {
    QWidget* control = nullptr;
    const AdvancedField& field = FieldOf(row.What);
    if (row.Index != kAlone) {
      auto* box = new NumberBox;
      box->SetNames(row.Control, row.Index);
      box->SetRange(RangeOf(field));
      connect(box, &NumberBox::Changed, this, &FrmAdvanced::ShowSamples);
      control = box;
    } else if (IsCheck(field)) {
      control = new QCheckBox(LabelOf(row.What));
    } else if (row.What == kFont) {
      auto* list = MakeFontList();
      connect(list, &QComboBox::currentIndexChanged, this, &FrmAdvanced::ShowSamples);
      control = list;
    } else {
      auto* box = new QLineEdit;
      box->setPlaceholderText(tr("None"));
      connect(box, &QLineEdit::textChanged, this, [this, box](const QString& text) {
        CutToStorable(box, text);
        ShowSamples();
      });
      control = box;
    }
    if (row.Index == kAlone) control->setObjectName(row.Control);
    controls_[&field] = control;
  }
}

QGroupBox* FrmAdvanced::MakeOperationFrame() {
  auto* frame = new QGroupBox(tr("Operation Properties"));
  auto* page = MakePage(frame);
  for (const Setting<A>& setting :
       std::initializer_list<Setting<A>>{&A::Adv_TimeDelay, &A::FocalLength, &A::Adv_WinResize,
                                         &A::Adv_MouseMove, &A::Adv_DispBackG}) {
    AddSetting(*page, setting);
  }
  return frame;
}

QGroupBox* FrmAdvanced::MakeMessageFrame() {
  auto* frame = new QGroupBox(tr("On Screen Message"));
  auto* page = MakePage(frame);
  picHueStart_ = MakeSamplePlace("picHueStart", tr("Colour of the message"), kHueSize);
  picMessage_ = MakeSamplePlace("picMessage", tr("The message as it will look"), kMessageSize);
  AddSetting(*page, kMessage);
  AddSetting(*page, kFont);
  AddSetting(*page, &A::Adv_FontSize);
  AddSetting(*page, &A::Adv_FontHueV, {picHueStart_});
  AddSetting(*page, kDrift);
  AddWideLine(*page, picMessage_);
  page->setAlignment(picMessage_, Qt::AlignHCenter);
  return frame;
}

QGroupBox* FrmAdvanced::MakeEnhancementFrame() {
  auto* frame = new QGroupBox(tr("Display Enhancement"));
  auto* page = MakePage(frame);
  for (const Setting<A>& setting :
       std::initializer_list<Setting<A>>{&A::Adv_Randomize, &A::Adv_RandomMag, &A::Adv_RandomExp}) {
    AddSetting(*page, setting);
  }
  return frame;
}

QLayout* FrmAdvanced::MakeButtons() {
  QPushButton* defaults = MakeButton(tr("De&faults"), "cmdDefaults");
  defaults->setToolTip(tr("Shows the settings that the program came with; the text stays"));
  QPushButton* ok = MakeButton(tr("OK"), "cmdOK");
  ok->setDefault(true);
  QPushButton* cancel = MakeButton(tr("Cancel"), "cmdDismiss");
  auto* line = new QHBoxLayout;
  line->addWidget(defaults);
  line->addStretch();
  for (QPushButton* button : {ok, cancel, MakeHelpButton()}) line->addWidget(button);
  connect(defaults, &QPushButton::clicked, this, &FrmAdvanced::ShowDefaults);
  connect(cancel, &QPushButton::clicked, this, &FrmAdvanced::reject);
  connect(ok, &QPushButton::clicked, this, [this] {
    SaveAdvancedFromDialog();
    accept();
  });
  return line;
}

/// Adds the line of a setting: its check box, or its label and its box.
void FrmAdvanced::AddSetting(QGridLayout& page, const Setting<AdvancedSettings>& setting,
                             const std::vector<QWidget*>& alsoInLine) {
  QWidget* control = controls_.at(&FieldOf(setting));
  if (IsCheck(FieldOf(setting))) return AddWideLine(page, control);
  std::vector<QWidget*> widgets{control};
  widgets.insert(widgets.end(), alsoInLine.begin(), alsoInLine.end());
  AddLine(page, LabelOf(setting), control, widgets);
}

void FrmAdvanced::LoadAdvancedToDialog() {
  TreeBulk look = TreeBulk::Look(tree_);
  for (const Row& row : kRows) {
    const AdvancedField& field = FieldOf(row.What);
    const std::string text =
        IsCheck(field)
            ? std::to_string(RegistryReadInteger(tree_, sections::kAdvanced, field.Name, 0))
            : RegistryReadText(tree_, sections::kAdvanced, field.Name, DefaultText(field));
    SetText(controls_.at(&FieldOf(row.What)), text);
  }
  look.Commit();
}

/// If the settings cannot be stored they stay unchanged, without a message.
void FrmAdvanced::SaveAdvancedFromDialog() {
  // Return presses the button without taking the focus from the box, which would clamp its number.
  if (auto* number = qobject_cast<NumberBox*>(focusWidget())) number->ClampTextField();
  TreeBulk change = TreeBulk::Change(tree_);
  for (const Row& row : kRows) {
    const AdvancedField& field = FieldOf(row.What);
    RegistryWrite(tree_, sections::kAdvanced, field.Name,
                  StorableText(TextOf(controls_.at(&field))));
  }
  change.Commit();
}

void FrmAdvanced::ShowDefaults() {
  for (const Row& row : kRows) {
    if (row.What == kMessage) continue;
    SetText(controls_.at(&FieldOf(row.What)), DefaultText(FieldOf(row.What)));
  }
}

AdvancedSettings FrmAdvanced::Settings() const {
  AdvancedSettings advanced;
  for (const Row& row : kRows) {
    SetFieldText(advanced, FieldOf(row.What), TextOf(controls_.at(&FieldOf(row.What))));
  }
  ClampAdvanced(advanced);
  return advanced;
}

void FrmAdvanced::ShowSamples() {
  if (!picMessage_) return;  // the controls are still being made
  const AdvancedSettings advanced = Settings();
  ShowSample(picHueStart_, HueSample(advanced.Adv_FontHueV, devicePixelRatioF()));
  ShowSample(picMessage_, MessageSample(advanced, devicePixelRatioF()));
}

}  // namespace starfolds
