// What the dialogs behind the properties dialog have in common.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <string_view>

#include "platform/help.h"
#include "platform/key_value_tree.h"

namespace starfolds {

/// Where a dialog stands between two of its openings, and which topic explains it.
struct DialogPlace {
  KeyValueTree& Tree;
  std::string_view Section;  // of the stored placement
  Help& HelpBook;
  Integer Topic;  // context number
};

/// A dialog over its parent, which waits meanwhile; the help does not. It opens where it stood, and
/// F1 opens its topic.
class PlacedDialog : public QDialog {
  Q_OBJECT

 public:
  explicit PlacedDialog(const DialogPlace& place, QWidget* parent = nullptr);

  /// Shows the dialog where it stood; for who runs the events otherwise.
  void ShowInPlace();
  /// The same, and returns when it is closed. True: with "OK".
  bool RunModal();

  /// Every way of closing comes through here.
  void done(int result) override;

 protected:
  /// `cmdHelp`.
  QPushButton* MakeHelpButton();
  void ShowHelp() { place_.HelpBook.ShowTopic(place_.Topic); }

 private:
  DialogPlace place_;
};

}  // namespace starfolds
