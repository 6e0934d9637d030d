// The themes of two of the editors.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "numbers/words.h"
#include "settings/records.h"

namespace starfolds {

/// The numbers of a point or an atom, in the order in which an editor shows them.
inline constexpr int kThemeRowFields = 7;
using ThemeRow = std::array<Integer, kThemeRowFields>;

struct BodyTheme {
  std::string_view Name;  // the entry in the list of themes
  std::string_view Description;
  std::array<Integer, 3> Center;
  std::array<Integer, 3> Body;  // radius, rotation, distance
  std::span<const ThemeRow> Rows;
};

/// The numbers of a point: location (x, y, z), scale, axis, angle, relative percent.
std::span<const BodyTheme> IfsThemes();
/// The numbers of an atom: element, structure, location (x, y, z), radius, symmetry radius.
std::span<const BodyTheme> MoleculeThemes();

// Positions in the text of a theme, as field numbers of `GetField`.
inline constexpr int kThemeDescription = 0;
inline constexpr int kIfsThemeCenter = 1;
inline constexpr int kIfsThemeBody = 4;
inline constexpr int kIfsThemeRows = 7;
inline constexpr int kMoleculeThemeCount = 1;
inline constexpr int kMoleculeThemeCenter = 2;
inline constexpr int kMoleculeThemeBody = 5;
inline constexpr int kMoleculeThemeRows = 8;

/// The whole theme as one text of fields separated by commas, with numbers padded to one width. The
/// text of an iterated function system has the maximum number of rows, unused ones filled with
/// zeros; that of a molecule has its number of rows.
std::string IfsThemeText(const BodyTheme& theme);
std::string MoleculeThemeText(const BodyTheme& theme);

/// The body that a theme makes, for its picture.
StarfoldProfile BodyOfIfsTheme(const BodyTheme& theme);
StarfoldProfile BodyOfMoleculeTheme(const BodyTheme& theme);

}  // namespace starfolds
