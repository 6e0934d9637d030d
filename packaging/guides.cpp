// starfolds-guides FORMAT PROGRAM VERSION DATE: prints the manual page or a shell's completion of a
// program, made from the table of its options. Used by the build; not installed.
#include <string>

#include "app/options.h"
#include "idle/options.h"
#include "platform/console.h"
#include "render/options.h"

namespace {

using namespace starfolds;

int Refuse(const std::string& message) {
  Complain("starfolds-guides", message);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return Refuse("takes FORMAT PROGRAM VERSION DATE");
  const std::string format = argv[1];
  const std::string program = argv[2];
  for (const ProgramGuide& guide : {SaverGuide(), RendererGuide(), IdleGuide()}) {
    if (guide.Name != program) continue;
    if (format == "man") return Print(ManualPage(guide, argv[3], argv[4])) ? 0 : 1;
    if (format == "bash") return Print(BashCompletion(guide)) ? 0 : 1;
    if (format == "zsh") return Print(ZshCompletion(guide)) ? 0 : 1;
    return Refuse("there is no format \"" + format + "\"");
  }
  return Refuse("there is no program \"" + program + "\"");
}
