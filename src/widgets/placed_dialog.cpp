#include "widgets/placed_dialog.h"

#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include "widgets/dialog_parts.h"
#include "widgets/list_wheel_guard.h"
#include "widgets/placed_qt_window.h"
#include "widgets/setting_guide.h"

namespace starfolds {
namespace {

constexpr double kMostOfScreen = 0.94;  // the rest is for window frames and panels

}  // namespace

PlacedDialog::PlacedDialog(const DialogPlace& place, QWidget* parent)
    : QDialog(parent), place_(place) {
  setWindowModality(Qt::WindowModal);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] {
    if (!SettingGuide::ShowHelpOf(focusWidget())) ShowHelp();
  });
}

void PlacedDialog::ShowInPlace() {
  GuardListsFromWheel(*this);
  resize(sizeHint().boundedTo(screen()->availableSize() * kMostOfScreen));
  ShowWherePlaced(*this, place_.Tree, place_.Section);
}

bool PlacedDialog::RunModal() {
  ShowInPlace();
  return exec() == Accepted;
}

void PlacedDialog::done(int result) {
  if (windowHandle()) {
    SaveWindowPlacement(PlacedQtWindow(*windowHandle()), place_.Tree, place_.Section);
  }
  QDialog::done(result);
}

QPushButton* PlacedDialog::MakeHelpButton() {
  QPushButton* button = MakeButton(tr("&Help"), "cmdHelp");
  connect(button, &QPushButton::clicked, this, &PlacedDialog::ShowHelp);
  return button;
}

}  // namespace starfolds
