// The completion scripts of bash and zsh.
#include <algorithm>
#include <sstream>

#include "command_line/program_guide.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

bool IsOption(const Option& option) { return *option.Names == '-'; }

/// The listed rows of the table without its headings.
std::vector<Option> Listed(const OptionTable& table) {
  std::vector<Option> rows;
  bool listed = true;
  for (const Option& option : table) {
    if (*option.Names == '\0') {
      listed = *option.Help != '\0';
    } else if (listed) {
      rows.push_back(option);
    }
  }
  return rows;
}

std::vector<std::string> NamesOf(const Option& option) {
  std::vector<std::string> names;
  std::istringstream list(option.Names);
  for (std::string name; std::getline(list, name, ',');) names.push_back(name);
  return names;
}

std::string Joined(const std::vector<std::string>& words, const char* between) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

/// The names that an option such as --set takes, without the numbers of profiles and composites.
std::string SettingNames() {
  std::vector<std::string> names;
  const auto add = [&](const auto& fields) {
    for (const auto& field : fields) names.emplace_back(field.Name);
  };
  add(UniverseFields());
  add(AdvancedFields());
  add(ProfileFields());
  add(CompositeFields());
  return Joined(names, " ");
}

bool TakesSettings(const std::vector<Option>& options) {
  return std::ranges::any_of(options, [](const Option& o) { return o.Offered == kSettingChange; });
}

/// The name of a shell function of the program.
std::string FunctionName(const ProgramGuide& guide) {
  std::string name = "_" + guide.Name;
  std::ranges::replace(name, '-', '_');
  return name;
}

// --- bash ---------------------------------------------------------------------------------------

/// The command that offers the values of an option; empty: none can be offered.
std::string BashValues(const std::string& offered, const std::string& function) {
  if (offered.empty()) return {};
  if (offered == kAnyFile) return "_filedir";
  if (offered == kTemplateFile) return "_filedir sfd";
  if (offered == kFolder) return "_filedir -d";
  if (offered == kSettingChange) return function + "_settings";
  return "mapfile -t COMPREPLY < <(compgen -W '" + offered + "' -- \"$cur\")";
}

std::string BashSettings(const std::string& function) {
  return function + "_settings() {\n    local names='" + SettingNames() +
         "'\n    [[ $cur == *=* ]] && return\n    compopt -o nospace\n"
         "    mapfile -t COMPREPLY < <(compgen -S = -W \"$names\" -- \"$cur\")\n}\n\n";
}

std::string BashCases(const std::vector<Option>& options, const std::string& function) {
  std::string cases;
  std::vector<std::string> others;  // whose values cannot be offered
  for (const Option& option : options) {
    if (!IsOption(option) || *option.Argument == '\0') continue;
    const std::string values = BashValues(option.Offered, function);
    const std::string names = Joined(NamesOf(option), " | ");
    if (values.empty()) {
      others.push_back(names);
    } else {
      cases.append("        ").append(names).append(")\n            ").append(values);
      cases += "\n            return\n            ;;\n";
    }
  }
  if (others.empty()) return cases;
  return cases + "        " + Joined(others, " | ") + ")\n            return\n            ;;\n";
}

// --- zsh ----------------------------------------------------------------------------------------

/// Text inside of a single-quoted argument of `_arguments`.
std::string ZshText(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\'') {
      escaped += "'\\''";
    } else if (c == '\n') {
      escaped += ' ';
    } else {
      if (c == '[' || c == ']' || c == ':' || c == '\\') escaped += '\\';
      escaped += c;
    }
  }
  return escaped;
}

std::string ZshValues(const std::string& offered, const std::string& function) {
  if (offered.empty()) return " ";
  if (offered == kAnyFile) return "_files";
  if (offered == kTemplateFile) return "_files -g \"*.sfd\"";
  if (offered == kFolder) return "_files -/";
  if (offered == kSettingChange) return function + "_settings";
  return "(" + offered + ")";
}

std::string ZshSpecification(const Option& option, const std::string& function) {
  const std::string values = ZshValues(option.Offered, function);
  if (!IsOption(option)) return "'::" + ZshText(option.Names) + ":" + values + "'";
  const std::vector<std::string> names = NamesOf(option);
  const std::string help = "[" + ZshText(option.Help) + "]";
  if (names.size() > 1) {
    return "'(" + Joined(names, " ") + ")'{" + Joined(names, ",") + "}'" + help + "'";
  }
  const std::string often = option.Offered == kSettingChange ? "*" : "";
  if (*option.Argument == '\0') return "'" + often + names[0] + help + "'";
  return "'" + often + names[0] + "=" + help + ":" + ZshText(option.Argument) + ":" + values + "'";
}

}  // namespace

std::string BashCompletion(const ProgramGuide& guide) {
  const std::vector<Option> options = Listed(guide.Options);
  const std::string function = FunctionName(guide);
  std::string names, text = "# bash completion of " + guide.Name + "\n\n";
  for (const Option& option : options) {
    if (IsOption(option)) names += (names.empty() ? "" : " ") + Joined(NamesOf(option), " ");
  }
  const auto argument = std::ranges::find_if_not(options, IsOption);
  if (TakesSettings(options)) text += BashSettings(function);
  text += function + "() {\n    local cur prev words cword split\n" +
          "    _init_completion -s || return\n    case $prev in\n" + BashCases(options, function) +
          "    esac\n    $split && return\n    if [[ $cur == -* ]]; then\n" +
          "        mapfile -t COMPREPLY < <(compgen -W '" + names + "' -- \"$cur\")\n";
  if (argument != options.end()) {
    text += "    else\n        " + BashValues(argument->Offered, function) + "\n";
  }
  return text + "    fi\n}\n\ncomplete -F " + function + " " + guide.Name + "\n";
}

std::string ZshCompletion(const ProgramGuide& guide) {
  const std::vector<Option> options = Listed(guide.Options);
  const std::string function = FunctionName(guide);
  std::string text = "#compdef " + guide.Name + "\n\n";
  if (TakesSettings(options)) {
    text += function + "_settings() {\n  compadd -S = -- " + SettingNames() + "\n}\n\n";
  }
  text += "_arguments";
  for (const Option& option : options) text += " \\\n  " + ZshSpecification(option, function);
  return text + "\n";
}

}  // namespace starfolds
