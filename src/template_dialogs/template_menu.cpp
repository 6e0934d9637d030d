#include "template_dialogs/template_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <memory>
#include <utility>

#include "desktop/translation.h"
#include "settings/product.h"
#include "settings/share_link.h"
#include "settings/templates.h"
#include "template_dialogs/frm_file_io.h"
#include "template_dialogs/recent_templates.h"
#include "template_dialogs/shared_link.h"
#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

constexpr char kExtension[] = "sfd";
constexpr char kFileTypes[] =
    STARFOLDS_TEXT("Starfold Templates (*.sfd)|*.sfd|All Files (*.*)|*.*|");

/// The path of the dragged template; nullopt unless exactly one template file is dragged.
std::optional<std::string> DraggedTemplate(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
  const QString path = urls.front().toLocalFile();
  if (!path.endsWith(QString(".") + kExtension, Qt::CaseInsensitive)) return std::nullopt;
  return path.toStdString();
}

/// Whether a modal dialog of the program blocks the window.
bool IsWaiting(const QWidget& window) {
  const QWidget* over = QApplication::activeModalWidget();
  return over != nullptr && over != &window;
}

}  // namespace

TemplateMenu::TemplateMenu(TemplateHost host) : host_(std::move(host)) {
  host_.Window.setAcceptDrops(true);
  host_.Window.installEventFilter(this);
  // The source program waits until the drop has been handled, so a message box must come later.
  connect(this, &TemplateMenu::Dropped, this, &TemplateMenu::OpenDropped, Qt::QueuedConnection);
}

void TemplateMenu::AddTo(QMenu& file) {
  const auto add = [&](const QString& text, const char* name, const QKeySequence& key,
                       void (TemplateMenu::*act)()) {
    QAction* entry = file.addAction(text, this, act);
    entry->setObjectName(name);
    entry->setShortcut(key);
    entries_.push_back(entry);
  };
  add(tr("&Open Template..."), "mnuOpen", QKeySequence::Open, &TemplateMenu::Open);
  recent_ = file.addMenu(tr("Open &Recent"));
  recent_->setObjectName("mnuRecent");
  recent_->setToolTipsVisible(true);
  entries_.push_back(recent_->menuAction());
  connect(recent_, &QMenu::aboutToShow, this, &TemplateMenu::ListRecent);
  add(tr("&Save Template"), "mnuSave", QKeySequence::Save, &TemplateMenu::Save);
  add(tr("Save Template &As..."), "mnuSaveAs", Qt::CTRL | Qt::SHIFT | Qt::Key_S,
      &TemplateMenu::SaveAs);
}

void TemplateMenu::ListRecent() {
  recent_->clear();
  for (const std::string& path : RecentTemplates(host_.Settings.Tree)) {
    constexpr int longest = 40;
    QString name = QFileInfo(Shown(path)).fileName();
    if (name.size() > longest) name = name.left(longest) + "…";
    QAction* entry = recent_->addAction(name.replace("&", "&&"), this,
                                        [this, path] { RunInPreview(true, path); });
    entry->setToolTip(Shown(path));
  }
  if (recent_->isEmpty()) recent_->addAction(tr("None yet"))->setEnabled(false);
}

/// The settings are saved to a template in memory, which has those that were typed.
void TemplateMenu::ShareAsLink(const std::string& page) {
  host_.Settle();
  MemoryFiles files;
  TemplateFile file(files);
  file.TemplateFileName = "link.sfd";
  PropertySettings settings{
      host_.Settings.Tree,  host_.Settings.Profiles,      host_.Settings.Composites, file, files,
      host_.Settings.Boxes, host_.Settings.ProgramFolder, host_.Settings.UserFolder};
  SaveTemplate(settings, host_.Dialog, nullptr);
  const auto records = std::make_unique<SettingsRecords>();
  ReadTemplate(file, file.TemplateFileName, *records);
  const QString fragment = LinkFragment(LinkText(*records, {}));
  if (fragment.size() > kLongestLinkFragment) {
    host_.Settings.Boxes.Show(
        tr("The settings are too long for a link. Save them as a template instead.").toStdString(),
        BoxStyle::Exclamation, std::string(kProductName));
    return;
  }
  QGuiApplication::clipboard()->setText(Shown(page) + "#" + fragment);
  host_.Settings.Boxes.Show(
      tr("A link to this universe is in the clipboard now. Whoever opens it sees the universe in a "
         "browser.\n\nThe link contains the settings, without your on-screen message. Nothing was "
         "sent.")
          .toStdString(),
      BoxStyle::Information, std::string(kProductName));
}

void TemplateMenu::SetEnabled(bool enabled) {
  enabled_ = enabled;
  for (QAction* entry : entries_) entry->setEnabled(enabled);
}

bool TemplateMenu::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
    return QObject::eventFilter(watched, event);
  }
  auto* drop = static_cast<QDropEvent*>(event);
  const auto path = DraggedTemplate(drop->mimeData());
  if (!path || !enabled_ || IsWaiting(host_.Window)) {
    drop->ignore();
    return true;
  }
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  if (event->type() == QEvent::Drop) emit Dropped(Shown(*path));
  return true;
}

void TemplateMenu::Save() {
  if (File().CurrentTemplate.empty()) return SaveAs();
  RunInPreview(false, File().CurrentTemplate);
}

void TemplateMenu::Choose(bool open) {
  const auto load = [this](const std::string& path, ProgressPicture* picture) {
    return LoadFrom(path, picture);
  };
  const auto save = [this](const std::string& path, ProgressPicture* picture) {
    return SaveTo(path, picture);
  };
  FrmFileIo frmFileIo(
      {host_.Settings.Tree, host_.HelpBook, host_.Settings.Boxes, host_.Settings.ProgramFolder,
       load, save, &host_.Settings.Disk, host_.Stills},
      &host_.Window);
  frmFileIo.ChooseTemplate(
      open, true, open ? tr("Select Template to Open") : tr("Enter or Select Template to Save"),
      Translated(kFileTypes), kExtension);
}

/// Queued: a preview may have been started meanwhile.
void TemplateMenu::OpenDropped(const QString& path) {
  if (enabled_ && !IsWaiting(host_.Window)) RunInPreview(true, path.toStdString());
}

/// Runs without the file dialog, so the preview shows the progress.
void TemplateMenu::RunInPreview(bool open, const std::string& path) {
  ProgressPicture* picture = host_.Dialog.Preview();
  const auto fault = open ? LoadFrom(path, picture) : SaveTo(path, picture);
  picture->Clear();
  host_.ShowStill();
  if (!fault) return;
  host_.Settings.Boxes.Show(TemplateFaultText(open, path, *fault), BoxStyle::Exclamation,
                            std::string(kProductName));
}

std::optional<std::string> TemplateMenu::LoadFrom(const std::string& path,
                                                  ProgressPicture* picture) {
  File().TemplateFileName = path;
  const QString name = QFileInfo(Shown(path)).fileName();
  host_.AboutToChange(tr("Opening of %1").arg(name));
  if (auto fault = LoadTemplate(host_.Settings, host_.Dialog, picture)) return fault;
  File().CurrentTemplate = path;
  host_.Loaded();
  AddRecentTemplate(host_.Settings.Tree, path);
  host_.Say(tr("Loaded %1").arg(name));
  return std::nullopt;
}

std::optional<std::string> TemplateMenu::SaveTo(const std::string& path, ProgressPicture* picture) {
  host_.Settle();
  File().TemplateFileName = path;
  if (auto fault = SaveTemplate(host_.Settings, host_.Dialog, picture)) return fault;
  File().CurrentTemplate = path;
  AddRecentTemplate(host_.Settings.Tree, path);
  host_.Say(tr("Saved %1").arg(QFileInfo(Shown(path)).fileName()));
  return std::nullopt;
}

}  // namespace starfolds
