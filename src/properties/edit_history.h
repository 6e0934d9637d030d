// Undo and redo of what was changed in the properties dialog since it was opened.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "settings/records.h"

namespace starfolds {

/// Everything that "Accept Settings" stores.
struct EditedSettings {
  std::vector<std::string> Universe =
      {};  // the texts of the controls, in the order of UniverseFields
  ProfileArray Profiles;
  CompositeArray Composites;

  bool operator==(const EditedSettings&) const = default;
};

/// The states of the settings, each with what led to it, at most `kMostSteps`; the oldest are
/// forgotten first. A state takes about 100 KB.
class EditHistory {
 public:
  static constexpr std::size_t kMostSteps = 60;

  /// Forgets all steps. `settings` are those that are stored.
  void Begin(EditedSettings settings);

  /// How a change follows the one before.
  enum class Kind {
    Step,  // a step of its own
    Edit,  // an edit of a page: joins the step before, if that is an edit of the same name
  };
  /// Notes that the settings are now `settings`, after `what`. Does nothing if they are as before.
  /// What was undone can then not be redone.
  void Note(EditedSettings settings, const std::string& what, Kind kind);
  /// The next edit begins a step of its own.
  void EndEdit() { joins_ = false; }
  /// Replaces the present state without a step: showing settings may bring them into their form.
  void Adopt(EditedSettings settings);

  const EditedSettings& Present() const { return *steps_[present_].After; }
  const EditedSettings& Stored() const { return *stored_; }
  /// Whether something is not stored yet.
  bool IsChanged() const;

  bool CanUndo() const { return present_ > 0; }
  bool CanRedo() const { return present_ + 1 < steps_.size(); }
  /// What an undo or redo would undo or redo; only if it can.
  const std::string& UndoText() const { return steps_[present_].What; }
  const std::string& RedoText() const { return steps_[present_ + 1].What; }
  /// Go one step and return the state that is then present; only if they can.
  const EditedSettings& Undo();
  const EditedSettings& Redo();

 private:
  using State = std::shared_ptr<const EditedSettings>;
  struct Step {
    std::string What;  // led to `After`
    Kind How = Kind::Step;
    State After;
  };

  State stored_ = std::make_shared<const EditedSettings>();
  std::deque<Step> steps_{Step{{}, Kind::Step, stored_}};  // the first is the oldest known state
  std::size_t present_ = 0;
  bool joins_ = false;
};

}  // namespace starfolds
