// The settings that saver hosts offer, against the program that gets them as arguments.
#include <gtest/gtest.h>

#include <QFile>
#include <QXmlStreamReader>
#include <set>
#include <string>
#include <vector>

#include "app/options.h"
#include "settings/factory.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

using Attributes = QXmlStreamAttributes;

std::string Text(const Attributes& attributes, const char* name) {
  return attributes.value(QLatin1String(name)).toString().toStdString();
}

/// All elements of one name in the hosts' file.
std::vector<Attributes> Elements(const QString& name) {
  QFile file(PACKAGING "/starfolds.xml");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&file);
  std::vector<Attributes> elements;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name) {
      elements.push_back(reader.attributes());
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_FALSE(elements.empty());
  return elements;
}

/// The settings that a host's argument, such as "--stars %", changes when it stands behind the
/// command; `value` in place of the "%".
std::vector<std::pair<std::string, std::string>> Changes(std::string argument,
                                                         const std::string& value = {}) {
  const std::size_t blank = std::min(argument.find(' '), argument.size());
  std::string behind = argument.substr(std::min(blank + 1, argument.size()));
  if (behind == "%") behind = value;
  argument.resize(blank);
  std::vector<std::string_view> arguments{"--root", argument};
  if (!behind.empty()) arguments.push_back(behind);
  StartOptions options;
  EXPECT_EQ(ParseStartOptions(arguments, options), std::nullopt) << argument;
  EXPECT_EQ(options.AskedFor, Role::Guest);
  return options.Changes;
}

struct Setting {
  Limits Range;
  std::string Default;
};

Setting Find(const std::string& name) {
  if (const auto* field = FindField(UniverseFields(), name)) {
    return {{field->Low, field->High}, FieldText(UniverseSettings(), *field)};
  }
  const auto& field = *FindField(AdvancedFields(), name);
  return {{field.Low, field.High}, FieldText(AdvancedSettings(), field)};
}

TEST(HostSettings, NumbersAreWithinTheirRange) {
  for (const Attributes& number : Elements("number")) {
    const std::string argument = Text(number, "arg");
    const auto changes = Changes(argument, Text(number, "high"));
    ASSERT_EQ(changes.size(), 1U) << argument;
    const Setting setting = Find(changes[0].first);
    EXPECT_EQ(std::stod(Text(number, "low")), setting.Range.Low) << argument;
    EXPECT_LE(std::stod(Text(number, "high")), setting.Range.High) << argument;
    // A host hands over nothing for its default, so the saver's own has to be the same.
    EXPECT_EQ(Text(number, "default"), setting.Default) << argument;
  }
}

TEST(HostSettings, SwitchesAreTheOtherWayThanTheDefault) {
  for (const Attributes& boolean : Elements("boolean")) {
    const bool isSet = Text(boolean, "arg-unset").empty();
    const auto changes = Changes(Text(boolean, isSet ? "arg-set" : "arg-unset"));
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes[0].second, isSet ? "1" : "0");
    EXPECT_NE(changes[0].second, Find(changes[0].first).Default);
  }
}

/// The options for one run, except for those that a dialog cannot offer.
TEST(HostSettings, OfferEveryOptionForOneRun) {
  std::set<std::string> offered{"--seed", "--set"};
  for (const char* element : {"number", "boolean", "option"}) {
    for (const Attributes& attributes : Elements(element)) {
      for (const char* name : {"arg", "arg-set", "arg-unset"}) {
        const std::string argument = Text(attributes, name);
        offered.insert(argument.substr(0, argument.find(' ')));
      }
    }
  }
  bool forOneRun = false;
  int options = 0;
  for (const Option& option : SaverGuide().Options) {
    if (*option.Names == '\0') {
      forOneRun = std::string_view(option.Help).ends_with("for this run only");
    } else if (forOneRun) {
      EXPECT_TRUE(offered.contains(option.Names)) << option.Names;
      ++options;
    }
  }
  EXPECT_GT(options, 8);
}

TEST(HostSettings, ThemesHaveTheirNames) {
  const std::vector<Attributes> options = Elements("option");
  ASSERT_EQ(options.size(), kThemeCount + 1U);
  EXPECT_EQ(Text(options[0], "arg-set"), "");
  for (int theme = 1; theme <= kThemeCount; ++theme) {
    const Attributes& option = options[static_cast<std::size_t>(theme)];
    EXPECT_EQ(Text(option, "_label"), FactoryThemeName(theme));
    UniverseSettings universe;
    LoadFactoryTheme(universe, theme, false);
    EXPECT_EQ(Changes(Text(option, "arg-set")).front().second,
              std::to_string(universe.Universe_Stars));
  }
}

}  // namespace
}  // namespace starfolds
