#include "widgets/web_page.h"

#include "settings/product.h"

namespace starfolds {

void OpenWebPage(DesktopServices& desktop, MessageBoxes& boxes, const std::string& url) {
  if (desktop.OpenWebPage(url)) return;
  boxes.Show("The Web Page could not be reached.\n\nURL:  " + url, BoxStyle::Plain,
             std::string(kProductName));
}

}  // namespace starfolds
