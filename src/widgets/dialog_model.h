// What the parts of the properties dialog share.
#pragma once

#include <functional>
#include <string>

#include "platform/help.h"
#include "platform/message_boxes.h"
#include "process/process_state.h"
#include "settings/product.h"
#include "widgets/dialog_parts.h"

namespace starfolds {

class StillService;

/// The edited records are the profiles and composites of a process state that belongs to the
/// dialog; a run of the same process has another one.
struct PropsModel {
  ProcessState& Process;
  MessageBoxes& Boxes;
  Help& HelpBook;
  StillService* Stills = nullptr;  // nullptr: lists show no stills

  ProfileArray& Profiles() const { return Process.Profiles; }
  CompositeArray& Composites() const { return Process.Composites; }

  /// Shows a message in the user's language with the button "OK".
  void Inform(const QString& text) const {
    Boxes.Show(text.toStdString(), BoxStyle::Information, std::string(kProductName));
  }
};

}  // namespace starfolds
