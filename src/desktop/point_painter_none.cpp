#include "desktop/point_painter.h"

namespace starfolds {

std::unique_ptr<PointPainter> MakePointPainter(QWindow&) { return nullptr; }

}  // namespace starfolds
