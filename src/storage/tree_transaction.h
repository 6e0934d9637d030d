// One transaction on one of the stored tree's files.
#pragma once

#include <chrono>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "storage/plain_file.h"

struct sqlite3;
struct sqlite3_stmt;

namespace starfolds {

/// What came of an attempt.
enum class TreeOutcome {
  Done,
  Nothing,  // there is no such file or value
  Refused,  // locked, forbidden, full or out of reach: nobody knows what is there
  Damaged,  // the file holds no tree
};

/// Where a hive is kept.
struct TreePlace {
  std::string File;           // absolute; without a place otherwise
  unsigned FolderRights = 0;  // of the folders that are made for it
};

/// What an attempt may cost.
struct TreeLimits {
  std::chrono::milliseconds Wait{0};  // for other processes' locks, in all
  std::chrono::milliseconds Work{0};  // of the processor, for all statements
  std::function<bool()> GiveUp;       // asked while waiting; empty: never
};

/// Why an attempt was given up.
enum class TreeTrouble { None, Locked, TooMuch, AskedToStop };

/// Opens the file, takes its lock, and gives both back at the end. What is not committed is not
/// stored. After a failure nothing more is stored either.
class TreeTransaction {
 public:
  enum class Kind {
    Look,    // all reads see one state
    Change,  // of a file that is there
    Make     // a change that makes the file where it is missing
  };

  TreeTransaction() = default;
  ~TreeTransaction() { Close(); }
  TreeTransaction(const TreeTransaction&) = delete;
  TreeTransaction& operator=(const TreeTransaction&) = delete;

  /// Whatever comes of it, the calls below are allowed and harmless. A file that the last look has
  /// left open is not opened anew, if it still is the one of that place; so the places of all looks
  /// have to be the same.
  TreeOutcome Begin(const TreePlace& place, Kind kind, TreeLimits limits);

  TreeOutcome Get(std::string_view path, std::string_view name, std::string& text);
  TreeOutcome Put(std::string_view path, std::string_view name, std::string_view text);
  /// The values of a path and of all below it.
  TreeOutcome Remove(std::string_view path);

  TreeOutcome Commit();
  void Close();
  /// Gives the lock back, and leaves the file open for the next look.
  void EndLook();

  Kind Is() const { return kind_; }
  /// Known after `Close` as well.
  TreeTrouble Trouble() const { return trouble_; }
  /// The file that was there before it was opened. Known after `Close` as well.
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
  TreeOutcome withoutFile_ = TreeOutcome::Refused;  // the answer while there is no connection
  Kind kind_ = Kind::Look;
  bool hasTable_ = false;
  TreeLimits limits_;
  TreeTrouble trouble_ = TreeTrouble::None;
  std::chrono::steady_clock::duration waited_{};
  std::clock_t worked_ = 0;  // in statements that have ended
  std::clock_t runningSince_ = 0;
};

}  // namespace starfolds
