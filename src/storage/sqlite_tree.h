// The stored tree in SQLite files, one of the user's and one of the machine's.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/key_value_tree.h"
#include "storage/storage_places.h"
#include "storage/tree_transaction.h"

namespace starfolds {

/// How long a tree may keep the program waiting.
struct TreePatience {
  std::chrono::milliseconds Look{1000};    // for another process that holds a file
  std::chrono::milliseconds Change{3000};  // the same
  std::chrono::milliseconds Work{1000};    // of the processor, in one look or change
  /// After a look that was given up, nobody waits or works long for this time: a start looks
  /// several times, and is not to wait each time.
  std::chrono::milliseconds Rest{3000};
};

/// A file is locked only while a value, or a bulk, is read or written. The user's file stays open
/// for the next look, as a start looks several times. The first write makes the file, and its
/// folder. A file of the user's that turns out to be damaged when something is to be stored is set
/// aside under another name, and the complaint says so in one line; then a new one is begun. A look
/// that was given up is complained about as well: the file is locked or holds too much.
///
/// Bulks hold the user's hive. In a bulk, too, what is written to the machine's hive is stored at
/// once, and what cannot be read there counts as missing: nobody shall be kept from his own
/// settings by a file that only an administrator can mend. The other hives are empty and refuse
/// writes.
///
/// Texts may be up to a megabyte less the names; paths and names must not hold NUL bytes.
class SqliteTree : public KeyValueTree {
 public:
  using Complaint = std::function<void(const std::string& line)>;

  /// Whether waiting is to end at once, because the process is to end.
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
    TreeTransaction* User = &Change;         // or the tree's look
    std::optional<TreeTransaction> Machine;  // only looked at, once something is read there
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
  TreeTransaction look_;  // at the user's file, which stays open for the next one
  std::unique_ptr<Bulk> bulk_;
};

}  // namespace starfolds
