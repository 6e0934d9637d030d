// The settings that the program comes with: two sets of 50 profiles and 16 composites, and eight
// universe themes. They are rows of comma-separated text, decoded through the field table.
#pragma once

#include <string_view>

#include "settings/records.h"

namespace starfolds {

/// Which of the two sets; the menus name them "Starfolds 4.x" and "Starfolds 2.0".
enum class FactorySet : Integer { Starfolds4x = 0, Starfolds20 = 1 };

inline constexpr int kThemeCount = 8;

/// Field `n` (from 0) of a comma-separated row, without the blanks around it. The last field needs
/// no comma behind it; fields beyond the last are empty. The result is a piece of `row`.
std::string_view GetField(std::string_view row, int n);

/// The row texts. Numbers count from 1 (50 profiles, 16 composites, 8 themes); beyond them the row
/// is empty. The profiles that the 2.0 set does not define have the row of its first one, so that
/// they are valid bodies; their weight of 0 keeps them out of every universe.
std::string_view FactoryProfileRow(FactorySet set, int rowNumber);
std::string_view FactoryCompositeRow(FactorySet set, int rowNumber);
/// Theme 1 has a variant for the 2.0 set.
std::string_view FactoryThemeRow(int theme, bool is20);

/// Read a row into a record. A field that is no number leaves its setting as it was; nothing is
/// clamped but the counts to their room. A profile of one level keeps the level settings that the
/// record had.
void DecodeProfileRow(StarfoldProfile& record, std::string_view row);
void DecodeCompositeRow(CompositeProfile& composite, std::string_view row);
void DecodeThemeRow(UniverseSettings& universe, std::string_view row);

/// Name and weight of profile `row` (0 to 49); empty and 0 beyond.
std::string_view FactoryProfileName(int row, FactorySet set);
Integer FactoryProfilePct(int row, FactorySet set);
/// The entries of the theme list: 0 is "no theme", 1 to 8 the themes.
std::string_view FactoryThemeName(int entry);

/// Loads profile `index` (0 to 49) of a set. Beyond the table the record stays as it is.
void LoadFactoryProfile(StarfoldProfile& record, FactorySet set, int index);
void LoadFactoryComposites(CompositeArray& composites, FactorySet set);
/// All profiles and composites. The rows are in range; nothing is clamped.
void LoadFactorySet(SettingsRecords& records, FactorySet set);

/// What a process starts from that has nothing stored: a set, and a theme in the variant that goes
/// with it.
void LoadFactorySettings(SettingsRecords& records, FactorySet set, int theme);

/// Loads theme 1 to 8. The list of bodies to visit becomes empty, camera ramping stays.
void LoadFactoryTheme(UniverseSettings& universe, int theme, bool is20);

}  // namespace starfolds
