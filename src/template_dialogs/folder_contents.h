// Folders in the template dialog. Paths have "/" as separator on every system.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace starfolds {

/// A folder in which a path can begin.
struct FolderRoot {
  QString Name;  // for the user
  QString Path;
};

/// The home folder, then the templates of the program (unless `templates` is empty), then mounted
/// drives.
std::vector<FolderRoot> FolderRoots(const QString& templates);

/// Index of the innermost root that contains `folder`; 0 if none does.
int RootOf(const std::vector<FolderRoot>& roots, const QString& folder);

/// The folders from `root` to `folder`, both included.
QStringList WayTo(const QString& root, const QString& folder);

/// Names in alphabetical order, without hidden files.
struct FolderContents {
  QStringList Folders;
  QStringList Files;
};

/// The subfolders, and the files that match the patterns, such as "*.sfd" or "*.sfd;*.txt", without
/// regard to case; "*.*" matches all files. nullopt if the folder cannot be read.
std::optional<FolderContents> ReadFolder(const QString& folder, const QString& patterns);

/// The path for a text typed while `folder` is shown: a name, a relative path, an absolute path, or
/// one relative to the home folder ("~/...").
QString TypedPath(const QString& folder, const QString& typed);

/// Whether a file can be created or replaced at the path. Nothing is created, opened or changed.
bool CanBeWritten(const QString& path);

/// The folder of the templates that are installed with the program; empty if there is none.
QString ShippedTemplates(const QString& programFolder);

}  // namespace starfolds
