#include "info/help_window.h"

#include "info/help_viewer.h"
#include "widgets/web_page.h"

namespace starfolds {

HelpWindow::HelpWindow(KeyValueTree& tree, DesktopServices& desktop, MessageBoxes& boxes)
    : tree_(tree), desktop_(desktop), boxes_(boxes) {}

HelpWindow::~HelpWindow() = default;

HelpViewer& HelpWindow::Viewer() {
  if (!viewer_) {
    viewer_ = std::make_unique<HelpViewer>(
        tree_, [this](const std::string& url) { OpenWebPage(desktop_, boxes_, url); });
  }
  return *viewer_;
}

void HelpWindow::ShowTopic(Integer context) { Viewer().ShowContext(context); }

void HelpWindow::ShowContents() { Viewer().ShowContents(); }

void HelpWindow::ShowSearch() { Viewer().ShowSearch(); }

void HelpWindow::Quit() {
  if (viewer_ && viewer_->isVisible()) viewer_->close();
}

}  // namespace starfolds
