#include "properties/edit_history.h"

#include <utility>

namespace starfolds {

void EditHistory::Begin(EditedSettings settings) {
  stored_ = std::make_shared<const EditedSettings>(std::move(settings));
  steps_ = {Step{{}, Kind::Step, stored_}};
  present_ = 0;
  joins_ = false;
}

void EditHistory::Note(EditedSettings settings, const std::string& what, Kind kind) {
  if (settings == Present()) return;
  steps_.resize(present_ + 1);
  Step& last = steps_.back();
  const bool joins =
      joins_ && kind == Kind::Edit && present_ > 0 && last.How == Kind::Edit && last.What == what;
  joins_ = kind == Kind::Edit;
  if (joins && settings == *steps_[present_ - 1].After) {  // the edit was taken back by hand
    steps_.pop_back();
    --present_;
    joins_ = false;
    return;
  }
  State after = std::make_shared<const EditedSettings>(std::move(settings));
  if (joins) {
    last.After = std::move(after);
    return;
  }
  steps_.push_back({what, kind, std::move(after)});
  if (steps_.size() > kMostSteps + 1) steps_.pop_front();
  present_ = steps_.size() - 1;
}

void EditHistory::Adopt(EditedSettings settings) {
  if (settings == Present()) return;
  const bool wasChanged = IsChanged();
  steps_[present_].After = std::make_shared<const EditedSettings>(std::move(settings));
  if (!wasChanged) stored_ = steps_[present_].After;
}

bool EditHistory::IsChanged() const { return !(Present() == *stored_); }

const EditedSettings& EditHistory::Undo() {
  joins_ = false;
  return *steps_[--present_].After;
}

const EditedSettings& EditHistory::Redo() {
  joins_ = false;
  return *steps_[++present_].After;
}

}  // namespace starfolds
