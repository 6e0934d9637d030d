// The order of the layers: a folder of src/ includes only the layers that it may know.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace starfolds {
namespace {

namespace fs = std::filesystem;
using Layers = std::set<std::string>;

/// Which layers each layer may include, itself always among them. Qt counts as a layer.
const std::map<std::string, Layers> kMayInclude = [] {
  std::map<std::string, Layers> may;
  const std::vector<std::string> engine{"numbers", "platform", "settings", "prepared",
                                        "colour",  "process",  "bodies",   "universe"};
  Layers below;
  for (const std::string& layer : engine) {
    below.insert(layer);
    may[layer] = below;
  }
  may["command_line"] = {"numbers", "platform", "settings", "command_line"};
  may["storage"] = {"numbers", "platform", "storage"};
  may["render"] = below;
  may["render"].insert({"command_line", "storage", "render"});
  may["desktop"] = {"numbers", "platform", "desktop", "Qt"};
  may["idle"] = {"numbers", "platform", "settings", "command_line",
                 "storage", "desktop",  "idle",     "Qt"};
  may["widgets"] = below;
  may["widgets"].insert({"desktop", "widgets", "Qt"});
  for (const char* window : {"hosting", "body_editors", "template_dialogs", "info"}) {
    may[window] = may["widgets"];
    may[window].insert(window);
  }
  may["properties"] = may["widgets"];
  may["properties"].insert({"body_editors", "template_dialogs", "properties"});
  may["app"] = may["properties"];
  may["app"].insert({"command_line", "storage", "hosting", "info", "app"});
  return may;
}();

/// The first folder or file name of an include line; empty for any other line.
std::string IncludeTarget(const std::string& line) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string::npos || line.compare(hash, 8, "#include") != 0) return {};
  const std::size_t open = line.find_first_of("<\"", hash);
  if (open == std::string::npos) return {};
  const std::string target = line.substr(open + 1, line.find_first_of("/>\"", open + 1) - open - 1);
  const bool isQt = target.size() > 1 && target[0] == 'Q' &&
                    std::isupper(static_cast<unsigned char>(target[1])) != 0;
  return isQt ? "Qt" : target;
}

TEST(LayersTest, NoLayerIncludesAHigherOne) {
  const fs::path root = STARFOLDS_SOURCE_DIR;
  int includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    const fs::path relative = fs::relative(entry.path(), root);
    const auto may = kMayInclude.find(relative.begin()->string());
    ASSERT_NE(may, kMayInclude.end()) << relative << " is in no known layer";
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      const std::string target = IncludeTarget(line);
      if (target != "Qt" && !kMayInclude.contains(target)) continue;
      EXPECT_TRUE(may->second.contains(target)) << relative << " includes " << target;
      ++includes;
    }
  }
  EXPECT_GT(includes, 100) << "the includes were not found";
}

}  // namespace
}  // namespace starfolds
