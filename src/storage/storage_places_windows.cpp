#include <cstdlib>
#include <filesystem>

#include "storage/storage_places.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

constexpr const char* kFileInFolder = "\\Tessellane\\settings.db";

std::optional<std::string> EnvironmentValue(const char* name) {
  const auto wide = WidePath(name);
  const wchar_t* const value = wide ? _wgetenv(wide->c_str()) : nullptr;
  if (!value) return std::nullopt;
  return NarrowText(value);
}

/// Ignores relative paths, whose meaning depends on the current folder.
std::string FileBelow(const std::string& folder) {
  const auto wide = WidePath(folder);
  if (!wide || !std::filesystem::path(*wide).is_absolute()) return {};
  return folder + kFileInFolder;
}

}  // namespace

TreeFiles TreeFilesIn(const Surroundings& surroundings) {
  std::string user = FileBelow(surroundings.Environment("APPDATA").value_or(""));
  if (user.empty()) {
    const std::string home = surroundings.HomeOfUser();
    if (!home.empty()) user = FileBelow(home + "\\AppData\\Roaming");
  }
  return {std::move(user), FileBelow(surroundings.Environment("ProgramData").value_or(""))};
}

TreeFiles OwnTreeFiles() {
  return TreeFilesIn(
      {EnvironmentValue, [] { return EnvironmentValue("USERPROFILE").value_or(""); }});
}

}  // namespace starfolds
