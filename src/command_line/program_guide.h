// What users read about a program's command line: --help, the manual page and the completion
// scripts of shells, all made from the table of its options.
#pragma once

#include <string>
#include <vector>

#include "command_line/options.h"

namespace starfolds {

/// Terms with their explanations.
struct GuideSection {
  struct Row {
    std::string Term, Text;
  };
  std::string Title;  // such as "Exit status"
  std::string Intro;  // a sentence without a full stop; may be empty
  std::vector<Row> Rows;
  bool InHelp = false;  // --help has it too
};

struct ProgramGuide {
  std::string Name;                // "starfolds-render"
  std::string Purpose;             // one line in small letters, without a full stop
  std::vector<std::string> Usage;  // the arguments of each way to call it
  std::string Description;         // one or more sentences
  OptionTable Options;             // `Take` is never called
  std::string Remark;              // what holds for all options
  std::vector<GuideSection> Sections;
};

/// The table without its functions, which may refer to what no longer exists.
OptionTable WithoutFunctions(OptionTable table);

/// What `--help` prints, in the language that `shown` gives.
std::string HelpOf(const ProgramGuide& guide, const ShownText& shown = InEnglish);

/// A manual page of section 1 in the man macros of roff. `date` is the page's, as YYYY-MM-DD.
std::string ManualPage(const ProgramGuide& guide, const std::string& version,
                       const std::string& date);

/// Completion for bash, loaded by the package bash-completion, whose functions it uses.
std::string BashCompletion(const ProgramGuide& guide);

/// Completion for zsh, a function of its completion system.
std::string ZshCompletion(const ProgramGuide& guide);

}  // namespace starfolds
