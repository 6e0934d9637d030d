// The largest possible settings: every list of every record is full.
#pragma once

#include <optional>
#include <string>

#include "settings/random_records.h"
#include "settings/templates.h"

namespace starfolds {

inline SettingsRecords FullSettings(unsigned seed) {
  SettingsRecords records = RandomRecords(seed).Make();
  for (StarfoldProfile& profile : records.Profiles) {
    profile.Starfold_IFS_Points = kMaxIfsPoints;
    profile.Starfold_Atoms = kMaxAtoms;
    ClampProfile(profile);
  }
  for (CompositeProfile& composite : records.Composites) composite.CompFold_Count = kMaxMembers;
  return records;
}

/// As many values as typical settings have: no points, no atoms, two members per composite.
inline SettingsRecords PlainSettings(unsigned seed) {
  SettingsRecords records = RandomRecords(seed).Make();
  for (StarfoldProfile& profile : records.Profiles) {
    profile.Starfold_IFS_Points = profile.Starfold_Atoms = 0;
  }
  for (CompositeProfile& composite : records.Composites) composite.CompFold_Count = 2;
  return records;
}

inline std::optional<std::string> SaveAs(Files& disk, const std::string& path,
                                         SettingsRecords& records) {
  MemoryTree tree;
  TemplateFile file(disk);
  file.TemplateFileName = path;
  return WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {});
}

}  // namespace starfolds
