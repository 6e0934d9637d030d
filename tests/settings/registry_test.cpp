#include "settings/registry.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

constexpr char kSection[] = "Universe";
constexpr char kPath[] = "SOFTWARE\\Tessellane\\TSLN_Starfold\\Universe";

TEST(Registry, ValuesOf127CharactersAreTheLongestThatComeBack) {
  MemoryTree tree;
  for (const std::size_t length : {0U, 1U, 127U, 128U, 5000U}) {
    const std::string text(length, 'x');
    ASSERT_TRUE(RegistryWrite(tree, kSection, "Key", text));
    EXPECT_EQ(RegistryReadText(tree, kSection, "Key", "default"), length < 128 ? text : "default");
  }
  for (const std::string one : {"\u661F", "\u0915\u093F", "\U0001F468\u200D\U0001F469"}) {
    std::string text;
    for (int i = 0; i < 127; ++i) text += one;
    EXPECT_EQ(StorableText(text + one), text);
    RegistryWrite(tree, kSection, "Key", text);
    EXPECT_EQ(RegistryReadText(tree, kSection, "Key", "default"), text);
    RegistryWrite(tree, kSection, "Key", text + one);
    EXPECT_EQ(RegistryReadText(tree, kSection, "Key", "default"), "default");
  }
  EXPECT_EQ(RegistryReadText(tree, kSection, "Missing", "default"), "default");
  tree.Write(Hive::CurrentUser, kPath, "Key", std::string_view("ab\0cd", 5));
  EXPECT_EQ(RegistryReadText(tree, kSection, "Key"), "ab");
}

}  // namespace
}  // namespace starfolds
