// A drawing surface that is a window on the screen.
#pragma once

#include <QBackingStore>
#include <QRect>
#include <QRegion>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/dirty_tiles.h"
#include "desktop/foreign_window.h"
#include "desktop/pixel_scale.h"
#include "desktop/point_painter.h"
#include "desktop/screen_image.h"
#include "desktop/screen_watch.h"
#include "desktop/sight_watch.h"
#include "desktop/window_events.h"
#include "platform/surface.h"

namespace starfolds {

/// Where a full-screen window stands among the others. At the bottom it takes no focus either, and
/// is no window to switch to.
enum class Stacking { AtBottom, Ordinary, OnTop };

/// Which screen a full-screen window covers.
struct ScreenPlace {
  int Number = 0;     // from 0, the primary screen first
  bool Leads = true;  // of a saver's windows on several screens one does, and takes the focus
};

/// The canvas is the truth; `Present` copies what the journal names into the window's own picture
/// and shows the touched tiles of it, or draws the pixels one by one where that is cheaper. The
/// surface has a size of its own: it takes over the window's only by `TakeWindowSize`, and until
/// then a resized window shows its middle, or all of it with black around.
class WindowSurface : public Surface {
 public:
  /// `events` outlives the surface. Nothing is shown yet.
  explicit WindowSurface(WindowEvents& events);
  ~WindowSurface() override;

  void SetName(const std::string& objectName);
  void SetCaption(const std::string& caption);
  /// From now on `DesktopServices` do not find the window by its caption, in whatever process.
  void HideFromSearch();
  void HidePointer();
  void ShowPointer();

  /// Covers a screen, without a frame, and goes on to do so if the screens change. If there is no
  /// such screen any more, that is the primary one.
  void ShowFullScreen(Stacking stacking, ScreenPlace place = {});
  /// An ordinary window with a frame, free to be resized, of 1280 x 720 logical pixels or as much
  /// of that as the screen has room for. `place` may give it another size and puts it somewhere,
  /// before it is shown.
  void ShowResizable(const std::function<void(QWindow&)>& place);
  /// Covers a window of this program from inside, without taking any input from it. It has the
  /// other's size now and does not follow it by itself. The surface goes before that window.
  void ShowInOwn(QWindow& outer);
  /// Covers `host` from inside, without taking any input from it. False: the host is gone.
  bool ShowInside(ForeignWindow& host, GuestOrder order);

  /// Whether the window system has the window drawn.
  bool IsExposed() const;
  /// Whether anybody could see it drawn: other windows do not cover it, and the screen is awake.
  bool IsSeen() const;

  /// Makes the surface as large as the window; it is black afterwards.
  void TakeWindowSize();
  /// The same with a size that the window has been given, but may not have yet.
  void TakeSize(QSize size);
  bool HasWindowSize() const;

  /// Shows the changes. While the window cannot be seen they cost nothing: it is painted whole from
  /// the canvas when it comes back.
  void Present() override;

  QWindow& Window();

 private:
  class EffectWindow;

  void TakeFlags(Qt::WindowFlags flags);
  void MeetWindow();
  void CoverScreen(ScreenPlace place);
  void ShowInState();
  void Repaint();
  void FitBackingStore();
  QRegion TouchedRegion();
  bool Paint(QPaintDevice& picture, bool whole);
  bool DrawPoints(const QRegion& region);
  void MeasureScale(QSize pictureSize);
  void PaintDirectly(ScreenImage image, bool whole);
  void PaintWithPainter(QPaintDevice& picture, bool whole);

  std::unique_ptr<EffectWindow> window_;
  std::unique_ptr<QBackingStore> store_;
  std::unique_ptr<SightWatch> sight_;     // none where the window system does not tell
  std::unique_ptr<PointPainter> points_;  // none where the window system cannot
  std::optional<ScreenWatch> screens_;
  bool atBottom_ = false;
  bool repaintAll_ = true;
  double factor_ = 1;  // physical pixels per logical one
  DirtyTiles tiles_;
  PixelScale scale_;
  QPoint origin_;             // of the surface in the window, logical pixels
  QSize pictureSize_;         // that `scale_` was measured for, physical pixels
  std::vector<QRect> rects_;  // kept between frames for its memory
};

}  // namespace starfolds
