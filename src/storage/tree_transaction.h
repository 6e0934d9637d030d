// One transaction on one of the stored tree's files.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "storage/tree_file.h"

struct sqlite3;
struct sqlite3_stmt;

namespace starfolds {

/// The result of an operation.
enum class TreeOutcome {
  Done,
  Nothing,  // the file or value does not exist
  Refused,  // locked, no permission, disk full or I/O error: the contents are unknown
  Damaged,  // the file is not a tree
};

/// The location of a hive.
struct TreePlace {
  std::string File;           // absolute; otherwise there is no location
  unsigned FolderRights = 0;  // permissions of the folders that are created for it
};

/// Limits of a transaction.
struct TreeLimits {
  std::chrono::milliseconds Wait{0};  // for locks of other processes, in total
  std::chrono::milliseconds Work{0};  // processor time of all statements
  std::function<bool()> GiveUp;       // polled while waiting; empty: never true
};

/// Why a transaction was given up.
enum class TreeTrouble { None, Locked, TooMuch, AskedToStop };

/// Opens the file, locks it, and releases both at the end. What is not committed is not stored, and
/// nothing can be committed after a failure.
class TreeTransaction {
 public:
  enum class Kind {
    Look,    // all reads see one state
    Change,  // of an existing file
    Make     // a change that creates the file if it is missing
  };

  TreeTransaction() = default;
  ~TreeTransaction() { Close(); }
  TreeTransaction(const TreeTransaction&) = delete;
  TreeTransaction& operator=(const TreeTransaction&) = delete;

  /// The calls below are allowed whatever this returns. A file that the last look has left open is
  /// reused if it is still the one with that path; so all looks must have the same location.
  TreeOutcome Begin(const TreePlace& place, Kind kind, TreeLimits limits);

  TreeOutcome Get(std::string_view path, std::string_view name, std::string& text);
  TreeOutcome Put(std::string_view path, std::string_view name, std::string_view text);
  /// Removes the values of a path and of everything below it.
  TreeOutcome Remove(std::string_view path);

  TreeOutcome Commit();
  void Close();
  /// Releases the lock. Leaves the file open for the next look, if other processes can rename it
  /// then.
  void EndLook();

  Kind Is() const { return kind_; }
  /// Valid after `Close` as well.
  TreeTrouble Trouble() const { return trouble_; }
  /// The file that existed before it was opened. Valid after `Close` as well.
  const std::optional<FileIdentity>& Identity() const { return identity_; }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

  static int WaitForLock(void* self, int tries);
  static int StopIfEndless(void* self);
  bool IsExhausted();

  TreeOutcome Open(const std::string& file);
  TreeOutcome StartTransaction();
  TreeOutcome FindTable();
  TreeOutcome Check();
  TreeOutcome CheckCopy();
  TreeOutcome MakeTable();
  TreeOutcome MayChange() const;
  bool IsRunning() const;
  bool HasLog() const;

  TreeOutcome Prepare(Statement& statement, const char* sql);
  TreeOutcome Execute(const char* sql);
  int Step(const Statement& statement);
  int Run(const std::function<int()>& statement);

  sqlite3* db_ = nullptr;
  Statement get_, put_, remove_;
  std::optional<FileIdentity> identity_;
  TreeOutcome withoutFile_ = TreeOutcome::Refused;  // the result of calls without a connection
  Kind kind_ = Kind::Look;
  bool hasTable_ = false;
  TreeLimits limits_;
  TreeTrouble trouble_ = TreeTrouble::None;
  std::chrono::steady_clock::duration waited_{};
  std::chrono::nanoseconds worked_{};  // processor time of finished statements
  std::chrono::nanoseconds runningSince_{};
};

}  // namespace starfolds
