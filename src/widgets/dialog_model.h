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

/// The records that are edited are the profiles and composites of a process state that belongs to
/// the dialog: a run beside it has its own.
struct PropsModel {
  ProcessState& Process;
  MessageBoxes& Boxes;
  Help& HelpBook;

  ProfileArray& Profiles() const { return Process.Profiles; }
  CompositeArray& Composites() const { return Process.Composites; }

  /// A box with "OK" that tells what is missing.
  void Inform(const std::string& text) const {
    Boxes.Show(text, BoxStyle::Information, std::string(kProductName));
  }
};

}  // namespace starfolds
