// `starfolds-render`: the saver's engine on a surface in memory.
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

#include "render/render_run.h"

namespace {

using namespace starfolds;

constexpr int kExitFault = 2;

/// Arguments and file names come back in messages; a terminal shall not obey them.
std::string Harmless(std::string text) {
  for (char& c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code < ' ' || code == 0x7F) c = '?';
  }
  return text;
}

int Complain(const std::string& message) {
  std::fprintf(stderr, "starfolds-render: %s\n", Harmless(message).c_str());
  return kExitFault;
}

int Print(const std::string& text) {
  const bool printed = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
  return printed ? 0 : Complain("cannot write to the standard output");
}

int RunWith(const std::vector<std::string_view>& arguments) {
  RenderOptions options;
  if (const Fault fault = ParseOptions(arguments, options)) {
    return Complain(*fault + " (--help lists the options)");
  }
  switch (options.Action) {
    case RenderAction::List: return Print(ListText(options));
    case RenderAction::Help: return Print(HelpText());
    case RenderAction::Version: return Print("starfolds-render " STARFOLDS_VERSION "\n");
    case RenderAction::Render: break;
  }
  const Fault fault = Render(options);
  return fault ? Complain(*fault) : 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return RunWith(std::vector<std::string_view>(argv + (argc > 0 ? 1 : 0), argv + argc));
  } catch (const std::exception& error) {
    return Complain(error.what());
  }
}
