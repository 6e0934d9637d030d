// What the stored tree asks of the file system beside SQLite.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace starfolds {

/// A file whatever its name, which it may lose to another one.
struct FileIdentity {
  std::uint64_t Device = 0;
  std::uint64_t Number = 0;
  bool operator==(const FileIdentity&) const = default;
};

struct FoundFile {
  enum class State { Missing, Plain, OutOfReach };
  State Is = State::OutOfReach;
  FileIdentity Identity;  // of a plain file
};

/// Symbolic links are followed. What is no plain file is out of reach: to open a pipe could take
/// for ever.
FoundFile LookAtFile(const std::string& path);

/// Makes a folder and those above it that are missing, with these rights. False: it is not there.
bool MakeFolders(const std::string& folder, unsigned rights);

/// Whether files can be made in the folder in which this file is in the end.
bool CanMakeFilesBeside(const std::string& path);

/// Gives the tree's file the first free name of "PATH.damaged-1", "PATH.damaged-2" and so on, its
/// journal with it, and returns that name. Nothing where it does not happen: another file has the
/// path by now, another process still works with this one after `patience`, or the name cannot be
/// changed.
///
/// This process must have no connection to the file: closing any descriptor of it drops the locks
/// that SQLite holds.
std::optional<std::string> SetAside(const std::string& path, const FileIdentity& identity,
                                    std::chrono::milliseconds patience);

}  // namespace starfolds
