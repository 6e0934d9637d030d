// The window of the help.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

#include "info/help_book.h"
#include "info/help_page.h"
#include "info/help_search.h"
#include "platform/key_value_tree.h"

namespace starfolds {

/// Contents and search on the left, a topic on the right. It has no parent, so that it can be used
/// while a dialog is open.
class HelpViewer : public QMainWindow {
  Q_OBJECT

 public:
  using WebPageOpener = std::function<void(const std::string& url)>;

  /// Stores its placement in `tree`.
  HelpViewer(KeyValueTree& tree, WebPageOpener openWebPage);

  void ShowContext(Integer context);
  void ShowSetting(const HelpBook::SettingText& text);
  void ShowContents();
  void ShowSearch();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  /// An entry of the history: a page and its scroll position.
  struct Reading {
    int Topic;
    int Scrolled;
  };

  void MakeTools();
  QAction* AddTool(QToolBar& tools, const QString& text, const char* name,
                   const QList<QKeySequence>& keys, const std::function<void()>& act);
  QWidget* MakeContents();
  /// Shows the window, or raises it.
  void BringUp();
  void OpenTopic(int topic, const QStringList& words = {});
  void ShowPage(int topic, const QStringList& words);
  void GoTo(int reading);
  void FollowLink(const QUrl& link);

  KeyValueTree& tree_;
  WebPageOpener openWebPage_;
  HelpBook book_;
  std::vector<Reading> history_;
  int reading_ = -1;  // index of the current entry

  QTabWidget* tabs_ = nullptr;
  QTreeWidget* treContents_ = nullptr;
  std::vector<QTreeWidgetItem*> entries_;  // of the contents, by topic index
  HelpSearch* search_ = nullptr;
  HelpPage* page_ = nullptr;
  QAction* back_ = nullptr;
  QAction* forward_ = nullptr;
};

}  // namespace starfolds
