#include "platform/desktop_services.h"

#include <algorithm>

namespace starfolds {

bool MemoryDesktop::WindowExists(const std::string& caption) {
  return std::find(Captions.begin(), Captions.end(), caption) != Captions.end();
}

bool MemoryDesktop::IsWindow(Long handle) {
  return handle != 0 && std::find(Windows.begin(), Windows.end(), handle) != Windows.end();
}

bool MemoryDesktop::OpenWebPage(const std::string& url) {
  WebPages.push_back(url);
  return HasBrowser;
}

bool MemoryDesktop::ShowSystemInfo() {
  ++SystemInfos;
  return HasSystemInfo;
}

}  // namespace starfolds
