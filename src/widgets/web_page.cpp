#include "widgets/web_page.h"

#include "platform/user_text.h"
#include "settings/product.h"

namespace starfolds {

void OpenWebPage(DesktopServices& desktop, MessageBoxes& boxes, const std::string& url) {
  if (desktop.OpenWebPage(url)) return;
  boxes.Show({STARFOLDS_TEXT("The Web Page could not be reached.\n\nURL:  %1"), {url}},
             BoxStyle::Plain, std::string(kProductName));
}

}  // namespace starfolds
