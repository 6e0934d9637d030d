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

TEST(Registry, NumbersAreReadByTheirType) {
  struct Case {
    const char* Text;
    Integer AsInteger;
    Long AsLong;
    Single AsSingle;
  };
  MemoryTree tree;
  for (const Case& c :
       {Case{"5", 5, 5, 5}, Case{"1.5", 2, 2, 1.5F}, Case{"2.5", 2, 2, 2.5F},
        Case{" -3 ", -3, -3, -3}, Case{"1e2", 100, 100, 100}, Case{"70000", 0, 70000, 70000},
        Case{"3e9", 0, 0, 3e9F}, Case{"1e300", 0, 0, 0}, Case{"abc", 7, 7, 7}, Case{"", 7, 7, 7},
        Case{"1,5", 7, 7, 7}, Case{"5 stars", 7, 7, 7}}) {
    tree.Write(Hive::CurrentUser, kPath, "Key", c.Text);
    EXPECT_EQ(RegistryReadInteger(tree, kSection, "Key", 7), c.AsInteger) << c.Text;
    EXPECT_EQ(RegistryReadLong(tree, kSection, "Key", 7), c.AsLong) << c.Text;
    EXPECT_EQ(RegistryReadSingle(tree, kSection, "Key", 7), c.AsSingle) << c.Text;
  }
}

}  // namespace
}  // namespace starfolds
