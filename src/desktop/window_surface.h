// A drawing surface that is a window on the screen.
#pragma once

#include <QBackingStore>
#include <QRect>
#include <QRegion>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "desktop/dirty_tiles.h"
#include "desktop/foreign_window.h"
#include "desktop/kept_frames.h"
#include "desktop/pixel_scale.h"
#include "desktop/point_painter.h"
#include "desktop/screen_image.h"
#include "desktop/screen_watch.h"
#include "desktop/sight_watch.h"
#include "desktop/window_events.h"
#include "platform/surface.h"

namespace starfolds {

/// Where a full-screen window is in the stacking order. A window at the bottom takes no focus, and
/// is not listed in window switchers.
enum class Stacking { AtBottom, Ordinary, OnTop };

/// Which screen a full-screen window covers.
struct ScreenPlace {
  int Number = 0;     // from 0, the primary screen first
  bool Leads = true;  // of a saver's windows on several screens, the one that takes the focus
};

/// `Present` draws the changed pixels one by one, or, where that is cheaper, paints them into the
/// window's image and shows its changed tiles. The surface
/// has its own size, which only `TakeWindowSize` and `TakeSize` change; until then a resized window
/// shows the middle of the surface, or all of it with a black border.
class WindowSurface : public Surface {
 public:
  /// `events` must outlive the surface. The window is not shown yet.
  explicit WindowSurface(WindowEvents& events);
  ~WindowSurface() override;

  void SetName(const std::string& objectName);
  void SetCaption(const std::string& caption);
  /// `DesktopServices` of all processes no longer find the window by its caption.
  void HideFromSearch();
  void HidePointer();
  void ShowPointer();

  /// Covers a screen, without a frame, and follows changes of the screens. If the screen does not
  /// exist (any more), the window covers the primary one.
  void ShowFullScreen(Stacking stacking, ScreenPlace place = {});
  /// Shows a resizable window with a frame, of 1280 x 720 logical pixels or as much of that as fits
  /// on the screen. `place` can change its size and position before it is shown.
  void ShowResizable(const std::function<void(QWindow&)>& place);
  /// Covers a window of this program from inside and takes no input. It has that window's current
  /// size and does not follow it. The surface must be destroyed before that window.
  void ShowInOwn(QWindow& outer);
  /// Covers `host` from inside and takes no input. False if the host is gone.
  bool ShowInside(ForeignWindow& host, GuestOrder order);

  /// Whether the window system shows the window.
  bool IsExposed() const;
  /// Whether the window is visible to the user: not covered, and its screen is on.
  bool IsSeen() const;

  /// Resizes the surface to the window; it is black afterwards.
  void TakeWindowSize();
  /// Resizes the surface to a size that the window was given, but may not have yet.
  void TakeSize(QSize size);
  bool HasWindowSize() const;

  /// Shows the changes. Does nothing while the window is not visible: when it becomes visible it is
  /// painted from the whole canvas. That is the newest frame, so older ones are not shown any more.
  void Present() override;
  bool KeepFrame() override;
  std::size_t KeptFrameCount() const override { return kept_.Count(); }

  /// Shows the canvas as it is, which may be some frames ahead of what is shown.
  void ShowNewest();

  QWindow& Window();

 private:
  class EffectWindow;

  void TakeFlags(Qt::WindowFlags flags);
  void MeetWindow();
  void CoverScreen(ScreenPlace place);
  void ShowInState();
  bool StoreFits() const;
  void FitBackingStore();
  void ShowAll();
  void PrepareFrame(std::span<const PixelChange> changes);
  bool PrepareAsPoints(KeptFrame& frame, std::int64_t area);
  void ShowFrame(KeptFrame& frame);
  void ShowTiles(KeptFrame& frame);
  bool SendTiles(QPaintDevice& picture, const std::vector<TileRect>& tiles);
  void PaintTiles(QPaintDevice& picture, const std::vector<TileRect>& tiles,
                  std::span<const PixelChange> changes);
  void PaintWithPainter(QPaintDevice& picture, const std::vector<TileRect>& tiles);
  void MeasureScale(QSize pictureSize);
  QRegion RegionOf(const std::vector<TileRect>& tiles);

  std::unique_ptr<EffectWindow> window_;
  std::unique_ptr<QBackingStore> store_;
  std::unique_ptr<SightWatch> sight_;     // null if the window system does not report visibility
  std::unique_ptr<PointPainter> points_;  // null if the window system has no such requests
  std::optional<ScreenWatch> screens_;
  bool atBottom_ = false;
  bool repaintAll_ = true;
  bool imageIsDirect_ = false;   // and not painted through QPainter, from the canvas
  bool paintIsCleared_ = false;  // Qt clears what is to be painted, as on Wayland
  KeptFrames kept_;              // the frame that is being shown is the last that was taken from it
  double factor_ = 1;            // physical pixels per logical one
  DirtyTiles tilesBehind_;       // where the window's image lacks changes that were drawn as points
  PixelScale scale_;
  QPoint origin_;             // of the surface in the window, logical pixels
  QSize pictureSize_;         // the size for which `scale_` was measured, in physical pixels
  std::vector<QRect> rects_;  // kept between frames to reuse its memory
};

}  // namespace starfolds
