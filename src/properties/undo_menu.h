// Undo and redo in the Edit menu of the properties dialog.
#pragma once

#include <QMenu>
#include <QTimer>
#include <functional>

#include "properties/edit_history.h"

namespace starfolds {

/// The dialog whose changes are undone.
struct UndoHost {
  /// The settings as they would be accepted now.
  std::function<EditedSettings()> Capture;
  std::function<void(const EditedSettings& settings)> Show;
  /// Stores what is typed but not committed in the records.
  std::function<void()> Settle;
  /// Whether a preview runs; then nothing is undone.
  std::function<bool()> IsBusy;
};

/// Changes of whole records are announced before they are made (`AboutToChange`) and become one
/// step each; edits are noted after they are made (`NoteEdit`), and those of one page in a row are
/// one step.
class UndoMenu : public QObject {
  Q_OBJECT

 public:
  explicit UndoMenu(UndoHost host);

  /// Adds "Undo" and "Redo". In a text box with a text undo of its own, that comes first.
  void AddTo(QMenu& edit);
  /// Lets the keys of the menu through a box whose own undo has nothing to undo.
  void WatchBoxesOf(QWidget& window);

  /// Forgets all steps: the settings are now those that are stored.
  void Begin();
  /// A change of whole records begins, and is complete when control returns to the event loop.
  void AboutToChange(const QString& what);
  /// Makes a change that may show message boxes meanwhile.
  void Do(const QString& what, const std::function<void()>& change);
  /// Something on `page` was edited. Ignored as a part of an announced change.
  void NoteEdit(const QString& page);
  /// Ends the step of edits.
  void EndEdit() { history_.EndEdit(); }
  /// Shows settings in a way that may bring them into their form, which is no change of the user's.
  void Silently(const std::function<void()>& show);

  /// Whether something is not accepted yet.
  bool IsChanged();
  /// Up to date at the signal `Changed`.
  const EditHistory& History() const { return history_; }

  void Undo();
  void Redo();

 signals:
  /// The present settings have changed.
  void Changed();
  void Said(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Note(const QString& what, EditHistory::Kind kind);
  void Finish();
  void Step(bool forward);
  void UpdateEntries();

  UndoHost host_;
  EditHistory history_;
  QTimer finish_;      // at the end of an announced change
  QString announced_;  // name of the change that is being made
  int silent_ = 0;     // depth of calls in which edits are ignored
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
};

}  // namespace starfolds
