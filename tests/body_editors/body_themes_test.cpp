#include "body_editors/body_themes.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace starfolds {
namespace {

using ThemeText = std::string (*)(const BodyTheme&);

/// The 64-bit FNV-1a hash of the texts of all these themes.
std::uint64_t HashOf(std::span<const BodyTheme> themes, ThemeText text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const BodyTheme& theme : themes) {
    for (const char c : text(theme)) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  }
  return hash;
}

/// Pinned: a mistyped number of a theme would be noticed by nobody.
TEST(BodyThemes, KeepTheirNumbers) {
  EXPECT_EQ(HashOf(IfsThemes(), IfsThemeText), 5503179046369455196U);
  EXPECT_EQ(HashOf(MoleculeThemes(), MoleculeThemeText), 5667118746819780597U);
}

}  // namespace
}  // namespace starfolds
