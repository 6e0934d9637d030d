#include "template_dialogs/recent_templates.h"

#include <algorithm>

#include "settings/registry.h"

namespace starfolds {
namespace {

constexpr std::size_t kMost = 6;

std::string KeyOf(std::size_t place) { return "Recent_" + std::to_string(place); }

}  // namespace

std::vector<std::string> RecentTemplates(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < kMost; ++i) {
    const std::string path = RegistryReadText(tree, sections::kTemplate, KeyOf(i));
    if (!path.empty()) paths.push_back(path);
  }
  look.Commit();
  return paths;
}

void AddRecentTemplate(KeyValueTree& tree, const std::string& path) {
  if (path.empty() || path != StorableText(path)) return;
  TreeBulk change = TreeBulk::Change(tree);
  std::vector<std::string> paths = RecentTemplates(tree);
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  for (std::size_t i = 0; i < std::min(paths.size(), kMost); ++i) {
    RegistryWrite(tree, sections::kTemplate, KeyOf(i), paths[i]);
  }
  change.Commit();
}

}  // namespace starfolds
