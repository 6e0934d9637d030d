// What the parts of the properties dialog share.
#pragma once

#include <functional>
#include <string>

#include "colour/saver.h"
#include "hosting/dialog_parts.h"
#include "platform/help.h"
#include "platform/message_boxes.h"
#include "settings/product.h"

namespace starfolds {

/// The records that are edited are the profiles and composites of a process state that belongs to
/// the dialog: a run beside it has its own.
struct PropsModel {
  Saver& Process;
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
