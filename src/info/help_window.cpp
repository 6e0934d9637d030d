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

void HelpWindow::ShowSetting(std::string_view setting, int style) {
  const auto text = Book().OfSetting(setting, style);
  if (text) return Viewer().ShowSetting(*text);
  ShowContents();
}

std::string HelpWindow::SentenceOf(std::string_view setting, int style) {
  const auto text = Book().OfSetting(setting, style);
  return text ? text->Sentence.toStdString() : std::string();
}

const HelpBook& HelpWindow::Book() {
  if (!book_) book_ = std::make_unique<HelpBook>();
  return *book_;
}

void HelpWindow::ShowContents() { Viewer().ShowContents(); }

void HelpWindow::ShowSearch() { Viewer().ShowSearch(); }

void HelpWindow::Quit() {
  if (viewer_ && viewer_->isVisible()) viewer_->close();
}

}  // namespace starfolds
