// Web pages, opened from a dialog.
#pragma once

#include <string>

#include "platform/desktop_services.h"
#include "platform/message_boxes.h"

namespace starfolds {

/// Opens a web page in the user's browser, or tells the user that it could not be opened.
void OpenWebPage(DesktopServices& desktop, MessageBoxes& boxes, const std::string& url);

}  // namespace starfolds
