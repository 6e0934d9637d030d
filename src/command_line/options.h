// A program's options as one table, from which its command line is parsed and its help is printed.
#pragma once

#include <charconv>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "command_line/fault.h"
#include "platform/user_text.h"

namespace starfolds {

/// Stores the value of an option, or returns what is wrong with it. The value is empty for an
/// option without a value.
using TakeValue = std::function<TextFault(std::string_view value)>;

/// What a shell offers as the value of an option. A list of words is the values themselves.
inline constexpr const char* kAnyFile = "*";
inline constexpr const char* kTemplateFile = "*.sfd";
inline constexpr const char* kFolder = "/";
inline constexpr const char* kSettingChange = "=";

struct Option {
  const char* Names;     // such as "-h,--help"; without a hyphen: the positional argument
  const char* Argument;  // placeholder of the value in the help; empty: no value
  const char* Help;      // one or more lines
  TakeValue Take;
  bool Alone = false;     // if given anywhere, the rest of the command line is ignored
  std::string Offered{};  // words separated by blanks, or one of the constants above
};

/// The option with what shells offer as its value.
inline Option Offering(std::string offered, Option option) {
  option.Offered = std::move(offered);
  return option;
}

/// The whole numbers from `low` to `high`, for `Offering`.
std::string Numbers(int low, int high);

/// A row without a name is the heading of a group of options. A group with an empty heading is not
/// listed in the help.
using OptionTable = std::vector<Option>;
inline Option Heading(const char* text) { return {"", "", text, {}}; }

/// Parses the arguments after the program's name. Options may be in any order, with their value
/// after a blank or "=", and are applied from left to right. Returns what is wrong with them.
TextFault ReadOptions(const OptionTable& table, std::span<const std::string_view> arguments);

/// The help text of the listed options, group by group, in the language that `shown` gives.
std::string OptionsHelp(const OptionTable& table, const ShownText& shown = InEnglish);

/// The text in double quotes, cut if it is long. Control characters are kept: `Complain`
/// replaces them.
std::string QuotedStart(std::string_view text);

/// Parses all of `text` as a number of this type; nullopt if it is not one or does not fit. The
/// only sign is "-"; blanks are not accepted.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text, int base = 10) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

// Functions that store values of one kind. Each keeps a reference to its target.

TakeValue TakeText(std::string& target);

/// "WIDTHxHEIGHT" in pixels, each 1 to 16384: the engine's coordinates are 16-bit, and half of
/// their range is needed for flares that begin outside of the surface.
TakeValue TakeSize(int& width, int& height);

/// Names and values of settings.
using Changes = std::vector<std::pair<std::string, std::string>>;

/// "Name=value". Fails if there is no such setting or it cannot have that value.
TakeValue TakeChange(Changes& target);
/// The value of one setting, or `fixed` for an option without a value.
TakeValue TakeChange(Changes& target, std::string_view setting, std::string_view fixed = {});

/// Stores `fixed`, for an option without a value.
template <class Value>
TakeValue TakeFixed(Value& target, std::type_identity_t<Value> value) {
  return [&target, value](std::string_view) {
    target = value;
    return TextFault();
  };
}

/// A whole number from `low` to `high`; the target may be a std::optional of one.
template <class Target, class Wide = std::uint64_t>
TakeValue TakeNumber(Target& target, Wide low = 0, Wide high = ~Wide{0}) {
  return [&target, low, high](std::string_view text) -> TextFault {
    const auto number = WholeNumber<Wide>(text);
    if (!number || *number < low || *number > high) {
      return UserText(STARFOLDS_TEXT("takes a whole number from %1 to %2, not %3"),
                      {std::to_string(low), std::to_string(high), QuotedStart(text)});
    }
    if constexpr (requires { typename Target::value_type; }) {
      target = static_cast<typename Target::value_type>(*number);
    } else {
      target = static_cast<Target>(*number);
    }
    return std::nullopt;
  };
}

}  // namespace starfolds
