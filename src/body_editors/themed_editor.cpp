#include "body_editors/themed_editor.h"

#include <QGroupBox>
#include <iterator>

#include "desktop/translation.h"
#include "settings/factory.h"
#include "widgets/lines.h"
#include "widgets/list_wheel_guard.h"
#include "widgets/still_delegate.h"

namespace starfolds {

ThemedEditor::ThemedEditor(const Texts& texts, const BodyEditing& editing,
                           std::span<const BodyTheme> themes, QWidget* parent)
    : BodyEditor(texts, editing, parent), themes_(themes) {
  cboTheme_ = new QComboBox;
  cboTheme_->setObjectName("cboTheme");
  cboTheme_->addItem(tr("Select a Theme"));
  for (const BodyTheme& theme : themes) cboTheme_->addItem(Shown(theme.Name));
  lblTheme_ = new QLabel;
  lblTheme_->setObjectName("lblTheme");
  lblTheme_->setTextFormat(Qt::PlainText);
  cboTheme_->setAccessibleName(tr("Theme"));
  auto* label = new QLabel(tr("&Theme:"));
  label->setBuddy(cboTheme_);
  auto* line = new QHBoxLayout;
  line->addWidget(label);
  line->addWidget(cboTheme_);
  line->addWidget(lblTheme_, 1);
  Head().addLayout(line);

  // Choosing the current theme again loads it again.
  ShowStillsIn(*cboTheme_, editing.Model.Stills, [this](int row, QSize size, qreal ratio) {
    if (row < 1 || row > static_cast<int>(themes_.size())) return StillKey{};
    return StillOf(BodyOf(themes_[static_cast<std::size_t>(row - 1)]), size, ratio);
  });
  auto* choice = new ListChoice(*cboTheme_);
  connect(choice, &ListChoice::Chosen, this, &ThemedEditor::ChooseTheme);
  connect(cboTheme_, &QComboBox::activated, this, [this, choice](int index) {
    if (!choice->IsLooking()) ChooseTheme(index);
  });
}

QLayout* ThemedEditor::MakeBodyAndCenter() {
  const BodyBox bodyRows[] = {{&StarfoldProfile::Starfold_Radius, tr("Radius:"), 0},
                              {&StarfoldProfile::Starfold_Rotation, tr("Rotation:"), 1},
                              {&StarfoldProfile::Starfold_Distance, tr("Distance:"), 2}};
  auto* body = new QGroupBox(tr("Starfold (0 - 30000)"));
  QGridLayout* page = MakePage(body);
  for (int i = 0; i < static_cast<int>(std::size(bodyRows)); ++i) {
    AddBodyBox(*page, "Starfold", i, bodyRows[i]);
  }

  auto* center = new QGroupBox(tr("Center (0 - 9999)"));
  page = MakePage(center);
  for (std::size_t i = 0; i < txtCenter_.size(); ++i) {
    const QString label = tr("Center %1:").arg(QChar('X' + static_cast<int>(i)));
    auto* box = new NumberBox;
    box->SetNames("Center", static_cast<int>(i));
    box->SetBlankAllowed();
    box->setAccessibleName(SpokenLabel(label));
    AddLine(*page, label, box, {box});
    connect(box, &NumberBox::Changed, this, &ThemedEditor::Touched);
    txtCenter_[i] = box;
  }

  auto* line = new QHBoxLayout;
  line->addWidget(body);
  line->addWidget(center);
  return line;
}

QPushButton* ThemedEditor::MakeClearButton() {
  QPushButton* cmdClear = MakeButton(tr("C&lear"), "cmdClear");
  connect(cmdClear, &QPushButton::clicked, this, [this] { Clear(); });
  return cmdClear;
}

std::string ThemedEditor::ThemeText(int index) const {
  const bool isTheme = index > 0 && index <= static_cast<int>(themes_.size());
  return isTheme ? TextOf(themes_[static_cast<std::size_t>(index - 1)]) : std::string();
}

void ThemedEditor::ChooseTheme(int index) {
  if (index > 0) LoadThemeText(ThemeText(index));
}

void ThemedEditor::LoadThemeHead(const std::string& text, int centerAt, int bodyAt) {
  lblTheme_->setText(Translated(GetField(text, kThemeDescription)));
  for (NumberBox* box : txtCenter_) box->SetText(std::string(GetField(text, centerAt++)));
  for (const auto& bound : BodyBoxes()) bound.Box->SetText(std::string(GetField(text, bodyAt++)));
}

void ThemedEditor::Clear() {
  for (NumberBox* box : txtCenter_) box->SetText({});
}

}  // namespace starfolds
