// The help of a process with windows.
#pragma once

#include <memory>

#include "platform/desktop_services.h"
#include "platform/help.h"
#include "platform/key_value_tree.h"
#include "platform/message_boxes.h"

namespace starfolds {

class HelpViewer;

/// Costs nothing before it is asked for: its window is made when it is first shown.
class HelpWindow : public Help {
 public:
  /// Remembers its place in `tree`. A web page that cannot be opened is told of in `boxes`.
  HelpWindow(KeyValueTree& tree, DesktopServices& desktop, MessageBoxes& boxes);
  ~HelpWindow() override;

  void ShowTopic(Integer context) override;
  void ShowContents() override;
  void ShowSearch() override;
  void Quit() override;

 private:
  HelpViewer& Viewer();

  KeyValueTree& tree_;
  DesktopServices& desktop_;
  MessageBoxes& boxes_;
  std::unique_ptr<HelpViewer> viewer_;
};

}  // namespace starfolds
