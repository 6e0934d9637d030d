// The stored tree: texts addressed by hive, path and name, like a registry.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace starfolds {

/// The roots of the tree. Settings are under `CurrentUser`; `LocalMachine` has what an
/// administrator or an earlier version stored for all users.
enum class Hive { LocalMachine, CurrentUser, ClassesRoot, Users };

/// Paths are names joined by "\". Paths and names are compared without regard to the case of ASCII
/// letters. A text is any sequence of bytes.
///
/// Nothing here throws. A tree that is missing, damaged, locked or not accessible reads as empty
/// and refuses writes; its contents are not changed.
class KeyValueTree {
 public:
  virtual ~KeyValueTree() = default;

  /// The text of a value; nullopt if it does not exist or cannot be read.
  virtual std::optional<std::string> Read(Hive hive, std::string_view path,
                                          std::string_view name) = 0;

  /// Stores a text, and creates the path if it is missing. False: nothing was stored.
  virtual bool Write(Hive hive, std::string_view path, std::string_view name,
                     std::string_view text) = 0;

  /// Removes a path with its values and everything below it. False if it does not exist or could
  /// not be removed.
  virtual bool DeleteKey(Hive hive, std::string_view path) = 0;

 protected:
  enum class Access { Look, Change };

  /// Called by `TreeBulk`. Between the two calls all reads see one state of the user's hive, and
  /// all writes are pending. `Begin` returns false if the tree cannot be used; then reads return
  /// nullopt and writes are refused until `End`. `End` stores all of the writes or none if `keep`,
  /// and discards them otherwise; it returns false if it could not, or if a read or write in
  /// between failed.
  virtual bool Begin(Access access) = 0;
  virtual bool End(bool keep) = 0;

 private:
  friend class TreeBulk;
  int bulks_ = 0;
  Access access_ = Access::Look;
  bool abandoned_ = false;  // by a nested bulk
};

/// A transaction: its reads see one state of the tree, and its writes are stored all or none. Bulks
/// nest; the outermost one is the transaction, and fails if a nested one was abandoned.
class TreeBulk {
 public:
  static TreeBulk Look(KeyValueTree& tree) { return {tree, KeyValueTree::Access::Look}; }
  static TreeBulk Change(KeyValueTree& tree) { return {tree, KeyValueTree::Access::Change}; }
  ~TreeBulk();
  TreeBulk(const TreeBulk&) = delete;
  TreeBulk& operator=(const TreeBulk&) = delete;

  /// Whether the tree can be used. If not, calls are harmless: reads return nullopt.
  bool Begun() const { return begun_; }

  /// Ends the bulk. True if every write was stored and every read succeeded (a missing value counts
  /// as success). A bulk that is never committed changes nothing.
  bool Commit();

 private:
  TreeBulk(KeyValueTree& tree, KeyValueTree::Access access);
  bool Leave(bool keep);

  KeyValueTree& tree_;
  bool begun_ = false;
  bool open_ = true;
};

/// A tree in memory, for tests, and for runs without a place to store anything.
class MemoryTree : public KeyValueTree {
 public:
  // Failures that a test sets.
  bool Readable = true;
  bool Writable = true;
  int WritesUntilFull = -1;  // negative: never full

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;
  bool DeleteKey(Hive hive, std::string_view path) override;

  /// The number of values.
  std::size_t Size() const { return values_.size(); }
  bool operator==(const MemoryTree& other) const { return values_ == other.values_; }

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  using Place = std::tuple<Hive, std::string, std::string>;  // path and name in lower case
  using Values = std::map<Place, std::string>;

  Values values_;
  Values before_;        // at the start of the bulk
  bool faulty_ = false;  // a read or write of the bulk has failed
};

}  // namespace starfolds
