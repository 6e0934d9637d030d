#include "properties/undo_menu.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

namespace starfolds {
namespace {

/// What was done as a part of a menu entry.
QString Named(const std::string& what) { return QString::fromStdString(what).replace("&", "&&"); }

/// The line in which a box takes text; nullptr if it takes none.
const QLineEdit* LineOf(const QObject* box) {
  if (const auto* line = qobject_cast<const QLineEdit*>(box)) return line;
  return box->findChild<const QLineEdit*>();
}

}  // namespace

UndoMenu::UndoMenu(UndoHost host) : host_(std::move(host)) {
  finish_.setSingleShot(true);
  finish_.setInterval(0);
  connect(&finish_, &QTimer::timeout, this, &UndoMenu::Finish);
}

void UndoMenu::AddTo(QMenu& edit) {
  const auto add = [&](const char* name, QKeySequence::StandardKey key, void (UndoMenu::*act)()) {
    QAction* entry = edit.addAction(QString(), this, act);
    entry->setObjectName(name);
    entry->setShortcuts(key);
    return entry;
  };
  undo_ = add("mnuUndo", QKeySequence::Undo, &UndoMenu::Undo);
  redo_ = add("mnuRedo", QKeySequence::Redo, &UndoMenu::Redo);
  connect(&edit, &QMenu::aboutToShow, this, [this] {
    host_.Settle();
    Finish();
  });
  UpdateEntries();
}

void UndoMenu::WatchBoxesOf(QWidget& window) {
  for (QWidget* box : window.findChildren<QWidget*>()) {
    if (LineOf(box) && box->focusPolicy() != Qt::NoFocus) box->installEventFilter(this);
  }
}

/// A text box claims the keys of undo and redo even if it has nothing to undo.
bool UndoMenu::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const QLineEdit* line = LineOf(watched);
  if (!line) return false;
  const bool unused = (key->matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
                      (key->matches(QKeySequence::Redo) && !line->isRedoAvailable());
  if (unused) event->ignore();
  return unused;
}

void UndoMenu::Begin() {
  finish_.stop();
  announced_.clear();
  history_.Begin(host_.Capture());
  UpdateEntries();
}

void UndoMenu::AboutToChange(const QString& what) {
  if (silent_ > 0) return;
  if (announced_ == what && finish_.isActive()) return;  // another part of it
  Finish();
  announced_ = what;
  finish_.start();
}

void UndoMenu::Do(const QString& what, const std::function<void()>& change) {
  Finish();
  ++silent_;
  change();
  --silent_;
  Note(what, EditHistory::Kind::Step);
}

void UndoMenu::NoteEdit(const QString& page) {
  if (announced_.isEmpty() && silent_ == 0) Note(page, EditHistory::Kind::Edit);
}

void UndoMenu::Silently(const std::function<void()>& show) {
  Finish();
  ++silent_;
  show();
  --silent_;
  if (silent_ > 0) return;  // a part of a change, which becomes a step
  history_.Adopt(host_.Capture());
  UpdateEntries();
}

bool UndoMenu::IsChanged() {
  Finish();
  return history_.IsChanged();
}

void UndoMenu::Undo() { Step(false); }

void UndoMenu::Redo() { Step(true); }

void UndoMenu::Note(const QString& what, EditHistory::Kind kind) {
  history_.Note(host_.Capture(), what.toStdString(), kind);
  UpdateEntries();
}

void UndoMenu::Finish() {
  finish_.stop();
  const QString what = std::exchange(announced_, {});
  if (!what.isEmpty()) Note(what, EditHistory::Kind::Step);
}

void UndoMenu::Step(bool forward) {
  if (host_.IsBusy()) return;
  host_.Settle();
  Finish();
  if (forward ? !history_.CanRedo() : !history_.CanUndo()) return;
  const std::string what = forward ? history_.RedoText() : history_.UndoText();
  const EditedSettings& settings = forward ? history_.Redo() : history_.Undo();
  Silently([&] { host_.Show(settings); });
  emit Said((forward ? tr("Done again: %1") : tr("Undone: %1")).arg(QString::fromStdString(what)));
}

void UndoMenu::UpdateEntries() {
  if (undo_) {
    undo_->setEnabled(history_.CanUndo());
    undo_->setText(history_.CanUndo() ? tr("&Undo %1").arg(Named(history_.UndoText()))
                                      : tr("&Undo"));
    redo_->setEnabled(history_.CanRedo());
    redo_->setText(history_.CanRedo() ? tr("&Redo %1").arg(Named(history_.RedoText()))
                                      : tr("&Redo"));
  }
  emit Changed();
}

}  // namespace starfolds
