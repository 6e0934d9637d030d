// host_window saver|application [SECTION/KEY=TEXT]...: one of the windows that host the effect, on
// a real desktop, with these settings stored and nothing else. At the end it prints the window
// state that is stored then. For scripts that make the user's input.
#include <QGuiApplication>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "desktop/qt_pump.h"
#include "hosting/frm_app_exe.h"
#include "hosting/frm_saver.h"
#include "settings/registry.h"

namespace {

using namespace starfolds;

bool Store(KeyValueTree& tree, std::string_view setting) {
  const std::size_t slash = setting.find('/');
  const std::size_t equals = setting.find('=');
  if (slash == setting.npos || equals == setting.npos || equals < slash) return false;
  return RegistryWrite(tree, setting.substr(0, slash),
                       setting.substr(slash + 1, equals - slash - 1), setting.substr(equals + 1));
}

void Run(ProcessState& process, std::string_view window) {
  const SeedSource seed = [] { return 5; };
  if (window == "saver") {
    FrmSaver(process, seed).Load();
  } else {
    FrmAppExe(process, seed, [](QWindow&, bool) { std::puts("properties"); }).Activate();
  }
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  MemoryTree tree;
  for (int i = 2; i < argc; ++i) {
    if (!Store(tree, argv[i])) return 2;
  }
  QtPump pump;
  MemoryDesktop desktop;
  SaverPlatform platform;
  const auto process = std::make_unique<ProcessState>();
  process->Tree = &tree;
  process->Events = &pump;
  process->Desktop = &desktop;
  process->Platform = &platform;
  if (argc < 2) return 2;
  process->Mode =
      std::string_view(argv[1]) == "saver" ? RunMode::ScreenSaver : RunMode::Application;
  Run(*process, argv[1]);
  std::printf("WindowState=%s\n",
              RegistryReadText(tree, sections::kGeneral, "WindowState").c_str());
  return 0;
}
