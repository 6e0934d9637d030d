// A stored tree of a test, and the ways to look at it whole.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "storage/sqlite_tree.h"
#include "test_folder.h"

namespace starfolds {

constexpr Hive kUser = Hive::CurrentUser;

struct StoredTree {
  explicit StoredTree(const std::string& file, const std::string& machine = {},
                      TreePatience patience = {})
      : Tree(
            {file, machine},
            [this](const UserText& line) { Complaints.push_back(InOneLine(line)); }, patience) {}

  std::vector<std::string> Complaints;
  SqliteTree Tree;

  std::optional<std::string> Read(std::string_view name) { return Tree.Read(kUser, "P", name); }
  bool Write(std::string_view name, std::string_view text) {
    return Tree.Write(kUser, "P", name, text);
  }

  /// A bulk in which all of the first `count` values become `text`.
  bool Save(const std::string& text, int count) {
    TreeBulk bulk = TreeBulk::Change(Tree);
    for (int i = 0; i < count; ++i) Write(std::to_string(i), text);
    return bulk.Commit();
  }

  /// The text that all of the first `count` values have: "" if they are all missing, "torn" if they
  /// differ, and "unread" if the tree cannot be looked at.
  std::string Saved(int count) {
    TreeBulk bulk = TreeBulk::Look(Tree);
    std::set<std::string> texts;
    for (int i = 0; i < count; ++i) texts.insert(Read(std::to_string(i)).value_or(""));
    if (!bulk.Commit()) return "unread";
    return texts.size() == 1 ? *texts.begin() : "torn";
  }
};

/// A folder for a tree's file. The folder between is made by the first write.
class TreeTest : public testing::Test {
 protected:
  void Put(const std::string& name, const std::string& bytes) {
    std::filesystem::create_directories(std::filesystem::path(Folder.Path(name)).parent_path());
    std::ofstream(Folder.Path(name), std::ios::binary) << bytes;
  }

  TestFolder Folder{QuickFolder()};
  const std::string File = Folder.Path("config/settings.db");
};

/// For tests in which somebody holds a lock for ever.
constexpr TreePatience kImpatient{std::chrono::milliseconds(30), std::chrono::milliseconds(60)};

}  // namespace starfolds
