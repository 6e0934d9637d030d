#include "editors/frm_file_io.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "editors/props_model.h"
#include "settings/product.h"
#include "settings/registry.h"

namespace starfolds {
namespace {

constexpr char kDriveKey[] = "Path_Drive";
constexpr char kFolderKey[] = "Path_Dir";

constexpr int kStatusHeight = 12;
constexpr QSize kLeastList{270, 240};
constexpr int kStep = 14;  // by which a folder stands behind the one that holds it

constexpr int kPathRole = Qt::UserRole;
constexpr int kDepthRole = Qt::UserRole + 1;

/// Folders stand behind the one that holds them. A long name is cut in the middle.
class FolderDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    indented.rect.setLeft(option.rect.left() + kStep * index.data(kDepthRole).toInt());
    QStyledItemDelegate::paint(painter, indented, index);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

/// An empty text where what is stored could not be read back.
std::string StoredPath(const QString& path) {
  std::string text = path.toStdString();
  return text == StorableText(text) ? text : std::string();
}

bool IsPlainName(const QString& typed) {
  return !typed.contains('/') && typed != "~" && typed != "." && typed != "..";
}

}  // namespace

std::string TemplateFaultText(bool open, const std::string& path, const std::string& reason) {
  return std::string(open ? "The template could not be opened:\n"
                          : "The template could not be saved to:\n") +
         QDir::toNativeSeparators(Shown(path)).toStdString() + "\n\n" + reason;
}

FrmFileIo::FrmFileIo(const FileIoSurroundings& surroundings, QWidget* parent)
    : PlacedDialog(
          {surroundings.Tree, sections::kTemplatePlace, surroundings.HelpBook, help::kFileIo},
          parent),
      around_(surroundings),
      roots_(FolderRoots(ShippedTemplates(Shown(surroundings.ProgramFolder)))) {
  setObjectName("frmFileIO");
  setWindowTitle(tr("Select Template File"));
  MakeControls();
  LayOut();
  ConnectControls();
}

std::string FrmFileIo::ChooseTemplate(bool open, bool action, const QString& title,
                                      const QString& fileTypes, const QString& extension) {
  open_ = open;
  action_ = action;
  extension_ = extension;
  selectedPath_.clear();
  setWindowTitle(title);
  lblStatus_->setText(open ? tr("Loading Status:") : tr("Saving Status:"));
  lblReplaces_->setVisible(!open);
  SetFileTypes(fileTypes);
  EnterFirstFolder();
  txtFile_->setFocus();
  RunModal();
  return selectedPath_;
}

/// Return goes into a folder that is selected. Everywhere else it presses "OK".
void FrmFileIo::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && dirTemp_->hasFocus()) return OpenSelectedFolder();
  PlacedDialog::keyPressEvent(event);
}

void FrmFileIo::MakeControls() {
  const auto named = [this](auto* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
  };
  // In the order of the Tab key.
  txtFile_ = named(new QLineEdit(this), "txtFile");
  filTemp_ = named(new QListWidget(this), "filTemp");
  cboTypes_ = named(new QComboBox(this), "cboTypes");
  cboFilter_ = named(new QComboBox(this), "cboFilter");
  drvTemp_ = named(new QComboBox(this), "drvTemp");
  dirTemp_ = named(new QListWidget(this), "dirTemp");
  cmdOK_ = named(new QPushButton(tr("OK"), this), "cmdOK");
  cmdDismiss_ = named(new QPushButton(tr("Cancel"), this), "cmdDismiss");
  lblReplaces_ = new QLabel(tr("A file of the same name is replaced."), this);
  lblStatus_ = new QLabel(this);
  picStatus_ = named(new PictureBox(this), "picStatus");

  filTemp_->setAccessibleName(tr("Files"));
  dirTemp_->setAccessibleName(tr("Folders"));
  dirTemp_->setItemDelegate(new FolderDelegate(dirTemp_));
  dirTemp_->setTextElideMode(Qt::ElideMiddle);
  filTemp_->setUniformItemSizes(true);  // of a hundred thousand files none is measured
  for (QListWidget* list : {filTemp_, dirTemp_}) list->setMinimumSize(kLeastList);
  cboFilter_->hide();
  for (const FolderRoot& root : roots_) drvTemp_->addItem(root.Name);
  for (QComboBox* list : {drvTemp_, cboTypes_}) {
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  }
  cmdOK_->setDefault(true);
  cmdDismiss_->setAutoDefault(false);
  picStatus_->setAccessibleName(tr("Progress"));
  picStatus_->setFixedHeight(kStatusHeight);
  for (QWidget* widget : {static_cast<QWidget*>(lblStatus_), static_cast<QWidget*>(picStatus_)}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);  // the dialog does not jump
    widget->setSizePolicy(policy);
    widget->hide();
  }
}

void FrmFileIo::LayOut() {
  auto* column = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  AddNameColumn(*grid);
  AddFolderColumn(*grid);
  for (const int stretched : {0, 1}) grid->setColumnStretch(stretched, 1);
  grid->setRowStretch(2, 1);
  column->addLayout(grid, 1);
  auto* last = new QHBoxLayout;
  last->addWidget(lblStatus_);
  last->addWidget(picStatus_, 1);
  for (QPushButton* button : {cmdOK_, cmdDismiss_, MakeHelpButton()}) last->addWidget(button);
  column->addLayout(last);
}

void FrmFileIo::AddNameColumn(QGridLayout& grid) {
  auto* name = new QLabel(tr("File &name:"));
  name->setBuddy(txtFile_);
  auto* types = new QLabel(tr("List Files of &Type:"));
  types->setBuddy(cboTypes_);
  grid.addWidget(name, 0, 0);
  grid.addWidget(txtFile_, 1, 0);
  grid.addWidget(filTemp_, 2, 0);
  grid.addWidget(types, 3, 0);
  grid.addWidget(cboTypes_, 4, 0);
}

void FrmFileIo::AddFolderColumn(QGridLayout& grid) {
  auto* drive = new QLabel(tr("&Drive / Directory:"));
  drive->setBuddy(drvTemp_);
  grid.addWidget(drive, 0, 1);
  grid.addWidget(drvTemp_, 1, 1);
  grid.addWidget(dirTemp_, 2, 1);
  grid.addWidget(lblReplaces_, 4, 1);
}

void FrmFileIo::ConnectControls() {
  connect(drvTemp_, &QComboBox::currentIndexChanged, this, [this](int root) {
    if (!EnterFolder(roots_[static_cast<std::size_t>(root)].Path)) ReadAgain();
  });
  connect(dirTemp_, &QListWidget::itemDoubleClicked, this, &FrmFileIo::OpenSelectedFolder);
  connect(filTemp_, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> selected = filTemp_->selectedItems();
    if (!selected.isEmpty()) txtFile_->setText(selected.front()->text());
  });
  connect(filTemp_, &QListWidget::itemDoubleClicked, cmdOK_, &QPushButton::click);
  connect(cboTypes_, &QComboBox::currentIndexChanged, this, [this](int type) {
    cboFilter_->setCurrentIndex(type);
    ReadAgain();
  });
  connect(cmdOK_, &QPushButton::clicked, this, &FrmFileIo::Ok);
  connect(cmdDismiss_, &QPushButton::clicked, this, &FrmFileIo::reject);
}

void FrmFileIo::SetFileTypes(const QString& fileTypes) {
  const QSignalBlocker quiet(cboTypes_);
  cboTypes_->clear();
  cboFilter_->clear();
  const QStringList texts = fileTypes.split('|');
  for (qsizetype i = 0; i + 1 < texts.size(); i += 2) {
    cboTypes_->addItem(texts[i]);
    cboFilter_->addItem(texts[i + 1]);
  }
}

/// Where the user was last; the first time at the templates that came with the program, or at home,
/// where files can be saved.
void FrmFileIo::EnterFirstFolder() {
  const auto stored = [this](const char* key) {
    return Shown(RegistryReadText(around_.Tree, sections::kTemplate, key));
  };
  const QString templates = ShippedTemplates(Shown(around_.ProgramFolder));
  const bool entered = open_ && !templates.isEmpty() && EnterFolder(templates);
  if (!entered && !EnterFolder(roots_.front().Path)) EnterFolder(QDir::rootPath());
  const QString drive = stored(kDriveKey);
  for (const FolderRoot& root : roots_) {
    if (root.Path == drive) EnterFolder(drive);
  }
  const QString folder = stored(kFolderKey);
  if (QDir::isAbsolutePath(folder)) EnterFolder(QDir::cleanPath(folder));
}

/// A folder that cannot be read leaves everything as it is.
bool FrmFileIo::EnterFolder(const QString& folder) {
  const auto contents = ReadFolder(folder, cboFilter_->currentText());
  if (!contents) return false;
  folder_ = folder;
  const QSignalBlocker quiet(drvTemp_);
  drvTemp_->setCurrentIndex(RootOf(roots_, folder));
  ShowFolders(contents->Folders);
  ShowFiles(contents->Files);
  return true;
}

bool FrmFileIo::EnterOrSay(const QString& folder) {
  if (EnterFolder(folder)) return true;
  Inform("The folder cannot be read.");
  return false;
}

void FrmFileIo::ShowFolders(const QStringList& subfolders) {
  const QIcon openIcon = style()->standardIcon(QStyle::SP_DirOpenIcon, nullptr, this);
  const QIcon closedIcon = style()->standardIcon(QStyle::SP_DirClosedIcon, nullptr, this);
  dirTemp_->clear();
  int depth = 0;
  const auto add = [&](const QIcon& icon, const QString& name, const QString& path) {
    auto* item = new QListWidgetItem(icon, name, dirTemp_);
    item->setData(kPathRole, path);
    item->setData(kDepthRole, depth);
    item->setToolTip(QDir::toNativeSeparators(path));
  };
  const QString& root = roots_[static_cast<std::size_t>(drvTemp_->currentIndex())].Path;
  for (const QString& folder : WayTo(root, folder_)) {
    const QString name =
        depth == 0 ? QDir::toNativeSeparators(folder) : QFileInfo(folder).fileName();
    add(openIcon, name, folder);
    ++depth;
  }
  dirTemp_->setCurrentRow(depth - 1);
  for (const QString& name : subfolders) add(closedIcon, name, TypedPath(folder_, name));
  dirTemp_->scrollToItem(dirTemp_->currentItem());
}

void FrmFileIo::ShowFiles(const QStringList& files) {
  filTemp_->clear();
  filTemp_->addItems(files);
}

void FrmFileIo::OpenSelectedFolder() {
  if (const QListWidgetItem* item = dirTemp_->currentItem()) {
    EnterOrSay(item->data(kPathRole).toString());
  }
}

void FrmFileIo::Ok() {
  // A name may have blanks at its ends, but a text that was pasted has more often.
  const QString text = txtFile_->text();
  const bool exact = !text.isEmpty() && QFileInfo::exists(TypedPath(folder_, text));
  const QString typed = exact ? text : text.trimmed();
  if (!typed.trimmed().isEmpty() && EnterTypedFolder(typed)) return;
  if (open_) {
    TakeForOpening(typed);
  } else {
    TakeForSaving(typed);
  }
}

/// Where a file is saved, a plain name is that of a file.
bool FrmFileIo::EnterTypedFolder(const QString& typed) {
  if (!open_ && IsPlainName(QDir::fromNativeSeparators(typed))) return false;
  const QString path = TypedPath(folder_, typed);
  if (!QFileInfo(path).isDir()) return false;
  if (EnterOrSay(path)) txtFile_->clear();
  return true;
}

void FrmFileIo::TakeForOpening(const QString& typed) {
  const QString path = TypedPath(folder_, typed);
  if (typed.isEmpty() || !QFileInfo::exists(path)) {
    return Refuse("Please select an existing file.");
  }
  Take(path);
}

void FrmFileIo::TakeForSaving(const QString& typed) {
  if (typed.isEmpty()) return Refuse("Please enter a file name.");
  const QString name = QDir::fromNativeSeparators(typed).section('/', -1);
  const QString path = TypedPath(folder_, name.contains('.') ? typed : typed + "." + extension_);
  if (!CanBeWritten(path)) return Refuse("Please enter a valid path and file.");
  Take(path);
}

void FrmFileIo::Take(const QString& path) {
  const std::string chosen = path.toStdString();
  if (action_) {
    lblStatus_->show();
    picStatus_->show();
    picStatus_->Clear();
    const auto fault = (open_ ? around_.Load : around_.Save)(chosen, picStatus_);
    lblStatus_->hide();
    picStatus_->hide();
    if (fault) {
      around_.Boxes.Show(TemplateFaultText(open_, chosen, *fault), BoxStyle::Exclamation,
                         std::string(kProductName));
      return txtFile_->setFocus();
    }
  }
  selectedPath_ = chosen;
  EnterFolder(QFileInfo(path).path());
  StoreFolder();
  accept();
}

/// Of a path that is too long to be stored it is the nearest folder above.
void FrmFileIo::StoreFolder() {
  QString folder = folder_;
  while (StoredPath(folder).empty()) folder = QFileInfo(folder).path();
  TreeBulk change = TreeBulk::Change(around_.Tree);
  const QString& root = roots_[static_cast<std::size_t>(drvTemp_->currentIndex())].Path;
  RegistryWrite(around_.Tree, sections::kTemplate, kDriveKey, StorableText(root.toStdString()));
  RegistryWrite(around_.Tree, sections::kTemplate, kFolderKey, StoredPath(folder));
  change.Commit();
}

void FrmFileIo::Inform(const std::string& text) {
  around_.Boxes.Show(text, BoxStyle::Information, std::string(kProductName));
}

void FrmFileIo::Refuse(const std::string& text) {
  Inform(text);
  txtFile_->setFocus();
}

}  // namespace starfolds
