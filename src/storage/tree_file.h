// File operations that the stored tree needs beside SQLite.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace starfolds {

/// Identifies a file independently of its name.
struct FileIdentity {
  std::uint64_t Device = 0;
  std::uint64_t Number = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// Whether a file can be renamed while another process has it open.
#ifdef _WIN32
inline constexpr bool kOpenFilesCanBeRenamed = false;
#else
inline constexpr bool kOpenFilesCanBeRenamed = true;
#endif

struct FoundFile {
  enum class State { Missing, Plain, OutOfReach };
  State Is = State::OutOfReach;
  FileIdentity Identity;  // of a regular file
};

/// Whether the path begins at a root, so that it does not depend on the current folder.
bool IsAbsolutePath(const std::string& path);

/// The folder of a file whose path is absolute.
std::string FolderOf(const std::string& path);

/// Follows symbolic links. Anything but a regular file counts as unreachable, because opening a
/// pipe could block.
FoundFile LookAtFile(const std::string& path);

/// Creates a folder and its missing parents with these permissions. False if it does not exist
/// afterwards.
bool MakeFolders(const std::string& folder, unsigned rights);

/// Whether files can be created in the folder of this file, after following symbolic links.
bool CanMakeFilesBeside(const std::string& path);

/// Renames the tree's file and its journal to the first free name of "PATH.damaged-1",
/// "PATH.damaged-2" and so on, and returns that name. nullopt if another file has the path by now,
/// another process still uses the file after `patience`, or renaming fails.
///
/// This process must have no connection to the file: closing any descriptor of it releases the
/// locks that SQLite holds.
std::optional<std::string> SetAside(const std::string& path, const FileIdentity& identity,
                                    std::chrono::milliseconds patience);

}  // namespace starfolds
