#include "command_line/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>

#include "numbers/characters.h"
#include "numbers/text.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr std::size_t kHelpColumn = 22;     // where the descriptions begin
constexpr std::size_t kLongestQuote = 200;  // bytes
constexpr int kMaxSide = 16384;

using Rows = std::map<const CLI::Option*, const Option*>;

bool IsFlag(const Option& option) { return *option.Names == '-' && *option.Argument == '\0'; }

/// The longest of the names, such as "--help".
std::string NameOf(const Option& option) {
  const std::string_view names = option.Names;
  return std::string(names.substr(names.find_last_of(',') + 1));
}

Rows AddOptions(CLI::App& app, const OptionTable& table, const ShownText& shown = InEnglish) {
  Rows rows;
  app.set_help_flag();  // the table has its own
  app.allow_extras();   // extra arguments and missing values are reported here
  app.allow_windows_style_options(false);
  std::string group;
  for (const Option& option : table) {
    if (*option.Names == '\0') {
      group = shown(option.Help);
      continue;
    }
    CLI::Option* const added = IsFlag(option) ? app.add_flag(option.Names)
                                              : app.add_option(option.Names, CLI::callback_t());
    added->description(shown(option.Help));
    if (*option.Argument != '\0') added->expected(0, 1)->take_all();
    rows[added->option_text(option.Argument)->group(group)] = &option;
  }
  return rows;
}

TextFault Unexpected(const CLI::App& app) {
  for (const std::string& argument : app.remaining()) {
    if (argument == "--") continue;
    const bool isOption = argument.size() > 1 && argument.front() == '-';
    return UserText(
        isOption ? STARFOLDS_TEXT("unknown option %1") : STARFOLDS_TEXT("unexpected argument %1"),
        {QuotedStart(argument)});
  }
  return std::nullopt;
}

TextFault Take(const Option& option, const std::string& value) {
  const bool given = !IsFlag(option) || value != "true";  // what CLI11 passes for a flag
  if (given && (IsFlag(option) || value.empty())) {
    return UserText(
        IsFlag(option) ? STARFOLDS_TEXT("%1 takes no value") : STARFOLDS_TEXT("%1 needs a value"),
        {NameOf(option)});
  }
  TextFault fault = option.Take(given ? value : std::string());
  if (fault) fault->Subject = NameOf(option);
  return fault;
}

/// Appends the change, and checks it on a temporary set of records.
TextFault AddChange(Changes& changes, std::string_view name, std::string_view value) {
  changes.emplace_back(name, value);
  return SetByName(*std::make_unique<SettingsRecords>(), name, value);
}

}  // namespace

TextFault ReadOptions(const OptionTable& table, std::span<const std::string_view> arguments) {
  CLI::App app;
  const Rows rows = AddOptions(app, table);
  TextFault wrong;
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    wrong = Unexpected(app);
  } catch (const CLI::ParseError& error) {
    wrong = error.what();
  }
  for (const CLI::Option* option : app.parse_order()) {
    if (rows.at(option)->Alone) return rows.at(option)->Take({});
  }
  std::map<const CLI::Option*, std::size_t> taken;
  for (const CLI::Option* option : app.parse_order()) {
    if (wrong) break;
    wrong = Take(*rows.at(option), option->results().at(taken[option]++));
  }
  return wrong;
}

std::string OptionsHelp(const OptionTable& table, const ShownText& shown) {
  CLI::App app;
  AddOptions(app, table, shown);
  CLI::Formatter formatter;
  formatter.column_width(kHelpColumn);
  std::string text;
  for (const std::string& group : app.get_groups()) {
    const auto isOf = [&](const CLI::Option* option) { return option->get_group() == group; };
    const auto options = std::as_const(app).get_options(isOf);
    if (!group.empty()) text += formatter.make_group(group, false, options);
  }
  return text;
}

std::string Numbers(int low, int high) {
  std::string words;
  for (int i = low; i <= high; ++i) words += (words.empty() ? "" : " ") + std::to_string(i);
  return words;
}

std::string QuotedStart(std::string_view text) {
  const std::string_view shown = FirstCharacters(text, kLongestQuote, kLongestQuote);
  return Quoted(std::string(shown) + (shown.size() < text.size() ? "..." : ""));
}

TakeValue TakeText(std::string& target) {
  return [&](std::string_view text) {
    target = text;
    return TextFault();
  };
}

TakeValue TakeSize(int& width, int& height) {
  return [&](std::string_view text) -> TextFault {
    const std::size_t cross = std::min(text.find('x'), text.size());
    width = WholeNumber<int>(text.substr(0, cross)).value_or(0);
    height = WholeNumber<int>(text.substr(std::min(cross + 1, text.size()))).value_or(0);
    if (std::min(width, height) >= 1 && std::max(width, height) <= kMaxSide) return std::nullopt;
    return UserText(STARFOLDS_TEXT("takes WIDTHxHEIGHT, each from 1 to %1, not %2"),
                    {std::to_string(kMaxSide), QuotedStart(text)});
  };
}

TakeValue TakeChange(Changes& target) {
  return [&](std::string_view text) -> TextFault {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
      return UserText(STARFOLDS_TEXT("takes Name=value, not %1"), {QuotedStart(text)});
    }
    return AddChange(target, text.substr(0, equals), text.substr(equals + 1));
  };
}

TakeValue TakeChange(Changes& target, std::string_view setting, std::string_view fixed) {
  return [&target, setting, fixed](std::string_view value) {
    return AddChange(target, setting, fixed.empty() ? value : fixed);
  };
}

}  // namespace starfolds
