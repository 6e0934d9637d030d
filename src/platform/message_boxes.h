// Questions and messages that wait for the user's answer.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "numbers/words.h"
#include "platform/user_text.h"

namespace starfolds {

/// The buttons and the icon of a message box.
enum class BoxStyle : Integer {
  Plain = 0,  // "OK"
  YesNoCancelQuestion = 35,
  Information = 64,        // "OK"
  Exclamation = 48,        // "OK"
  UnacceptedChanges = 51,  // "Accept", "Discard", "Cancel"
  SaveFailed = 50,         // "Try Again", "Save as Template...", "Close without Saving", "Cancel"
};

enum class BoxAnswer : Integer {
  Ok = 1,
  Cancel = 2,
  TryAgain = 4,
  Yes = 6,
  No = 7,
  SaveAsTemplate = 100,
  CloseWithoutSaving = 101,
  AcceptChanges = 102,
  DiscardChanges = 103,
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a box, in the user's language, and waits for the answer. Closing the box counts as "OK"
  /// if that is its only button, and as "Cancel" otherwise.
  virtual BoxAnswer Show(const UserText& text, BoxStyle style, const std::string& caption) = 0;
};

/// Answers without showing a box: with the answers of a test, then with "OK". Records the calls.
class ScriptedMessageBoxes : public MessageBoxes {
 public:
  struct Asked {
    std::string Text;
    BoxStyle Style;
    std::string Caption;
  };

  std::deque<BoxAnswer> Answers;
  std::vector<Asked> Log;

  BoxAnswer Show(const UserText& text, BoxStyle style, const std::string& caption) override {
    Log.push_back({InEnglish(text), style, caption});
    if (Answers.empty()) return BoxAnswer::Ok;
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
};

}  // namespace starfolds
