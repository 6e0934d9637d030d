// The help of a process with windows.
#pragma once

#include <memory>

#include "platform/desktop_services.h"
#include "platform/help.h"
#include "platform/key_value_tree.h"
#include "platform/message_boxes.h"

namespace starfolds {

class HelpBook;
class HelpViewer;

/// Creates its window when it is first shown.
class HelpWindow : public Help {
 public:
  /// Stores its placement in `tree`. If a web page cannot be opened, it tells the user in `boxes`.
  HelpWindow(KeyValueTree& tree, DesktopServices& desktop, MessageBoxes& boxes);
  ~HelpWindow() override;

  void ShowTopic(Integer context) override;
  void ShowSetting(std::string_view setting, int style) override;
  std::string SentenceOf(std::string_view setting, int style) override;
  void ShowContents() override;
  void ShowSearch() override;
  void Quit() override;

 private:
  HelpViewer& Viewer();
  const HelpBook& Book();

  KeyValueTree& tree_;
  DesktopServices& desktop_;
  MessageBoxes& boxes_;
  std::unique_ptr<HelpBook> book_;  // of the sentences; read when the first one is asked for
  std::unique_ptr<HelpViewer> viewer_;
};

}  // namespace starfolds
