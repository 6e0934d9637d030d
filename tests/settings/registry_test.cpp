#include "settings/registry.h"

#include <gtest/gtest.h>

#include "settings/window_placement.h"

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

class StubWindow : public PlacedWindow {
 public:
  WindowState TheState = WindowState::Normal;
  WindowBounds TheBounds;
  bool IsSizable = true;
  bool Centred = false;

  WindowState State() const override { return TheState; }
  WindowBounds Bounds() const override { return TheBounds; }
  bool Sizable() const override { return IsSizable; }
  void ApplyState(WindowState state) override { TheState = state; }
  void Move(Long left, Long top) override {
    TheBounds.Left = left;
    TheBounds.Top = top;
  }
  void Move(const WindowBounds& bounds) override { TheBounds = bounds; }
  void CentreOnScreen() override { Centred = true; }
};

TEST(WindowPlacement, ComesBackAsItWasSaved) {
  MemoryTree tree;
  StubWindow window;
  RestoreWindowPlacement(window, tree, "General");
  EXPECT_TRUE(window.Centred);

  window.TheBounds = {-300, 45, 12000, 123456};
  SaveWindowPlacement(window, tree, "General");
  EXPECT_EQ(RegistryReadText(tree, "General", "WindowSize"), "00000000451200099999");
  window.TheState = WindowState::Minimised;
  window.TheBounds = {};
  SaveWindowPlacement(window, tree, "General");  // keeps the size of the last time
  EXPECT_EQ(RegistryReadText(tree, "General", "WindowState"), "0");

  StubWindow later;
  RestoreWindowPlacement(later, tree, "General");
  EXPECT_EQ(later.TheBounds, (WindowBounds{0, 45, 12000, 99999}));
  StubWindow fixed;
  fixed.IsSizable = false;
  RestoreWindowPlacement(fixed, tree, "General");
  EXPECT_EQ(fixed.TheBounds, (WindowBounds{0, 45, 0, 0}));

  window.TheState = WindowState::Maximised;
  SaveWindowPlacement(window, tree, "General");
  StubWindow maximised;
  RestoreWindowPlacement(maximised, tree, "General");
  EXPECT_EQ(maximised.TheState, WindowState::Maximised);
  EXPECT_EQ(maximised.TheBounds, WindowBounds()) << "the size is not applied";
}

}  // namespace
}  // namespace starfolds
