#include "info/help_viewer.h"

#include <QCloseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QWindow>
#include <utility>

#include "settings/registry.h"
#include "widgets/placed_qt_window.h"

namespace starfolds {
namespace {

constexpr QSize kFirstSize{980, 660};
constexpr int kListWidth = 310;
constexpr int kTextWidth = kFirstSize.width() - kListWidth;
constexpr int kLeastTextWidth = 280;
constexpr int kHomePage = 0;

}  // namespace

HelpViewer::HelpViewer(KeyValueTree& tree, WebPageOpener openWebPage)
    : tree_(tree), openWebPage_(std::move(openWebPage)) {
  setObjectName("helpViewer");
  resize(kFirstSize.boundedTo(screen()->availableSize()));
  page_ = new HelpPage;
  page_->setObjectName("txtTopic");
  page_->setMinimumWidth(kLeastTextWidth);
  connect(page_, &QTextBrowser::anchorClicked, this, &HelpViewer::FollowLink);
  search_ = new HelpSearch(book_);
  connect(search_, &HelpSearch::TopicChosen, this,
          [this](int topic) { OpenTopic(topic, search_->Words()); });
  tabs_ = new QTabWidget;
  tabs_->setObjectName("tabHelp");
  tabs_->addTab(MakeContents(), tr("&Contents"));
  tabs_->addTab(search_, tr("&Search"));
  auto* parts = new QSplitter;
  parts->addWidget(tabs_);
  parts->addWidget(page_);
  parts->setStretchFactor(1, 1);
  parts->setSizes({kListWidth, kTextWidth});
  parts->setChildrenCollapsible(false);
  setCentralWidget(parts);
  MakeTools();
}

void HelpViewer::MakeTools() {
  QToolBar* const tools = addToolBar(tr("Pages"));
  tools->setMovable(false);
  tools->setContextMenuPolicy(Qt::PreventContextMenu);
  tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
  back_ =
      AddTool(*tools, tr("Back"), "cmdBack", {QKeySequence::Back}, [this] { GoTo(reading_ - 1); });
  forward_ = AddTool(*tools, tr("Forward"), "cmdForward", {QKeySequence::Forward},
                     [this] { GoTo(reading_ + 1); });
  AddTool(*tools, tr("Home"), "cmdHome", {Qt::ALT | Qt::Key_Home},
          [this] { OpenTopic(kHomePage); });
  tools->addSeparator();
  AddTool(*tools, tr("Search"), "cmdSearch", {QKeySequence::Find}, [this] { ShowSearch(); });
  tools->addSeparator();
  AddTool(*tools, tr("Larger"), "cmdLarger", {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal},
          [this] { page_->ZoomBy(1); });
  AddTool(*tools, tr("Smaller"), "cmdSmaller", {QKeySequence::ZoomOut},
          [this] { page_->ZoomBy(-1); });
  connect(new QShortcut(Qt::CTRL | Qt::Key_0, this), &QShortcut::activated, page_,
          &HelpPage::ResetZoom);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &HelpViewer::close);
}

QAction* HelpViewer::AddTool(QToolBar& tools, const QString& text, const char* name,
                             const QList<QKeySequence>& keys, const std::function<void()>& act) {
  QAction* tool = tools.addAction(text, this, act);
  tool->setObjectName(name);
  tool->setShortcuts(keys);
  tool->setToolTip(
      QString("%1 (%2)").arg(text, tool->shortcut().toString(QKeySequence::NativeText)));
  return tool;
}

QWidget* HelpViewer::MakeContents() {
  treContents_ = new QTreeWidget;
  treContents_->setObjectName("treContents");
  treContents_->setAccessibleName(tr("Contents"));
  treContents_->setHeaderHidden(true);
  std::vector<QTreeWidgetItem*> above;  // the last entry of each level
  for (const HelpTopic& topic : HelpTopics()) {
    const QStringList title{book_.Title(static_cast<int>(entries_.size()))};
    auto* entry = topic.Level == 0 ? new QTreeWidgetItem(treContents_, title)
                                   : new QTreeWidgetItem(above[topic.Level - 1], title);
    entry->setData(0, Qt::UserRole, static_cast<int>(entries_.size()));
    above.resize(topic.Level);
    above.push_back(entry);
    entries_.push_back(entry);
  }
  treContents_->expandToDepth(0);
  connect(treContents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entry) {
    if (entry) OpenTopic(entry->data(0, Qt::UserRole).toInt());
  });
  return treContents_;
}

void HelpViewer::ShowContext(Integer context) {
  OpenTopic(book_.TopicOf(context));
  BringUp();
  page_->setFocus();
}

void HelpViewer::ShowSetting(const HelpBook::SettingText& text) {
  OpenTopic(text.Topic);
  BringUp();
  page_->ScrollToHeading(text.Heading);
  page_->setFocus();
}

void HelpViewer::ShowContents() {
  if (reading_ < 0) OpenTopic(kHomePage);
  tabs_->setCurrentWidget(treContents_);
  BringUp();
  treContents_->setFocus();
}

void HelpViewer::ShowSearch() {
  if (reading_ < 0) OpenTopic(kHomePage);
  tabs_->setCurrentWidget(search_);
  BringUp();
  search_->Begin();
}

void HelpViewer::BringUp() {
  if (!isVisible()) ShowWherePlaced(*this, tree_, sections::kHelpPlace);
  if (isMinimized()) showNormal();
  raise();
  activateWindow();
}

void HelpViewer::closeEvent(QCloseEvent* event) {
  SaveWindowPlacement(PlacedQtWindow(*windowHandle()), tree_, sections::kHelpPlace);
  event->accept();
}

/// Appends to the history after the current page; pages that were gone back from are dropped.
void HelpViewer::OpenTopic(int topic, const QStringList& words) {
  if (reading_ < 0 || history_[reading_].Topic != topic) {
    if (reading_ >= 0) history_[reading_].Scrolled = page_->verticalScrollBar()->value();
    history_.resize(reading_ + 1);
    history_.push_back({topic, 0});
    ++reading_;
  }
  ShowPage(topic, words);
}

void HelpViewer::GoTo(int reading) {
  history_[reading_].Scrolled = page_->verticalScrollBar()->value();
  reading_ = reading;
  ShowPage(history_[reading].Topic, {});
  page_->verticalScrollBar()->setValue(history_[reading].Scrolled);
}

void HelpViewer::ShowPage(int topic, const QStringList& words) {
  page_->ShowMarkdown(book_.Markdown(topic), words);
  setWindowTitle(tr("Starfolds Help - %1").arg(book_.Title(topic)));
  back_->setEnabled(reading_ > 0);
  forward_->setEnabled(reading_ + 1 < static_cast<int>(history_.size()));
  const QSignalBlocker quiet(treContents_);
  treContents_->setCurrentItem(entries_[topic]);
  treContents_->scrollToItem(entries_[topic]);
}

void HelpViewer::FollowLink(const QUrl& link) {
  if (!link.isRelative()) return openWebPage_(link.toString().toStdString());
  if (const auto topic = book_.TopicOfFile(link.path())) OpenTopic(*topic);
}

}  // namespace starfolds
