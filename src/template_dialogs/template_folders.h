// Folders as the template dialog sees them. Paths have "/" between their names on every system.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace starfolds {

/// Where the way to a file begins.
struct FolderRoot {
  QString Name;  // for the user
  QString Path;
};

/// The home folder first, then the templates that came with the program (`templates` may be empty:
/// there are none), then what is mounted.
std::vector<FolderRoot> FolderRoots(const QString& templates);

/// The position of the innermost root that holds `folder`; 0 where none does.
int RootOf(const std::vector<FolderRoot>& roots, const QString& folder);

/// The folders from `root` down to `folder`, both of them included.
QStringList WayTo(const QString& root, const QString& folder);

/// Names in alphabetical order, without hidden ones.
struct FolderContents {
  QStringList Folders;
  QStringList Files;
};

/// The files are those of the patterns, as "*.sfd" or "*.sfd;*.txt"; case does not count, and "*.*"
/// means all files. Nothing where the folder cannot be read.
std::optional<FolderContents> ReadFolder(const QString& folder, const QString& patterns);

/// The path that a user means who types a text while `folder` is shown: a name, a way from there, a
/// whole path, or one that begins at home ("~/...").
QString TypedPath(const QString& folder, const QString& typed);

/// Whether a file can be written under the path, or replaced. Looks only: nothing is made, opened
/// or changed.
bool CanBeWritten(const QString& path);

/// Where the templates are that came with the program; empty where there are none.
QString ShippedTemplates(const QString& programFolder);

}  // namespace starfolds
