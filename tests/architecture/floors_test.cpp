// The order of the floors: a folder of src/ includes only what stands above it.
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
using Floors = std::set<std::string>;

/// Which floors each floor may include, itself always among them. Qt counts as a floor.
const std::map<std::string, Floors> kMayInclude = [] {
  std::map<std::string, Floors> may;
  const std::vector<std::string> engine{"numbers", "platform", "settings",
                                        "colour",  "bodies",   "universe"};
  Floors below;
  for (const std::string& floor : engine) {
    below.insert(floor);
    may[floor] = below;
  }
  may["command_line"] = {"numbers", "platform", "settings", "command_line"};
  may["storage"] = {"numbers", "platform", "storage"};
  may["render"] = below;
  may["render"].insert({"command_line", "storage", "render"});
  may["desktop"] = {"numbers", "platform", "desktop", "Qt"};
  may["hosting"] = below;
  may["hosting"].insert({"desktop", "hosting", "Qt"});
  may["editors"] = may["hosting"];
  may["editors"].insert("editors");
  may["info"] = may["hosting"];
  may["info"].insert("info");
  may["app"] = may["editors"];
  may["app"].insert({"command_line", "storage", "info", "app"});
  return may;
}();

struct Include {
  std::string File, Floor, Target;
};

bool IsSource(const fs::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

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

/// Every include of a floor or of Qt below `root`.
std::vector<Include> IncludesBelow(const fs::path& root) {
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (!IsSource(entry.path())) continue;
    const fs::path relative = fs::relative(entry.path(), root);
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      const std::string target = IncludeTarget(line);
      if (target == "Qt" || kMayInclude.contains(target)) {
        includes.push_back({relative.string(), relative.begin()->string(), target});
      }
    }
  }
  return includes;
}

std::vector<std::string> FaultsOf(const std::vector<Include>& includes) {
  std::vector<std::string> faults;
  for (const Include& include : includes) {
    const auto may = kMayInclude.find(include.Floor);
    if (may == kMayInclude.end()) {
      faults.push_back(include.File + " stands on no known floor");
    } else if (!may->second.contains(include.Target)) {
      faults.push_back(include.File + " includes " + include.Target);
    }
  }
  return faults;
}

TEST(FloorsTest, NoFloorKnowsTheOnesThatStandOnIt) {
  const std::vector<Include> includes = IncludesBelow(STARFOLDS_SOURCE_DIR);
  ASSERT_GT(includes.size(), 100U) << "the includes were not found";
  for (const std::string& fault : FaultsOf(includes)) ADD_FAILURE() << fault;
}

TEST(FloorsTest, AnIncludeAgainstTheOrderIsFound) {
  const fs::path root = fs::path(testing::TempDir()) / "floors";
  fs::create_directories(root / "bodies");
  std::ofstream(root / "bodies" / "bad.h")
      << "#include \"universe/tour.h\"\n#include <QWidget>\n#include \"colour/saver.h\"\n";
  EXPECT_EQ(FaultsOf(IncludesBelow(root)).size(), 2U);
  fs::remove_all(root);
}

}  // namespace
}  // namespace starfolds
