#include "storage/storage_places.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(StoragePlaces, FollowTheEnvironment) {
  struct Case {
    std::optional<std::string> Config, Home;
    std::string InDatabase, User;
  };
  const std::string file = "/Tessellane/settings.db";
  for (const Case& c :
       {Case{"/c", "/h", "/d", "/c" + file}, Case{{}, "/h", "/d", "/h/.config" + file},
        Case{"", "/h", "/d", "/h/.config" + file},
        Case{"relative", "/h", "/d", "/h/.config" + file}, Case{{}, {}, "/d", "/d/.config" + file},
        Case{{}, "~", "/d", "/d/.config" + file}, Case{{}, {}, "", ""}}) {
    const TreeFiles files = TreeFilesIn({[&](const char* name) {
                                           const std::string_view asked = name;
                                           if (asked == "XDG_CONFIG_HOME") return c.Config;
                                           return asked == "HOME" ? c.Home : std::nullopt;
                                         },
                                         [&] { return c.InDatabase; }});
    EXPECT_EQ(files.User, c.User) << c.Config.value_or("-") << ' ' << c.Home.value_or("-");
    EXPECT_EQ(files.Machine, "/etc/xdg" + file);
  }
}

}  // namespace
}  // namespace starfolds
