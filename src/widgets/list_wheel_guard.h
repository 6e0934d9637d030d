// What the wheel and the arrow keys do to the lists of a dialog.
#pragma once

#include <QComboBox>
#include <QWidget>

namespace starfolds {

/// Ignores wheel events on the lists of `window` without the focus, so that scrolling over a list
/// of themes does not change the settings. Applies to the lists that exist at the call.
void GuardListsFromWheel(QWidget& window);

/// Tells looking through a closed list from choosing. The wheel, the arrow keys and typed letters
/// only look; Return, leaving the list, a click in the opened list and the program choose. Escape
/// goes back to the entry that was chosen last.
class ListChoice : public QObject {
  Q_OBJECT

 public:
  /// Belongs to the list.
  explicit ListChoice(QComboBox& list);

  /// Chooses the entry that is being looked at, if there is one.
  void Settle();
  /// Whether the event that is being handled only looks.
  bool IsLooking() const { return looking_; }
  /// The present entry counts as chosen, without the signal.
  void Reset() { chosen_ = list_.currentIndex(); }

 signals:
  /// An entry was chosen that is not the one chosen before.
  void Chosen(int position);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool HandleKey(int key);

  QComboBox& list_;
  int chosen_;
  bool looking_ = false;  // the event that is being handled only looks
};

/// Keeps the wheel and the arrow keys from choosing entries of an editable list: they would add an
/// entry for each key. The arrow keys open the list instead.
void ChooseOnlyInOpenedList(QComboBox& list);

}  // namespace starfolds
