#include "desktop/image_sender.h"

namespace starfolds {

bool SendParts(QWindow&, const QImage&, const std::vector<QRect>&) { return false; }

}  // namespace starfolds
