#include "universe/camera_path.h"

#include "numbers/b_spline.h"

namespace starfolds {

TourPoint BSplinePoint(const TourWindow& window, Single t) {
  const auto& [p0, p1, p2, p3] = window.Points;
  return {static_cast<Single>(BSpline(t, p0.X, p1.X, p2.X, p3.X)),
          static_cast<Single>(BSpline(t, p0.Y, p1.Y, p2.Y, p3.Y)),
          static_cast<Single>(BSpline(t, p0.Z, p1.Z, p2.Z, p3.Z))};
}

TourPoint VisitPoint(const TourPoint& fold, Single distance, int segIdx, int approach,
                     int closeIn) {
  TourPoint point{fold.X, fold.Y, static_cast<Single>(static_cast<double>(fold.Z) - distance)};
  if (segIdx > approach) {
    point.Z = static_cast<Single>(point.Z + distance * 1.5 * (segIdx - approach) / closeIn);
  }
  return point;
}

TourPoint PullOutPoint(Single expandTotal, int k, int steps) {
  const double sizes = k < steps ? -5 : -10000;
  return {0, 0, static_cast<Single>(sizes * expandTotal)};
}

}  // namespace starfolds
