// Reads the input as the text of a link.
#include <cstddef>
#include <cstdint>
#include <memory>

#include "fuzz/expect.h"
#include "settings/share_link.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace starfolds;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto records = std::make_unique<SettingsRecords>();
  LinkedScene scene;
  if (ReadLinkText(text, *records, scene)) return 0;
  const std::string link = LinkText(*records, scene);
  LinkedScene sceneAgain;
  Expect(!ReadLinkText(link, *records, sceneAgain), "a link of our own can be read");
  Expect(scene == sceneAgain, "the scene comes back");
  Expect(LinkText(*records, sceneAgain) == link, "the settings come back");
  return 0;
}
