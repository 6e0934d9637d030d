// Parses the input as command lines of both programs; a line feed ends an argument.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "app/options.h"
#include "fuzz/expect.h"
#include "hosting/main.h"
#include "render/options.h"

namespace {

using namespace starfolds;

/// Counts the windows that a start opens.
class CountedActions : public StartActions {
 public:
  int Windows = 0;
  bool FileExists(const std::string&) override { return false; }
  void ShowFrmSaver() override { ++Windows; }
  void ShowFrmAppExe() override { ++Windows; }
  void ShowFrmProps() override { ++Windows; }
  void LoadFrmPreview() override { ++Windows; }
  void LoadTemplate(const std::string&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  std::vector<std::string_view> arguments;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    arguments.push_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  StartOptions start;
  if (!ParseStartOptions(arguments, start)) {
    static ProcessState process;  // large, and `Main` sets what it reads
    MemoryDesktop desktop;
    MemoryTree tree;
    SaverPlatform platform;
    process.Desktop = &desktop;
    process.Tree = &tree;
    process.Platform = &platform;
    CountedActions actions;
    Main(process, {"/program", "starfolds", start.CommandLine}, actions);
    Expect(actions.Windows <= 1, "a start opens one window at most");
  }
  RenderOptions render;
  if (!ParseOptions(arguments, render)) {
    Expect(render.Width > 0 && render.Height > 0 && render.Scale > 0, "a picture has a size");
  }
  return 0;
}
