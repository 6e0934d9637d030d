// Settings that hold for one process, whatever is stored.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/key_value_tree.h"

namespace starfolds {

/// A setting by its name for `SetByName`, and its value.
using SettingChange = std::pair<std::string, std::string>;

/// Lies over another tree, which outlives it, and passes everything on.
class LayeredTree : public KeyValueTree {
 public:
  explicit LayeredTree(KeyValueTree& below) : below_(below) {}

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;
  bool DeleteKey(Hive hive, std::string_view path) override;

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  KeyValueTree& below_;
  std::unique_ptr<TreeBulk> bulk_;  // of the tree below, while there is one of this
};

/// Values to begin with, such as those of a template that a window shows: they are seen in place of
/// the stored ones until they are written. The properties dialog edits this tree.
class BeginningTree : public LayeredTree {
 public:
  using LayeredTree::LayeredTree;

  /// To be filled before anybody reads.
  KeyValueTree& Values() { return values_; }

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;
  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override;

 protected:
  bool Begin(Access access) override;
  bool End(bool keep) override;

 private:
  MemoryTree values_;
  std::unique_ptr<TreeBulk> valuesBulk_;
};

/// Settings of one run, such as those of the command line: reads return them in place of the
/// values below, and writes go past them.
class OverriddenTree : public LayeredTree {
 public:
  using LayeredTree::LayeredTree;

  /// Invalid changes are ignored.
  void Override(std::span<const SettingChange> changes);

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;

 private:
  MemoryTree overrides_;
};

/// The changes for people, such as "Stars in all the Starfolds = 123", in their order. Of several
/// changes of one setting the last one counts.
std::vector<std::string> ChangesInWords(std::span<const SettingChange> changes);

}  // namespace starfolds
