// A program's options as one table, from which its command line is parsed and its help is made.
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

namespace starfolds {

/// Stores the value of an option, or returns what is wrong with it. The value is empty for an
/// option that takes none.
using TakeValue = std::function<Fault(std::string_view value)>;

struct Option {
  const char* Names;     // such as "-h,--help"; without a hyphen: the positional argument
  const char* Argument;  // placeholder of the value in the help; empty: the option takes none
  const char* Help;      // one or more lines
  TakeValue Take;
  bool Alone = false;  // if given anywhere, all else on the command line is ignored
};

/// A row without a name is the heading of a group of options. Those of a group with an empty
/// heading are not listed in the help.
using OptionTable = std::vector<Option>;
inline Option Heading(const char* text) { return {"", "", text, {}}; }

/// Parses the arguments behind the program's name. Options may stand in any order, their value
/// behind a blank or "=", and are taken from left to right. Returns what is wrong with them.
Fault ReadOptions(const OptionTable& table, std::span<const std::string_view> arguments);

/// The listed options, a group after the other.
std::string OptionsHelp(const OptionTable& table);

/// The text between quotation marks, shortened where it is long. Control characters stay as they
/// are: `Complain` replaces them.
std::string Quoted(std::string_view text);

/// The number, if all of the text is one that fits. No sign but "-", no blanks.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text, int base = 10) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

// Values of options by their kind. Each keeps a reference to its target.

TakeValue TakeText(std::string& target);

/// "WIDTHxHEIGHT" in pixels. The longest side is 16384: the engine's coordinates are 16-bit, and
/// half of their range is left for flares that begin outside of the surface.
TakeValue TakeSize(int& width, int& height);

/// Names and values of settings.
using Changes = std::vector<std::pair<std::string, std::string>>;

/// "Name=value", for a setting that there is and a value that it can have.
TakeValue TakeChange(Changes& target);
/// The value of one setting, or a fixed one for an option that takes none.
TakeValue TakeChange(Changes& target, std::string_view setting, std::string_view fixed = {});

/// A fixed value, for an option that takes none.
template <class Value>
TakeValue TakeFixed(Value& target, std::type_identity_t<Value> value) {
  return [&target, value](std::string_view) {
    target = value;
    return Fault();
  };
}

/// A whole number from `low` to `high`; the target may be a std::optional of one.
template <class Target, class Wide = std::uint64_t>
TakeValue TakeNumber(Target& target, Wide low = 0, Wide high = ~Wide{0}) {
  return [&target, low, high](std::string_view text) -> Fault {
    const auto number = WholeNumber<Wide>(text);
    if (!number || *number < low || *number > high) {
      return "takes a whole number from " + std::to_string(low) + " to " + std::to_string(high) +
             ", not " + Quoted(text);
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
