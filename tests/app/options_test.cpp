#include "app/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "app/saver_screens.h"

namespace starfolds {
namespace {

using Arguments = std::vector<std::string_view>;

StartOptions Parsed(const Arguments& arguments) {
  StartOptions options;
  EXPECT_EQ(ParseStartOptions(arguments, options), std::nullopt);
  return options;
}

std::string Refused(const Arguments& arguments) {
  StartOptions options;
  return InOneLine(ParseStartOptions(arguments, options).value_or(UserText("")));
}

TEST(StartOptions, LeaveTheCommandLineToTheSystem) {
  EXPECT_EQ(Parsed({}).CommandLine, "");
  const StartOptions preview = Parsed({"/P", "12345"});
  EXPECT_EQ(preview.AskedFor, Role::FromCommandLine);
  EXPECT_EQ(preview.CommandLine, "/P 12345");
  EXPECT_EQ(Parsed({"/My Folder/a", "b.sfd"}).CommandLine, "/My Folder/a b.sfd");
  EXPECT_EQ(Parsed({"", "/S"}).CommandLine, " /S");
  for (const Arguments& given :
       {Arguments{"/S", "--window"}, {"/p:123", "-x"}, {"-c"}, {"-S", "1"}, {"-my.sfd"}, {"-"}}) {
    EXPECT_EQ(Parsed(given).AskedFor, Role::FromCommandLine) << testing::PrintToString(given);
    EXPECT_EQ(Parsed(given).CommandLine.substr(0, 2), given[0].substr(0, 2));
  }
}

TEST(StartOptions, NameTheWindowOfAHost) {
  EXPECT_EQ(Parsed({"--root"}).AskedFor, Role::Guest);
  EXPECT_EQ(Parsed({"--root"}).HostWindow, std::nullopt);
  for (const Arguments& given :
       {Arguments{"--root", "--window-id", "0x800EE5"}, Arguments{"--window-id", "0X800ee5"},
        Arguments{"--window-id", "8392421", "--root"}}) {
    EXPECT_EQ(Parsed(given).AskedFor, Role::Guest);
    EXPECT_EQ(Parsed(given).HostWindow, 0x800EE5);
  }
  EXPECT_EQ(WindowNumber("0x7FFFFFFF"), 0x7FFFFFFF);
  for (const char* const text : {"", "0", "0x0", "0x", "-1", "+1", " 1", "1 ", "0x-1", "12a", "1.5",
                                 "0x80000000", "18446744073709551617"}) {
    EXPECT_EQ(WindowNumber(text), std::nullopt) << text;
  }
}

TEST(StartOptions, ChangeSettings) {
  using testing::ElementsAre;
  using testing::Pair;
  EXPECT_THAT(Parsed({"--saver", "--set", "Starfold7/Starfold_Radius=5", "--stars", "99999",
                      "--no-tour", "--set", "LockMessage=a=b"})
                  .Changes,
              ElementsAre(Pair("Starfold7/Starfold_Radius", "5"), Pair("Universe_Stars", "99999"),
                          Pair("Universe_Tour", "0"), Pair("LockMessage", "a=b")));
  EXPECT_EQ(Parsed({"--root", "--theme", "8", "--stars", "7"}).Changes.back().second, "7");
  EXPECT_NE(Refused({"--root", "--theme", "9"}), "");
  EXPECT_EQ(Refused({"--root", "--stars", "many"}),
            "--stars: \"Universe_Stars\" takes a number, not \"many\"");
  EXPECT_EQ(Refused({"--root", "--set", "Stars=1"}), "--set: there is no setting \"Stars\"");
  EXPECT_EQ(Refused({"--root", "--set", "Stars"}), "--set: takes Name=value, not \"Stars\"");
}

TEST(StartOptions, TakeATemplateToShow) {
  EXPECT_EQ(Parsed({"--window", "/a b/\"c\" $d.sfd", "--seed", "1"}).Template, "/a b/\"c\" $d.sfd");
  EXPECT_EQ(Parsed({"--window"}).Template, "");
  for (const Arguments& given : {Arguments{"/srv/a.sfd", "--window", "--size=5x16384"},
                                 {"--size", "5x16384", "/srv/a.sfd", "--window"},
                                 {"--size=5x16384", "--window", "--", "/srv/a.sfd"}}) {
    const StartOptions options = Parsed(given);
    EXPECT_EQ(options.AskedFor, Role::Window);
    EXPECT_EQ(options.Template, "/srv/a.sfd");
    ASSERT_TRUE(options.Size);
    EXPECT_EQ(options.Size->Width * 100000 + options.Size->Height, 516384);
  }
  EXPECT_TRUE(Parsed({"--window", "--full-screen"}).FullScreen);
  EXPECT_EQ(Refused({"--window", "a.sfd", "b.sfd"}), "unexpected argument \"b.sfd\"");
  for (const char* const role : {"--settings", "--root", "--saver"}) {
    EXPECT_NE(Refused({role, "a.sfd"}).find("\"a.sfd\""), std::string::npos) << role;
  }
}

TEST(StartOptions, TakeScreensAndASeed) {
  EXPECT_EQ(Parsed({"--saver", "--seed", "0"}).Seed, 0U);
  EXPECT_EQ(Parsed({"--seed", "18446744073709551615", "--window"}).Seed, ~std::uint64_t{0});
  EXPECT_NE(Refused({"--saver", "--seed", "18446744073709551616"}), "");
  EXPECT_EQ(Parsed({"--seed", "many", "--help"}).AskedFor, Role::Help);
  EXPECT_EQ(Parsed({"--saver"}).Screen, std::nullopt);
  EXPECT_EQ(Parsed({"--saver", "--screens", "primary"}).Screen, 1);
  EXPECT_EQ(Parsed({"--saver", "--screens", "12"}).Screen, 12);
  EXPECT_EQ(Parsed({"--screens", "2", "--saver", "--screens", "all"}).Screen, std::nullopt);
  for (const char* const screens : {"", "0", "-1", "two", "1.5", "99999999999"}) {
    EXPECT_NE(Refused({"--saver", "--screens", screens}), "") << screens;
  }
}

TEST(StartOptions, AreHandedOnToCompanions) {
  const auto line = [](const Arguments& arguments) {
    std::string joined;
    for (const std::string& more : CompanionArguments(Parsed(arguments), 1)) joined += more + " ";
    return joined;
  };
  EXPECT_EQ(line({"/S"}), "--saver --companion --screens 2 ");
  EXPECT_EQ(line({"--saver", "--"}), "--saver --saver --companion --screens 2 ");
  const std::string seeded = line({"--saver", "--seed", "5"});
  EXPECT_EQ(seeded, "--saver --seed 5 --saver --companion --screens 2 --seed 6 ");
}

}  // namespace
}  // namespace starfolds
