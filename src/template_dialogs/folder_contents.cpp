#include "template_dialogs/folder_contents.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>
#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "desktop/translation.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

/// File systems without files of users.
bool IsPseudo(const QByteArray& type) {
  static constexpr std::string_view types[] = {
      "autofs",      "devtmpfs", "efivarfs", "fuse.gvfsd-fuse", "overlay",
      "fuse.portal", "nsfs",     "ramfs",    "squashfs",        "tmpfs"};
  return std::find(std::begin(types), std::end(types), type.toStdString()) != std::end(types);
}

bool IsForFiles(const QStorageInfo& storage) {
  if (!storage.isValid() || !storage.isReady() || storage.bytesTotal() <= 0) return false;
  const QFileInfo root(storage.rootPath());
  if (!root.isDir() || !root.isReadable()) return false;
  return storage.isRoot() || !IsPseudo(storage.fileSystemType());
}

QString NameOf(const QStorageInfo& storage) {
  const QString path = QDir::toNativeSeparators(storage.rootPath());
  const QString name =
      storage.isRoot() ? Translated(STARFOLDS_TEXT("File system")) : storage.name();
  return name.isEmpty() || name == path ? path : QString("%1  (%2)").arg(name, path);
}

bool HoldsFolder(const QString& root, const QString& folder) {
  return folder == root || folder.startsWith(root.endsWith('/') ? root : root + "/");
}

std::vector<QRegularExpression> Compiled(const QString& patterns) {
  std::vector<QRegularExpression> compiled;
  for (const QString& pattern : patterns.split(';', Qt::SkipEmptyParts)) {
    const QString wanted = pattern.trimmed() == "*.*" ? QString("*") : pattern.trimmed();
    const auto expression = QRegularExpression::fromWildcard(wanted, Qt::CaseInsensitive);
    if (expression.isValid()) compiled.push_back(expression);
  }
  return compiled;
}

void SortNames(QStringList& names) {
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
  });
}

}  // namespace

std::vector<FolderRoot> FolderRoots(const QString& templates) {
  std::vector<FolderRoot> roots;
  const auto add = [&](const QString& name, const QString& path) {
    const auto same = [&](const FolderRoot& root) { return root.Path == path; };
    if (std::none_of(roots.begin(), roots.end(), same)) roots.push_back({name, path});
  };
  const QString home = QDir::cleanPath(QDir::homePath());
  add(QString("%1  (%2)")
          .arg(Translated(STARFOLDS_TEXT("Home folder")), QDir::toNativeSeparators(home)),
      home);
  if (!templates.isEmpty()) add(Translated(STARFOLDS_TEXT("Templates of Starfolds")), templates);
  for (const QStorageInfo& storage : QStorageInfo::mountedVolumes()) {
    if (IsForFiles(storage)) add(NameOf(storage), storage.rootPath());
  }
  return roots;
}

int RootOf(const std::vector<FolderRoot>& roots, const QString& folder) {
  int found = 0;
  qsizetype longest = 0;
  for (int i = 0; i < static_cast<int>(roots.size()); ++i) {
    const QString& path = roots[i].Path;
    if (path.size() <= longest || !HoldsFolder(path, folder)) continue;
    found = i;
    longest = path.size();
  }
  return found;
}

QStringList WayTo(const QString& root, const QString& folder) {
  QStringList way{folder};
  while (way.front() != root) {
    const QString above = QFileInfo(way.front()).path();
    if (above == way.front()) break;  // the root does not contain the folder
    way.prepend(above);
  }
  return way;
}

std::optional<FolderContents> ReadFolder(const QString& folder, const QString& patterns) {
  const QFileInfo info(folder);
  if (!info.isDir() || !info.isReadable() || !info.isExecutable()) return std::nullopt;
  const std::vector<QRegularExpression> wanted = Compiled(patterns);
  FolderContents contents;
  QDirIterator entries(folder, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
  while (entries.hasNext()) {
    entries.next();
    const QString name = entries.fileName();
    const auto matches = [&](const QRegularExpression& pattern) {
      return pattern.match(name).hasMatch();
    };
    if (entries.fileInfo().isDir()) {
      contents.Folders.append(name);
    } else if (std::any_of(wanted.begin(), wanted.end(), matches)) {
      contents.Files.append(name);
    }
  }
  SortNames(contents.Folders);
  SortNames(contents.Files);
  return contents;
}

QString TypedPath(const QString& folder, const QString& typed) {
  const QString text = QDir::fromNativeSeparators(typed);
  QString path = text;
  if (text == "~" || text.startsWith("~/")) {
    path = QDir::homePath() + text.mid(1);
  } else if (QDir::isRelativePath(text)) {
    path = folder + "/" + text;
  }
  path = QDir::cleanPath(path);
  while (path.startsWith("/../")) path.remove(0, 3);  // the parent of the root is the root
  return path == "/.." ? "/" : path;
}

bool CanBeWritten(const QString& path) {
  if (path.contains(QChar::Null) || !path.isValidUtf16()) return false;
  const QFileInfo info(path);
  std::error_code fault;
  switch (fs::status(info.filesystemFilePath(), fault).type()) {
    case fs::file_type::regular: return info.isWritable();
    case fs::file_type::not_found: break;
    default: return false;  // a folder, a device, a name that is too long
  }
  const QFileInfo folder(info.path());
  return folder.isDir() && folder.isWritable();
}

QString ShippedTemplates(const QString& programFolder) {
  QStringList places{programFolder + "/templates", programFolder + "/../share/starfolds/templates"};
  // On Windows the saver is in the system's folder, which has no place for them.
  const QString ofAllUsers = qEnvironmentVariable("ProgramData");
  if (!ofAllUsers.isEmpty()) places << ofAllUsers + "/Tessellane/templates";
  for (const QString& place : places) {
    if (QFileInfo(place).isDir()) return QDir::cleanPath(place);
  }
  return {};
}

}  // namespace starfolds
