// Settings that hold for one process, whatever is stored.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/key_value_tree.h"

namespace starfolds {

/// Lies over the stored tree. Whoever reads finds the overridden values in place of the stored
/// ones; what is written goes to the stored tree, and is not seen while it is overridden. Between
/// the two may lie values to begin with: they are seen until they are written.
class OverriddenTree : public KeyValueTree {
 public:
  /// `stored` outlives this tree.
  explicit OverriddenTree(KeyValueTree& stored) : stored_(stored) {}

  /// Takes settings by the names of `SetByName`, each with its value. Those that are no good are
  /// passed over.
  void Override(std::span<const std::pair<std::string, std::string>> changes);

  /// The values to begin with, to be filled before anybody reads.
  KeyValueTree& Beginning() { return beginning_; }

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;
  bool DeleteKey(Hive hive, std::string_view path) override;

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  KeyValueTree& stored_;
  MemoryTree beginning_;
  MemoryTree overrides_;
  // Of the two trees that can be written, while there is one of this.
  std::unique_ptr<TreeBulk> bulk_;
  std::unique_ptr<TreeBulk> beginningBulk_;
};

}  // namespace starfolds
