#include "settings/records.h"

namespace starfolds {

std::string FormatProfileName(int index) {
  return "< Starfold Profile " + std::to_string(index + 1) + " >";
}

std::string FormatCompositeName(int index) {
  return "< Composite Starfold " + std::to_string(index + 1) + " >";
}

SettingsRecords::SettingsRecords() {
  for (int i = 0; i < kProfileCount; ++i) Profiles[i].UniFoldName = FormatProfileName(i);
  for (int i = 0; i < kCompositeCount; ++i) Composites[i].CompFoldName = FormatCompositeName(i);
}

}  // namespace starfolds
