// Settings that are valid for one process and override the stored ones.
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

/// Forwards every call to another tree, which must outlive it.
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

/// Initial values, such as those of a template that a window shows: reads return them in place of
/// the stored ones until they are written. The properties dialog edits this tree.
class BeginningTree : public LayeredTree {
 public:
  using LayeredTree::LayeredTree;

  /// Must be filled before the first read.
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
/// values below; writes go to the tree below.
class OverriddenTree : public LayeredTree {
 public:
  using LayeredTree::LayeredTree;

  /// Invalid changes are ignored.
  void Override(std::span<const SettingChange> changes);

  std::optional<std::string> Read(Hive hive, std::string_view path, std::string_view name) override;

 private:
  MemoryTree overrides_;
};

/// The changes as texts for the user, such as "Stars in all the Starfolds = 123", in their order.
/// Of several changes of one setting the last one counts.
std::vector<std::string> ChangesInWords(std::span<const SettingChange> changes);

}  // namespace starfolds
