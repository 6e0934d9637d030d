#include "template_dialogs/frm_file_io.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/user_text.h"
#include "settings/product.h"
#include "settings/registry.h"
#include "widgets/dialog_model.h"

namespace starfolds {
namespace {

constexpr char kDriveKey[] = "Path_Drive";
constexpr char kFolderKey[] = "Path_Dir";

constexpr int kStatusHeight = 12;
constexpr QSize kLeastList{270, 240};
constexpr int kStep = 14;  // indentation per folder level, in pixels

/// The path, or empty text if it would not be read back unchanged.
std::string StoredPath(const QString& path) {
  std::string text = path.toStdString();
  return text == StorableText(text) ? text : std::string();
}

bool IsPlainName(const QString& typed) {
  return !typed.contains('/') && typed != "~" && typed != "." && typed != "..";
}

}  // namespace

/// Indents folders by their level, and elides long names in the middle. The look of an entry
/// depends on its row only, so that a list of 100,000 entries is filled quickly.
class FrmFileIo::FolderDelegate : public QStyledItemDelegate {
 public:
  explicit FolderDelegate(QListWidget* list)
      : QStyledItemDelegate(list),
        open_(list->style()->standardIcon(QStyle::SP_DirOpenIcon, nullptr, list)),
        closed_(list->style()->standardIcon(QStyle::SP_DirClosedIcon, nullptr, list)) {}

  /// The first `folders` entries are the path to the current folder; the others are its subfolders.
  void SetWay(qsizetype folders) { way_ = static_cast<int>(folders); }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    indented.rect.setLeft(option.rect.left() + kStep * std::min(index.row(), way_));
    QStyledItemDelegate::paint(painter, indented, index);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->icon = index.row() < way_ ? open_ : closed_;
    option->decorationSize = option->icon.actualSize(option->decorationSize);
  }

 private:
  int way_ = 0;
  QIcon open_;
  QIcon closed_;
};

UserText TemplateFaultText(bool open, const std::string& path, const std::string& reason) {
  return {open ? STARFOLDS_TEXT("The template could not be opened:\n%1")
               : STARFOLDS_TEXT("The template could not be saved to:\n%1"),
          {QDir::toNativeSeparators(Shown(path)).toStdString()},
          reason};
}

FrmFileIo::FrmFileIo(const FileIoSurroundings& surroundings, QWidget* parent)
    : PlacedDialog(
          {surroundings.Tree, sections::kTemplatePlace, surroundings.HelpBook, help::kFileIo},
          parent),
      around_(surroundings),
      templates_(ShippedTemplates(Shown(surroundings.ProgramFolder))),
      roots_(FolderRoots(templates_)) {
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

/// Return enters a selected folder. Everywhere else it presses "OK".
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
  // In tab order.
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
  folderDelegate_ = new FolderDelegate(dirTemp_);
  dirTemp_->setItemDelegate(folderDelegate_);
  dirTemp_->setTextElideMode(Qt::ElideMiddle);
  for (QListWidget* list : {filTemp_, dirTemp_}) {
    list->setUniformItemSizes(true);  // measures one of 100,000 entries
    list->setMinimumSize(kLeastList);
  }
  if (around_.Disk && around_.Stills) {
    preview_ = new TemplatePreview(*around_.Disk, *around_.Stills, this);
  }
  cboFilter_->hide();
  for (const FolderRoot& root : roots_) drvTemp_->addItem(root.Name);
  for (QComboBox* list : {drvTemp_, cboTypes_}) {
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  }
  cmdOK_->setDefault(true);
  picStatus_->setAccessibleName(tr("Progress"));
  picStatus_->setFixedHeight(kStatusHeight);
  for (QWidget* widget : {static_cast<QWidget*>(lblStatus_), static_cast<QWidget*>(picStatus_)}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);  // keeps the layout when it is hidden
    widget->setSizePolicy(policy);
    widget->hide();
  }
}

void FrmFileIo::LayOut() {
  auto* column = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  AddNameColumn(*grid);
  AddFolderColumn(*grid);
  if (preview_) grid->addWidget(preview_, 0, 2, 5, 1);
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
    if (root < 0 || !EnterFolder(Root(root))) ReadAgain();
  });
  connect(dirTemp_, &QListWidget::itemDoubleClicked, this, &FrmFileIo::OpenSelectedFolder);
  const auto copyName = [this] {
    const QList<QListWidgetItem*> selected = filTemp_->selectedItems();
    if (!selected.isEmpty()) txtFile_->setText(selected.front()->text());
  };
  connect(filTemp_, &QListWidget::itemSelectionChanged, this, copyName);
  connect(filTemp_, &QListWidget::itemClicked, this, copyName);  // the selected one as well
  connect(filTemp_, &QListWidget::itemDoubleClicked, cmdOK_, &QPushButton::click);
  connect(cboTypes_, &QComboBox::currentIndexChanged, this, [this](int type) {
    cboFilter_->setCurrentIndex(type);
    ReadAgain();
  });
  if (preview_) {
    connect(txtFile_, &QLineEdit::textChanged, this, [this](const QString& text) {
      preview_->ShowFile(text.isEmpty() ? QString() : TypedPath(folder_, text));
    });
  }
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

/// The folder that was used last. The first time, that of the program's templates for opening, and
/// the home folder for saving.
void FrmFileIo::EnterFirstFolder() {
  TreeBulk look = TreeBulk::Look(around_.Tree);
  const QString drive = Shown(RegistryReadText(around_.Tree, sections::kTemplate, kDriveKey));
  const QString folder = Shown(RegistryReadText(around_.Tree, sections::kTemplate, kFolderKey));
  look.Commit();
  const auto enter = [this](const QString& place) {
    return (open_ || place != templates_) && EnterFolder(place);
  };
  if (!enter(templates_) && !EnterFolder(roots_.front().Path)) EnterFolder(QDir::rootPath());
  for (const FolderRoot& root : roots_) {
    if (root.Path == drive) enter(drive);
  }
  if (QDir::isAbsolutePath(folder)) enter(QDir::cleanPath(folder));
}

/// If the folder cannot be read, nothing changes.
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
  Inform(tr("The folder cannot be read."));
  return false;
}

void FrmFileIo::ShowFolders(const QStringList& subfolders) {
  const QString& root = Root(RootOf(roots_, folder_));
  way_ = WayTo(root, folder_);
  folderDelegate_->SetWay(way_.size());
  QStringList names{QDir::toNativeSeparators(way_.front())};
  for (const QString& folder : way_.mid(1)) names.append(QFileInfo(folder).fileName());
  dirTemp_->clear();
  dirTemp_->addItems(names + subfolders);
  dirTemp_->item(0)->setToolTip(names.front());
  dirTemp_->setCurrentRow(static_cast<int>(way_.size()) - 1);
}

void FrmFileIo::ShowFiles(const QStringList& files) {
  filTemp_->clear();
  filTemp_->addItems(files);
}

void FrmFileIo::OpenSelectedFolder() {
  const int row = dirTemp_->currentRow();
  if (row < 0) return;
  EnterOrSay(row < way_.size() ? QString(way_[row])
                               : TypedPath(folder_, dirTemp_->item(row)->text()));
}

void FrmFileIo::Ok() {
  // A name may begin or end with blanks, but they are more likely from a paste.
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

/// When saving, a name without a path is always that of a file.
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
    return Refuse(tr("Please select an existing file."));
  }
  Take(path);
}

void FrmFileIo::TakeForSaving(const QString& typed) {
  if (typed.isEmpty()) return Refuse(tr("Please enter a file name."));
  const QString name = QDir::fromNativeSeparators(typed).section('/', -1);
  const QString path = TypedPath(folder_, name.contains('.') ? typed : typed + "." + extension_);
  if (!CanBeWritten(path)) return Refuse(tr("Please enter a valid path and file."));
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
      return FocusName();
    }
  }
  selectedPath_ = chosen;
  EnterFolder(QFileInfo(path).path());
  StoreFolder();
  accept();
}

/// If the path is too long to be stored, stores the nearest parent that fits.
void FrmFileIo::StoreFolder() {
  QString folder = folder_;
  while (!folder.isEmpty() && StoredPath(folder).empty()) folder = QFileInfo(folder).path();
  TreeBulk change = TreeBulk::Change(around_.Tree);
  const QString& root = Root(RootOf(roots_, folder_));
  RegistryWrite(around_.Tree, sections::kTemplate, kDriveKey, StorableText(root.toStdString()));
  RegistryWrite(around_.Tree, sections::kTemplate, kFolderKey, StoredPath(folder));
  change.Commit();
}

/// Selects the text, so that typing replaces it.
void FrmFileIo::FocusName() {
  txtFile_->setFocus();
  txtFile_->selectAll();
}

void FrmFileIo::Inform(const QString& text) {
  around_.Boxes.Show(text.toStdString(), BoxStyle::Information, std::string(kProductName));
}

void FrmFileIo::Refuse(const QString& text) {
  Inform(text);
  FocusName();
}

}  // namespace starfolds
