// The stored tree in SQLite files, one for the user and one for the machine.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/key_value_tree.h"
#include "platform/user_text.h"
#include "storage/storage_places.h"
#include "storage/tree_transaction.h"

namespace starfolds {

/// Time limits of the tree.
struct TreePatience {
  std::chrono::milliseconds Look{1000};    // wait for another process that holds a file
  std::chrono::milliseconds Change{3000};  // the same
  std::chrono::milliseconds Work{1000};    // processor time of one look or change
  /// After a look has timed out, later calls do not wait or work long for this time: a start looks
  /// several times, and must not wait each time.
  std::chrono::milliseconds Rest{3000};
};

/// A file is locked only during a bulk, or the read or write of a single value. The user's file
/// stays open for the next look, because a start looks several times (not on Windows, where an open
/// file cannot be renamed). The first write creates the file and its folder. If the user's file
/// turns out to be damaged at a write, it is renamed, which the complaint says in one line, and a
/// new one is created. A look that timed out is complained about as well: the file is locked or
/// holds too much.
///
/// Bulks cover the user's hive only. Inside a bulk, writes to the machine's hive are stored at
/// once, and what cannot be read there counts as missing: a file that only an administrator can
/// repair must not keep users from their own settings. The other hives are empty and refuse writes.
///
/// Texts may be up to a megabyte including the names; paths and names must not contain NUL bytes.
class SqliteTree : public KeyValueTree {
 public:
  using Complaint = std::function<void(const UserText& line)>;

  /// Returns true if waiting must end at once, because the process is to end.
  using GiveUp = std::function<bool()>;

  SqliteTree(const TreeFiles& files, Complaint complain, TreePatience patience = {},
             GiveUp giveUp = {});

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;
  bool DeleteKey(Hive hive, std::string_view path) override;

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  struct Bulk {
    TreeTransaction Change;
    TreeTransaction* User = &Change;         // or the tree's `look_`
    std::optional<TreeTransaction> Machine;  // read-only, opened with the first read from it
    TreeOutcome Worst = TreeOutcome::Done;
  };
  using Deed = std::function<TreeOutcome(TreeTransaction&)>;

  const TreePlace* PlaceOf(Hive hive) const;
  TreeTransaction& MachineOfBulk();
  TreeOutcome Once(const TreePlace& place, TreeTransaction::Kind kind, const Deed& deed);
  TreeOutcome InBulk(const Deed& deed);
  TreeOutcome Try(TreeTransaction& transaction, const TreePlace& place, TreeTransaction::Kind kind,
                  const Deed& deed);
  void EndLook(TreeOutcome outcome);
  bool MadeWayForNewFile(const TreePlace& place, TreeOutcome outcome, TreeTransaction& transaction);

  bool IsResting() const { return std::chrono::steady_clock::now() < restUntil_; }
  TreeLimits LimitsFor(TreeTransaction::Kind kind) const;
  void NoteTrouble(const TreePlace& place, const TreeTransaction& transaction);

  TreePlace user_, machine_;
  Complaint complain_;
  TreePatience patience_;
  GiveUp giveUp_;
  std::chrono::steady_clock::time_point restUntil_;
  TreeTransaction look_;  // of the user's file, which may stay open for the next one
  std::unique_ptr<Bulk> bulk_;
};

}  // namespace starfolds
