#include "idle/options.h"

#include "command_line/options.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

OptionTable TableFor(IdleOptions& to) {
  const auto asksFor = [&](IdleRole role) { return TakeFixed(to.AskedFor, role); };
  return {
      Heading(STARFOLDS_TEXT("Options")),
      {"--status", "", STARFOLDS_TEXT("print what was found here, and what forbids the saver now"),
       asksFor(IdleRole::Status)},
      {"--test", "", STARFOLDS_TEXT("start the saver once, after five seconds without input"),
       asksFor(IdleRole::Test)},
      Offering(kAnyFile,
               {"--program", "FILE",
                STARFOLDS_TEXT("start FILE --saver instead of the starfolds beside this\nprogram"),
                TakeText(to.Saver)}),
      {"-h,--help", "", STARFOLDS_TEXT("print this text"), asksFor(IdleRole::Help), true},
      {"-V,--version", "", STARFOLDS_TEXT("print the version"), asksFor(IdleRole::Version), true},
  };
}

}  // namespace

TextFault ParseIdleOptions(std::span<const std::string_view> arguments, IdleOptions& options) {
  return ReadOptions(TableFor(options), arguments);
}

ProgramGuide IdleGuide() {
  IdleOptions unused;
  return {
      .Name = "starfolds-idle",
      .Purpose = "start the Starfolds screen saver when there is no input",
      .Usage = {STARFOLDS_TEXT("[OPTION]...")},
      .Description = STARFOLDS_TEXT(
          "Starts the Starfolds screen saver when there was no input for some time, and\n"
          "ends it at the next input. It waits while a film or a call inhibits idleness,\n"
          "on battery, and while the screen is locked or off. It locks nothing."),
      .Options = WithoutFunctions(TableFor(unused)),
      .Remark = STARFOLDS_TEXT(
          "The settings are in the settings dialog: starfolds --settings, Edit, When Idle.\n"
          "Without options it ends at once if they are off."),
      .Sections = {},
  };
}

}  // namespace starfolds
