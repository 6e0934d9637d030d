// A drawing surface that is a window on the screen.
#pragma once

#include <QBackingStore>
#include <QRect>
#include <QRegion>
#include <QWindow>
#include <memory>
#include <string>
#include <vector>

#include "desktop/dirty_tiles.h"
#include "desktop/foreign_window.h"
#include "desktop/pixel_scale.h"
#include "desktop/screen_image.h"
#include "desktop/window_events.h"
#include "platform/surface.h"

namespace starfolds {

/// Where a full-screen window stands among the others.
enum class Stacking { AtBottom, Ordinary, OnTop };

/// The canvas is the truth; `Present` copies what the journal names into the window's own picture
/// and shows the touched tiles. The surface has a size of its own: it takes over the window's only
/// by `TakeWindowSize`, and until then a resized window shows it cut off, or black around it.
class WindowSurface : public Surface {
 public:
  /// `events` outlives the surface. Nothing is shown yet.
  explicit WindowSurface(WindowEvents& events);
  ~WindowSurface() override;

  void SetName(const std::string& objectName);
  void SetCaption(const std::string& caption);
  void HidePointer();

  /// Covers the primary screen, without a frame, and takes the focus.
  void ShowFullScreen(Stacking stacking);
  /// An ordinary window in the middle of the primary screen, with a frame, free to be resized.
  void ShowResizable();
  /// Covers `host` from inside, without taking any input from it. False: the host is gone.
  bool ShowInside(ForeignWindow& host);

  /// Whether any of the window can be seen.
  bool IsExposed() const;

  /// Makes the surface as large as the window; it is black afterwards.
  void TakeWindowSize();
  /// The same with a size that the window has been given, but may not have yet.
  void TakeSize(QSize size);

  /// Shows the changes. While the window cannot be seen they cost nothing: it is painted whole from
  /// the canvas when it comes back.
  void Present() override;

  QWindow& Window();

 private:
  class EffectWindow;

  void Repaint();
  void FitBackingStore();
  QRegion TouchedRegion();
  bool Paint(QPaintDevice& picture, bool whole);
  void MeasureScale(QSize pictureSize);
  void PaintDirectly(ScreenImage image, bool whole);
  void PaintWithPainter(QPaintDevice& picture, bool whole);

  std::unique_ptr<EffectWindow> window_;
  std::unique_ptr<QBackingStore> store_;
  bool repaintAll_ = true;
  double factor_ = 1;  // physical pixels per logical one
  DirtyTiles tiles_;
  PixelScale scale_;
  QSize pictureSize_;         // that `scale_` was measured for, physical pixels
  std::vector<QRect> rects_;  // kept between frames for its memory
};

}  // namespace starfolds
