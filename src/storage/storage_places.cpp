#include "storage/storage_places.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace starfolds {
namespace {

constexpr const char* kFileInFolder = "/Tessellane/settings.db";
constexpr const char* kMachineFolder = "/etc/xdg";
constexpr std::size_t kUserEntryRoom = 16384;  // bytes, for all texts of a passwd entry

bool IsAbsolute(const std::string& path) { return path.starts_with('/'); }

std::optional<std::string> EnvironmentValue(const char* name) {
  const char* const value = std::getenv(name);
  if (!value) return std::nullopt;
  return value;
}

std::string HomeInUserDatabase() {
  std::vector<char> room(kUserEntryRoom);
  passwd entry{};
  passwd* found = nullptr;
  getpwuid_r(getuid(), &entry, room.data(), room.size(), &found);
  return found && found->pw_dir ? found->pw_dir : std::string();
}

/// Ignores relative paths, whose meaning depends on the current folder.
std::string ConfigFolder(const Surroundings& surroundings) {
  const std::string named = surroundings.Environment("XDG_CONFIG_HOME").value_or("");
  if (IsAbsolute(named)) return named;
  std::string home = surroundings.Environment("HOME").value_or("");
  if (!IsAbsolute(home)) home = surroundings.HomeOfUser();
  return IsAbsolute(home) ? home + "/.config" : std::string();
}

}  // namespace

TreeFiles TreeFilesIn(const Surroundings& surroundings) {
  const std::string folder = ConfigFolder(surroundings);
  return {folder.empty() ? std::string() : folder + kFileInFolder,
          std::string(kMachineFolder) + kFileInFolder};
}

TreeFiles OwnTreeFiles() { return TreeFilesIn({EnvironmentValue, HomeInUserDatabase}); }

}  // namespace starfolds
