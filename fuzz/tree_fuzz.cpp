// Uses the input as values of a stored tree: each line is a section, a key and a value, separated
// by tabs.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/expect.h"
#include "settings/stored_records.h"
#include "settings/window_placement.h"

namespace {

using namespace starfolds;

constexpr auto kRoot = RootSelector::CurrentUser;

std::string_view Take(std::string_view& rest, char end) {
  const std::size_t at = std::min(rest.find(end), rest.size());
  const std::string_view piece = rest.substr(0, at);
  rest.remove_prefix(std::min(at + 1, rest.size()));
  return piece;
}

class AnyWindow : public PlacedWindow {
 public:
  WindowState State() const override { return WindowState::Normal; }
  WindowBounds Bounds() const override { return bounds_; }
  bool Sizable() const override { return true; }
  void ApplyState(WindowState) override {}
  void Move(Long left, Long top) override { bounds_ = {left, top, 0, 0}; }
  void Move(const WindowBounds& bounds) override { bounds_ = bounds; }
  void CentreOnScreen() override {}

 private:
  WindowBounds bounds_;
};

void ReadAllWays(KeyValueTree& tree, std::string_view section, std::string_view key) {
  Expect(RegistryReadText(tree, section, key).size() <= kMostBytesOfValue, "texts are short");
  RegistryReadInteger(tree, section, key, 0);
  RegistryReadLong(tree, section, key, 0);
  const Single number = RegistryReadSingle(tree, section, key, 0);
  Expect(number - number == 0, "numbers are finite");
}

/// What was loaded and stored loads the same again.
void RoundTrip(KeyValueTree& tree) {
  MemoryTree copy;
  StarfoldProfile profile = LoadProfileFromRegistry(tree, 0, ProfileSection(0), kRoot);
  ClampProfile(profile);
  ExpectClamped(profile, ClampProfile);
  profile.UniFoldName = StorableText(profile.UniFoldName);
  SaveProfileToRegistry(copy, profile, "P");
  Expect(TextsOf(LoadProfileFromRegistry(copy, 0, "P", kRoot)) == TextsOf(profile),
         "a profile comes back");

  CompositeProfile composite = LoadCompositeFromRegistry(tree, 0, CompositeSection(0), kRoot);
  ClampComposite(composite);
  ExpectClamped(composite, ClampComposite);
  composite.CompFoldName = StorableText(composite.CompFoldName);
  SaveCompositeToRegistry(copy, composite, "C");
  Expect(TextsOf(LoadCompositeFromRegistry(copy, 0, "C", kRoot)) == TextsOf(composite),
         "a composite comes back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryTree tree;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  while (!rest.empty()) {
    std::string_view line = Take(rest, '\n');
    const std::string_view section = Take(line, '\t');
    const std::string_view key = Take(line, '\t');
    RegistryWrite(tree, section, key, line);
    ReadAllWays(tree, section, key);
  }
  RoundTrip(tree);
  ExpectClamped(LoadAdvancedFromRegistry(tree), ClampAdvanced);
  const UniverseSettings universe = LoadUniverseFromRegistry(tree);
  Expect(ParseVisitList(universe.Universe_GS_Idx).Count <= VisitList::kRoom, "visits have room");
  AnyWindow window;
  RestoreWindowPlacement(window, tree, "General");
  SaveWindowPlacement(window, tree, "General");
  return 0;
}
