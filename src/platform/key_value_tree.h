// The stored tree: texts under a hive, a path and a name, as a registry keeps them.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace starfolds {

/// The roots of the tree. Settings live under `CurrentUser`; `LocalMachine` is what an
/// administrator or an earlier version left for everybody.
enum class Hive { LocalMachine, CurrentUser, ClassesRoot, Users };

/// Paths are names joined by "\". Paths and names compare without regard to the case of ASCII
/// letters. A text is any bytes.
///
/// Nothing here throws. A tree that is missing, damaged, locked or forbidden reads as empty and
/// refuses writes; what it holds stays as it is.
class KeyValueTree {
 public:
  virtual ~KeyValueTree() = default;

  /// The text of a value; nothing where there is no such value or it cannot be read.
  virtual std::optional<std::string> Read(Hive hive, std::string_view path,
                                          std::string_view name) = 0;

  /// Stores a text, and makes the path where it is missing. False: nothing was stored.
  virtual bool Write(Hive hive, std::string_view path, std::string_view name,
                     std::string_view text) = 0;

  /// Removes a path with its values and all that lies below. False where it is not there, or stays.
  virtual bool DeleteKey(Hive hive, std::string_view path) = 0;

 protected:
  enum class Access { Look, Change };

  /// What `TreeBulk` asks for. Between the two calls all reads see one state of the user's hive and
  /// all writes are pending. `Begin` is false where the tree cannot be used so; then reads find
  /// nothing and writes are refused until `End`. `End` stores the writes if `keep`, all or none; it
  /// is false if it could not, or if a read or a write in between met a fault.
  virtual bool Begin(Access access) = 0;
  virtual bool End(bool keep) = 0;

 private:
  friend class TreeBulk;
  int bulks_ = 0;
  Access access_ = Access::Look;
  bool abandoned_ = false;  // by a bulk within the outermost one
};

/// Many values at once: they are read from one state of the tree, and written all or none. Bulks
/// nest; the outermost one counts, and fails if one within it was abandoned.
class TreeBulk {
 public:
  static TreeBulk Look(KeyValueTree& tree) { return {tree, KeyValueTree::Access::Look}; }
  static TreeBulk Change(KeyValueTree& tree) { return {tree, KeyValueTree::Access::Change}; }
  ~TreeBulk();
  TreeBulk(const TreeBulk&) = delete;
  TreeBulk& operator=(const TreeBulk&) = delete;

  /// Whether the tree can be used. If not, going on is harmless: reads find nothing.
  bool Begun() const { return begun_; }

  /// Ends the bulk. True: every value was stored, or could be looked for. A bulk that is never
  /// committed changes nothing.
  bool Commit();

 private:
  TreeBulk(KeyValueTree& tree, KeyValueTree::Access access);
  bool Leave(bool keep);

  KeyValueTree& tree_;
  bool begun_ = false;
  bool open_ = true;
};

/// A tree in memory, for tests, and for a run that has no place to store anything.
class MemoryTree : public KeyValueTree {
 public:
  // The faults that a test makes.
  bool Readable = true;
  bool Writable = true;
  int WritesUntilFull = -1;  // negative: never full

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;
  bool DeleteKey(Hive hive, std::string_view path) override;

  /// How many values it holds.
  std::size_t Size() const { return values_.size(); }
  bool operator==(const MemoryTree& other) const { return values_ == other.values_; }

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  using Place = std::tuple<Hive, std::string, std::string>;  // path and name in lower case
  using Values = std::map<Place, std::string>;

  Values values_;
  Values before_;        // of the bulk
  bool faulty_ = false;  // a read or write of the bulk failed
};

}  // namespace starfolds
