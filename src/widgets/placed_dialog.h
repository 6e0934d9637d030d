// What the dialogs opened from the properties dialog share.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <string_view>

#include "platform/help.h"
#include "platform/key_value_tree.h"

namespace starfolds {

/// Under which name a dialog's placement is stored, and which help topic explains it.
struct DialogPlace {
  KeyValueTree& Tree;
  std::string_view Section;  // of the stored placement
  Help& HelpBook;
  Integer Topic;  // context number
};

/// A dialog that is modal to its parent, but not to the help. It opens at its stored position, and
/// F1 opens its
/// topic, or the section about the setting of the control with the focus.
class PlacedDialog : public QDialog {
  Q_OBJECT

 public:
  explicit PlacedDialog(const DialogPlace& place, QWidget* parent = nullptr);

  /// Shows the dialog at its stored position, for callers with an event loop of their own.
  void ShowInPlace();
  /// Shows the dialog and returns when it is closed. True if it was closed by "OK".
  bool RunModal();

  /// Called by every way of closing.
  void done(int result) override;

 protected:
  /// `cmdHelp`.
  QPushButton* MakeHelpButton();
  void ShowHelp() { place_.HelpBook.ShowTopic(place_.Topic); }

 private:
  DialogPlace place_;
};

}  // namespace starfolds
