#include "widgets/setting_guide.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>
#include <memory>
#include <utility>

#include "numbers/text.h"
#include "widgets/dialog_parts.h"
#include "widgets/number_box.h"

namespace starfolds {
namespace {

constexpr int kLineLength = 64;  // characters

/// Tool tips of plain text have no line breaks of their own.
QString Wrapped(const QString& text) {
  QString wrapped;
  qsizetype length = 0;
  for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
    if (length > 0) wrapped += length + word.size() > kLineLength ? '\n' : ' ';
    length = length + word.size() > kLineLength ? word.size() : length + word.size() + 1;
    wrapped += word;
  }
  return wrapped;
}

}  // namespace

SettingGuide::SettingGuide(QWidget& control, Help& help, Source setting)
    : QObject(&control), control_(control), help_(help), setting_(std::move(setting)) {
  control.installEventFilter(this);
}

QString SettingGuide::DefaultShown() const {
  const std::string stored = setting_().Default;
  if (const auto* list = qobject_cast<const QComboBox*>(&control_)) {
    return list->itemText(static_cast<int>(LenientNumber(stored)));
  }
  if (qobject_cast<const QCheckBox*>(&control_)) return stored == "0" ? tr("off") : tr("on");
  return Shown(stored);
}

QString SettingGuide::Tip() const {
  const GuidedSetting setting = setting_();
  QString tip = Wrapped(Shown(help_.SentenceOf(setting.Name, setting.Style)));
  if (!tip.isEmpty()) tip += '\n';
  if (const auto* box = qobject_cast<const NumberBox*>(&control_)) {
    return tip + tr("Range: %1. Default: %2.").arg(box->accessibleDescription(), DefaultShown());
  }
  return tip + tr("Default: %1.").arg(DefaultShown());
}

void SettingGuide::ResetToDefault() {
  const std::string stored = setting_().Default;
  const auto number = static_cast<int>(LenientNumber(stored));
  if (auto* box = qobject_cast<NumberBox*>(&control_)) box->SetText(stored);
  if (auto* list = qobject_cast<QComboBox*>(&control_)) list->setCurrentIndex(number);
  if (auto* check = qobject_cast<QCheckBox*>(&control_)) check->setChecked(number != 0);
}

bool SettingGuide::ShowHelpOf(const QWidget* focused) {
  if (!focused) return false;
  for (const QObject* child : focused->children()) {
    const auto* const guide = dynamic_cast<const SettingGuide*>(child);
    if (!guide) continue;
    const GuidedSetting setting = guide->setting_();
    guide->help_.ShowSetting(setting.Name, setting.Style);
    return true;
  }
  return false;
}

bool SettingGuide::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Tip(), &control_);
    return true;
  }
  if (event->type() == QEvent::ContextMenu) {
    ShowMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }
  return false;
}

/// Above it what the menu of a text box has.
void SettingGuide::ShowMenu(const QPoint& place) {
  auto* const edit =
      qobject_cast<NumberBox*>(&control_) ? control_.findChild<QLineEdit*>() : nullptr;
  QMenu* menu = edit ? edit->createStandardContextMenu() : new QMenu(&control_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (edit) menu->addSeparator();
  QAction* reset = menu->addAction(tr("Back to &Default (%1)").arg(DefaultShown()));
  reset->setObjectName("mnuDefault");
  connect(reset, &QAction::triggered, this, &SettingGuide::ResetToDefault);
  menu->addAction(tr("&Help"), this, [this] { ShowHelpOf(&control_); });
  menu->popup(place);
}

}  // namespace starfolds
