#include "body_editors/body_themes.h"

#include <gtest/gtest.h>

#include "settings/factory.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

const BodyTheme& Named(std::span<const BodyTheme> themes, std::string_view name) {
  for (const BodyTheme& theme : themes) {
    if (theme.Name == name) return theme;
  }
  ADD_FAILURE() << "no theme " << name;
  return themes.front();
}

/// Fields of the factory's row of a profile that hold the points or atoms and their count.
constexpr int kFactoryCount = 67;
constexpr int kFactoryRows = 71;

/// Some bodies of the factory were made from a theme; the two tables were typed apart.
TEST(BodyThemes, AgreeWithTheFactorysBodies) {
  struct Pair {
    std::string_view Body, Theme;
  };
  const Pair pairs[] = {{"UD-IFS:  Space Station", "Space Station"},
                        {"UD-IFS:  Twisted Branches", "Twisted Branches"},
                        {"UD-IFS:  Symmetric Starbird", "Symmetric Starbird"},
                        {"UD-ATOM:  Cubic Hydrocarbon", "Cubic Hydrocarbon Lattice"},
                        {"UD-ATOM:  Nested Shells", "Nested Shell Configuration"},
                        {"UD-ATOM:  Star Point System", "Star Point System"}};
  int found = 0;
  for (int row = 0; row < kProfileCount; ++row) {
    for (const auto& [body, name] : pairs) {
      if (FactoryProfileName(row, FactorySet::Starfolds4x) != body) continue;
      ++found;
      const bool isIfs = body.starts_with("UD-IFS");
      const BodyTheme& theme = Named(isIfs ? IfsThemes() : MoleculeThemes(), name);
      const std::string_view text = FactoryProfileRow(FactorySet::Starfolds4x, row + 1);
      EXPECT_EQ(GetField(text, kFactoryCount), std::to_string(theme.Rows.size())) << name;
      for (std::size_t i = 0; i < theme.Rows.size(); ++i) {
        for (int k = 0; k < kThemeRowFields; ++k) {
          const int field = kFactoryRows + static_cast<int>(i) * kThemeRowFields + k;
          EXPECT_EQ(GetField(text, field), std::to_string(theme.Rows[i][k])) << name << " " << i;
        }
      }
    }
  }
  EXPECT_EQ(found, 6);
}

/// Two oxygen atoms at each nitrogen, which stand in a cube around one of carbon.
TEST(BodyThemes, BuildTheCubane) {
  const auto rows = Named(MoleculeThemes(), "Octanitrocubane").Rows;
  ASSERT_EQ(rows.size(), std::size_t{kMaxAtoms});
  const auto side = [](std::size_t corner, unsigned axis) { return corner >> (2 - axis) & 1U; };
  for (std::size_t corner = 0; corner < 8; ++corner) {
    for (unsigned axis = 0; axis < 3; ++axis) {
      EXPECT_EQ(rows[corner][2 + axis], side(corner, axis) ? 1100 : 900);
      EXPECT_EQ(rows[8 + corner][2 + axis], side(corner, axis) ? 1200 : 800);
    }
    int near = 0;
    for (std::size_t oxygen = 16; oxygen < rows.size(); ++oxygen) {
      bool within = rows[oxygen][0] == 8;
      for (int axis = 2; axis < 5; ++axis) {
        within = within && std::abs(rows[oxygen][axis] - rows[8 + corner][axis]) <= 100;
      }
      near += within ? 1 : 0;
    }
    EXPECT_EQ(near, 2) << corner;
  }
}

}  // namespace
}  // namespace starfolds
