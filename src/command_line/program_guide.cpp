#include "command_line/program_guide.h"

#include <algorithm>
#include <cctype>

namespace starfolds {
namespace {

constexpr std::size_t kTermColumns = 20;  // of a section in --help, behind two blanks
constexpr std::size_t kLineBytes = 78;    // of the manual page's source

std::string Capitals(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

/// Text as roff shows it unchanged. A hyphen at the start of a word is a minus sign, which can be
/// pasted into a shell; another one may end a line.
std::string Roff(std::string_view text) {
  std::string escaped;
  char former = ' ';
  for (const char c : text) {
    const bool inWord = std::isalnum(static_cast<unsigned char>(former)) != 0;
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-' && !inWord) {
      escaped += "\\-";
    } else if (c == '~') {
      escaped += "\\(ti";
    } else if (c == '\'') {
      escaped += "\\(aq";
    } else {
      escaped += c;
    }
    former = c;
  }
  return escaped;
}

/// Words in lines of the source, each sentence in lines of its own. A line of text must not begin
/// with a dot, which would make it a request.
std::string RoffText(std::string_view text) {
  std::string lines, line, word;
  const auto endLine = [&] {
    if (line.empty()) return;
    lines += (line.front() == '.' ? "\\&" : "") + line + "\n";
    line.clear();
  };
  for (const char c : Roff(text) + ' ') {
    if (c != ' ' && c != '\n') {
      word += c;
    } else if (!word.empty()) {
      if (line.size() + 1 + word.size() > kLineBytes) endLine();
      line += (line.empty() ? "" : " ") + word;
      if (word.back() == '.') endLine();
      word.clear();
    }
  }
  endLine();
  return lines;
}

std::string Bold(std::string_view text) { return "\\fB" + Roff(text) + "\\fR"; }

std::string RoffRow(const std::string& term, std::string_view text) {
  return ".TP\n" + term + "\n" + RoffText(text);
}

/// "-h, --help", or "--size=WxH" with the value in italics.
std::string RoffTerm(const Option& option) {
  std::string term, names = option.Names;
  for (std::size_t comma = 0; comma != std::string::npos; names.erase(0, comma + 1)) {
    comma = names.find(',');
    term += (term.empty() ? "" : ", ") + Bold(names.substr(0, comma));
    if (comma == std::string::npos) break;
  }
  if (*option.Argument != '\0') term += " \\fI" + Roff(option.Argument) + "\\fR";
  return term;
}

std::string RoffOptions(const OptionTable& table) {
  std::string text;
  bool listed = true;
  for (const Option& option : table) {
    if (*option.Names == '\0') {
      listed = *option.Help != '\0';
      if (listed) text += ".SS " + Roff(option.Help) + "\n";
    } else if (listed) {
      text += RoffRow(RoffTerm(option), option.Help);
    }
  }
  return text;
}

std::string SectionOfHelp(const GuideSection& section, const ShownText& shown) {
  std::string text = "\n" + shown(section.Title);
  if (!section.Intro.empty()) text += ", " + shown(section.Intro);
  text += ":\n";
  for (const auto& [term, explanation] : section.Rows) {
    text += "  " + term + std::string(std::max(kTermColumns, term.size() + 2) - term.size(), ' ') +
            shown(explanation) + "\n";
  }
  return text;
}

std::string SectionOfManual(const GuideSection& section) {
  std::string text = ".SH " + Roff(Capitals(section.Title)) + "\n";
  if (!section.Intro.empty()) {
    text += RoffText(section.Title + ", " + section.Intro + ":");
  }
  for (const auto& [term, explanation] : section.Rows) text += RoffRow(Bold(term), explanation);
  return text;
}

}  // namespace

OptionTable WithoutFunctions(OptionTable table) {
  for (Option& option : table) option.Take = {};
  return table;
}

std::string HelpOf(const ProgramGuide& guide, const ShownText& shown) {
  std::string text;
  for (const std::string& usage : guide.Usage) {
    text += shown(text.empty() ? STARFOLDS_TEXT("Usage: ") : STARFOLDS_TEXT(" or "));
    text += guide.Name + " " + shown(usage);
  }
  text += "\n\n" + shown(guide.Description) + "\n" + OptionsHelp(guide.Options, shown);
  text += "\n" + shown(guide.Remark) + "\n";
  for (const GuideSection& section : guide.Sections) {
    if (section.InHelp) text += SectionOfHelp(section, shown);
  }
  return text;
}

std::string ManualPage(const ProgramGuide& guide, const std::string& version,
                       const std::string& date) {
  std::string text = ".TH " + Capitals(guide.Name) + " 1 " + date + " \"Starfolds " + version +
                     "\" \"User Commands\"\n.SH NAME\n" + Roff(guide.Name) + " \\- " +
                     Roff(guide.Purpose) + "\n.SH SYNOPSIS\n";
  for (std::size_t i = 0; i < guide.Usage.size(); ++i) {
    text += (i == 0 ? "" : ".br\n") + Bold(guide.Name) + " " + Roff(guide.Usage[i]) + "\n";
  }
  text += ".SH DESCRIPTION\n" + RoffText(guide.Description) + ".SH OPTIONS\n" +
          RoffText(guide.Remark) + RoffOptions(guide.Options);
  for (const GuideSection& section : guide.Sections) text += SectionOfManual(section);
  return text;
}

}  // namespace starfolds
