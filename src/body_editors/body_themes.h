// The bodies that two of the editors come with, to start from.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "numbers/words.h"

namespace starfolds {

/// A point or an atom: its seven numbers in the order in which an editor shows them.
inline constexpr int kThemeRowFields = 7;
using ThemeRow = std::array<Integer, kThemeRowFields>;

struct BodyTheme {
  std::string_view Name;  // the entry in the list of themes
  std::string_view Description;
  std::array<Integer, 3> Center;
  std::array<Integer, 3> Body;  // radius, rotation, distance
  std::span<const ThemeRow> Rows;
};

/// Points of a row: place (x, y, z), scale, axis, angle, relative percent.
std::span<const BodyTheme> IfsThemes();
/// Atoms of a row: element, structure, place (x, y, z), radius, symmetry radius.
std::span<const BodyTheme> MoleculeThemes();

// Where things stand in the text of a theme, as fields of `GetField`.
inline constexpr int kThemeDescription = 0;
inline constexpr int kIfsThemeCenter = 1;
inline constexpr int kIfsThemeBody = 4;
inline constexpr int kIfsThemeRows = 7;
inline constexpr int kMoleculeThemeCount = 1;
inline constexpr int kMoleculeThemeCenter = 2;
inline constexpr int kMoleculeThemeBody = 5;
inline constexpr int kMoleculeThemeRows = 8;

/// The whole theme as one text of fields with commas between them. Its rows are padded to one
/// width. The themes of the iterated function systems have all rows that there is room for, the
/// unused ones of zeros; those of the molecules tell how many they have.
std::string IfsThemeText(const BodyTheme& theme);
std::string MoleculeThemeText(const BodyTheme& theme);

}  // namespace starfolds
