#include "settings/window_placement.h"

#include <string>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/registry.h"

namespace starfolds {
namespace {

// `WindowSize` is four numbers of five digits each. Numbers that are negative or have more digits
// are clamped.
constexpr std::size_t kDigits = 5;
constexpr Long kLargest = 99999;

std::string FiveDigits(Long twips) {
  const std::string digits = NumberText(ClampTo<Long>(twips, 0, kLargest));
  return std::string(kDigits - digits.size(), '0') + digits;
}

Long FiveDigitsAt(std::string_view text, std::size_t index) {
  const std::size_t begin = std::min(index * kDigits, text.size());
  return RoundedToLimits<Long>(LenientNumber(text.substr(begin, kDigits)));
}

}  // namespace

void SaveWindowPlacement(const PlacedWindow& window, KeyValueTree& tree, std::string_view section) {
  TreeBulk change = TreeBulk::Change(tree);
  const WindowState state = window.State();
  RegistryWrite(tree, section, "WindowState", Long{state == WindowState::Maximised ? 2 : 0});
  if (state != WindowState::Minimised) {
    const WindowBounds bounds = window.Bounds();
    RegistryWrite(tree, section, "WindowSize",
                  FiveDigits(bounds.Left) + FiveDigits(bounds.Top) + FiveDigits(bounds.Width) +
                      FiveDigits(bounds.Height));
  }
  change.Commit();
}

void RestoreWindowPlacement(PlacedWindow& window, KeyValueTree& tree, std::string_view section) {
  TreeBulk look = TreeBulk::Look(tree);
  const Integer stored = RegistryReadInteger(tree, section, "WindowState", -1);
  const std::string size(Trimmed(RegistryReadText(tree, section, "WindowSize")));
  look.Commit();
  if (stored == -1) return window.CentreOnScreen();
  const WindowState state = stored == 2 ? WindowState::Maximised : WindowState::Normal;
  window.ApplyState(state);
  if (size.empty() || state != WindowState::Normal) return;
  const WindowBounds bounds{FiveDigitsAt(size, 0), FiveDigitsAt(size, 1), FiveDigitsAt(size, 2),
                            FiveDigitsAt(size, 3)};
  if (window.Sizable()) {
    window.Move(bounds);
  } else {
    window.Move(bounds.Left, bounds.Top);
  }
}

}  // namespace starfolds
