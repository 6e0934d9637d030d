#include "desktop/window_surface.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/huge_pages.h"
#include "desktop/image_sender.h"
#include "desktop/key_presses.h"
#include "desktop/qimage_of_surface.h"
#include "desktop/window_hints.h"

namespace starfolds {
namespace {

/// Writes between two frames that are recorded one by one: enough for 30000 stars that are erased
/// and plotted, with their flares (1 MiB). A frame with more writes is painted as a whole.
constexpr std::size_t kJournalCapacity = std::size_t{128} * 1024;

/// The initial size of a resizable window, in logical pixels.
constexpr QSize kUsualSize{1280, 720};

/// An area of tiles that is more expensive than any number of points.
constexpr std::int64_t kAnyArea = std::numeric_limits<std::int64_t>::max();

/// The maximum share of a small screen: the rest is for the window's frame and the desktop.
constexpr double kWindowShare = 0.9;

Qt::WindowFlags StackingFlags(Stacking stacking) {
  switch (stacking) {
    case Stacking::AtBottom: return Qt::WindowStaysOnBottomHint | Qt::WindowDoesNotAcceptFocus;
    case Stacking::Ordinary: return {};
    case Stacking::OnTop: return Qt::WindowStaysOnTopHint;
  }
  return {};
}

/// Qt's own name. On Windows a window that takes no focus would get it when it is shown.
constexpr const char* kShownWithoutActivating = "_q_showWithoutActivating";

bool IsWhole(double factor) { return factor == std::floor(factor); }

/// nullopt if the picture has another format than the screen image.
std::optional<ScreenImage> DirectImage(QPaintDevice& picture) {
  if (picture.devType() != QInternal::Image || picture.depth() != 32) return std::nullopt;
  auto& image = static_cast<QImage&>(picture);
  return ScreenImage(image.bits(), image.bytesPerLine(), image.width(), image.height());
}

}  // namespace

class WindowSurface::EffectWindow : public QWindow {
 public:
  EffectWindow(WindowSurface& surface, WindowEvents& events) : surface_(surface), events_(events) {
    setSurfaceType(QSurface::RasterSurface);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (keys_.Counts(*event)) events_.KeyDown(event->key(), event->modifiers());
  }
  void keyReleaseEvent(QKeyEvent* event) override { keys_.Released(*event); }
  void wheelEvent(QWheelEvent* event) override {
    const bool moves = !event->angleDelta().isNull() || !event->pixelDelta().isNull();
    if (moves && event->phase() != Qt::ScrollMomentum) events_.Scroll();
  }
  void mousePressEvent(QMouseEvent*) override { events_.MouseDown(); }
  void mouseDoubleClickEvent(QMouseEvent*) override { events_.DoubleClick(); }
  void mouseMoveEvent(QMouseEvent* event) override {
    const QPoint place = event->position().toPoint();
    events_.MouseMove(place.x(), place.y());
  }
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    events_.CloseRequested();
  }
  void exposeEvent(QExposeEvent*) override {
    if (isExposed()) events_.Exposed();
  }
  void paintEvent(QPaintEvent*) override { surface_.ShowNewest(); }
  void resizeEvent(QResizeEvent*) override { events_.Resized(); }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::PlatformSurface) {
      const auto* change = static_cast<QPlatformSurfaceEvent*>(event);
      if (change->surfaceEventType() == QPlatformSurfaceEvent::SurfaceCreated) {
        surface_.MeetWindow();
      } else {
        events_.Destroyed();
      }
    }
    return QWindow::event(event);
  }

 private:
  WindowSurface& surface_;
  WindowEvents& events_;
  KeyPresses keys_;
};

WindowSurface::WindowSurface(WindowEvents& events)
    : Surface(0, 0, kJournalCapacity, HugePages()),
      window_(std::make_unique<EffectWindow>(*this, events)),
      store_(std::make_unique<QBackingStore>(window_.get())) {}

WindowSurface::~WindowSurface() = default;

void WindowSurface::SetName(const std::string& objectName) {
  window_->setObjectName(QString::fromStdString(objectName));
}

void WindowSurface::SetCaption(const std::string& caption) {
  window_->setTitle(QString::fromStdString(caption));
}

void WindowSurface::HideFromSearch() {
  window_->setProperty(kUnlistedProperty, true);
  if (window_->handle() != nullptr) MarkUnlisted(*window_);
}

void WindowSurface::HidePointer() { window_->setCursor(Qt::BlankCursor); }

void WindowSurface::ShowPointer() { window_->unsetCursor(); }

/// A window that does not lead gets no focus even when it is clicked, so that keys go to the one
/// that leads.
void WindowSurface::ShowFullScreen(Stacking stacking, ScreenPlace place) {
  atBottom_ = stacking == Stacking::AtBottom;
  TakeFlags(Qt::Window | Qt::FramelessWindowHint | StackingFlags(stacking) |
            (place.Leads ? Qt::WindowFlags() : Qt::WindowDoesNotAcceptFocus));
  window_->setProperty(kShownWithoutActivating, !place.Leads || atBottom_);
  CoverScreen(place);
  if (place.Leads && !atBottom_) window_->requestActivate();
  screens_.emplace([this, place] { CoverScreen(place); });
}

/// A window that fills a screen already would not be moved to another one by the window manager. A
/// compositor of Wayland moves the window of an output that is gone to another one, where it is no
/// longer full screen, or nowhere; only a window that is shown anew gets its place again.
void WindowSurface::CoverScreen(ScreenPlace place) {
  QScreen* const named = FindScreen(place.Number);
  QScreen* const screen = named != nullptr ? named : QGuiApplication::primaryScreen();
  // Without any output Qt on Wayland has a screen without a size.
  if (screen == nullptr || screen->geometry().isEmpty()) return;
  // The process that leads ends the others when a screen is gone; until then they stay out of the
  // way.
  if (named == nullptr && !place.Leads && window_->isVisible()) return;
  const bool onWayland = QGuiApplication::platformName().startsWith("wayland");
  const bool keptItsPlace =
      !onWayland || (window_->windowState() == Qt::WindowFullScreen && window_->isExposed());
  if (window_->isVisible() && window_->geometry() == screen->geometry() && keptItsPlace) return;
  if (onWayland) window_->setVisible(false);
  window_->setWindowState(Qt::WindowNoState);
  window_->setScreen(screen);
  window_->setGeometry(screen->geometry());
  window_->setWindowState(Qt::WindowFullScreen);
  ShowInState();
}

void WindowSurface::ShowResizable(const std::function<void(QWindow&)>& place) {
  screens_.reset();
  atBottom_ = false;
  TakeFlags(Qt::Window);
  window_->setWindowState(Qt::WindowNoState);
  const QSize room = QGuiApplication::primaryScreen()->availableSize() * kWindowShare;
  const bool fits = kUsualSize.boundedTo(room) == kUsualSize;
  window_->resize(fits ? kUsualSize : kUsualSize.scaled(room, Qt::KeepAspectRatio));
  place(*window_);
  ShowInState();
  window_->requestActivate();
}

/// `QWindow::show` sets the state that is usual on the platform, whatever state was set before, so
/// the window manager would never be asked for full screen or maximised.
void WindowSurface::ShowInState() {
  window_->create();
  if (atBottom_) {
    MarkAsBackground(*window_);
    window_->lower();
  }
  window_->setVisible(true);
}

/// A window that is shown changes its frame only when it is shown again. Qt then selects its events
/// anew, and only its own.
void WindowSurface::TakeFlags(Qt::WindowFlags flags) {
  window_->hide();
  window_->setFlags(flags);
  if (window_->handle() != nullptr) MeetWindow();
}

/// Called when the native window was created, or created again. Kept drawings are for the former
/// one.
void WindowSurface::MeetWindow() {
  kept_.Clear();
  repaintAll_ = true;
  if (window_->property(kUnlistedProperty).toBool()) MarkUnlisted(*window_);
  sight_ = MakeSightWatch(*window_);
  points_ = MakePointPainter(*window_);
}

bool WindowSurface::ShowInside(ForeignWindow& host, GuestOrder order) {
  // Without the bypass it would be an ordinary window inside the root window.
  window_->setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                    Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
  if (!host.TakeIn(*window_, order)) return false;
  window_->show();
  return true;
}

void WindowSurface::ShowInOwn(QWindow& outer) {
  window_->setFlags(Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
  window_->setParent(&outer);
  window_->setGeometry(QRect(QPoint(), outer.size()));
  ShowInState();
}

QWindow& WindowSurface::Window() { return *window_; }

bool WindowSurface::IsExposed() const { return window_->isExposed(); }

bool WindowSurface::IsSeen() const { return IsExposed() && !(sight_ && sight_->IsHidden()); }

void WindowSurface::TakeWindowSize() { TakeSize(window_->size()); }

void WindowSurface::TakeSize(QSize size) {
  Resize(static_cast<Integer>(size.width()), static_cast<Integer>(size.height()));
}

bool WindowSurface::HasWindowSize() const { return window_->size() == QSize(Width(), Height()); }

void WindowSurface::Present() {
  if (!IsSeen()) {
    repaintAll_ = true;
    kept_.Clear();
    return ForgetJournal();
  }
  FitBackingStore();
  if (repaintAll_ || EverythingChanged()) {
    kept_.Clear();
    ForgetJournal();
    ShowAll();
  } else {
    if (kept_.Count() == 0) PrepareFrame(TakeChanges());
    ShowFrame(kept_.TakeOldest());
  }
}

bool WindowSurface::KeepFrame() {
  if (!IsSeen() || !StoreFits() || repaintAll_ || EverythingChanged() || !imageIsDirect_)
    return false;
  PrepareFrame(TakeChanges());
  return true;
}

void WindowSurface::PrepareFrame(std::span<const PixelChange> changes) {
  KeptFrame& frame = kept_.Add();
  frame.Changes.assign(changes.begin(), changes.end());
  frame.Tiles.Resize(Width(), Height());
  for (const auto& [place, ink] : changes) frame.Tiles.Touch(ColumnOf(place), RowOf(place));
  const double area = static_cast<double>(frame.Tiles.Area()) * factor_ * factor_;
  frame.AsPoints = PrepareAsPoints(frame, std::llround(area));
}

bool WindowSurface::PrepareAsPoints(KeptFrame& frame, std::int64_t area) {
  return points_ && points_->Prepare(frame.Changes, scale_, area, frame.Points);
}

void WindowSurface::ShowAll() {
  const QRegion region(QRect(QPoint(), store_->size()));
  store_->beginPaint(region);
  QPaintDevice& picture = *store_->paintDevice();
  MeasureScale({picture.width(), picture.height()});
  auto image = DirectImage(picture);
  imageIsDirect_ = image.has_value();
  paintIsCleared_ = image && static_cast<QImage&>(picture).hasAlphaChannel();
  if (image) {
    image->PaintAll(scale_, *this);
  } else {
    QPainter(&picture).fillRect(QRect(QPoint(), store_->size()), Qt::black);
    PaintWithPainter(picture, {{0, 0, Width(), Height()}});
  }
  store_->endPaint();
  store_->flush(region);
  repaintAll_ = false;
}

/// Changes that are drawn as points are not painted into the window's image: it is as large as the
/// screen, and mostly out of the caches. The tiles where it is behind are noted instead. They are
/// later painted from the canvas, so this has to wait until no frame is kept: until then changes
/// are drawn as points at any cost.
void WindowSurface::ShowFrame(KeptFrame& frame) {
  if (frame.Changes.empty()) return;
  const bool mustBePoints = kept_.Count() > 0 && tilesBehind_.Area() > 0;
  if (frame.AsPoints || (mustBePoints && PrepareAsPoints(frame, kAnyArea))) {
    points_->Draw(frame.Points);
    tilesBehind_.TakeFrom(frame.Tiles);
  } else {
    ShowTiles(frame);
  }
}

/// If the window system has reallocated the image, all of it must be painted. What does not change
/// in the tiles must stay, so Qt is given nothing to clear.
void WindowSurface::ShowTiles(KeptFrame& frame) {
  const bool isBehind = tilesBehind_.Area() > 0;
  frame.Tiles.TakeFrom(tilesBehind_);
  const std::vector<TileRect>& tiles = frame.Tiles.Take();
  const QRegion region = RegionOf(tiles);
  store_->beginPaint(paintIsCleared_ ? QRegion() : region);
  QPaintDevice& picture = *store_->paintDevice();
  const bool isSame = QSize(picture.width(), picture.height()) == pictureSize_;
  if (isSame) {
    PaintTiles(picture, tiles, isBehind ? std::span<const PixelChange>() : frame.Changes);
  }
  store_->endPaint();
  if (!isSame) {
    kept_.Clear();
    return ShowAll();
  }
  if (!SendTiles(picture, tiles)) store_->flush(region);
}

/// False if nothing was sent.
bool WindowSurface::SendTiles(QPaintDevice& picture, const std::vector<TileRect>& tiles) {
  if (picture.devType() != QInternal::Image || picture.depth() != 32) return false;
  rects_.clear();
  for (const TileRect& tile : tiles) {
    const QPoint begin(scale_.Columns.Begin(tile.X), scale_.Rows.Begin(tile.Y));
    const QPoint last(scale_.Columns.End(tile.X + tile.Width - 1) - 1,
                      scale_.Rows.End(tile.Y + tile.Height - 1) - 1);
    rects_.emplace_back(begin, last);
  }
  return SendParts(*window_, static_cast<QImage&>(picture), rects_);
}

/// Paints the changes if there are any, and else the tiles as a whole.
void WindowSurface::PaintTiles(QPaintDevice& picture, const std::vector<TileRect>& tiles,
                               std::span<const PixelChange> changes) {
  auto image = DirectImage(picture);
  if (!image) {
    PaintWithPainter(picture, tiles);
  } else if (changes.empty()) {
    for (const TileRect& tile : tiles) image->PaintRect(scale_, *this, tile);
  } else {
    image->PaintChanges(scale_, changes);
  }
}

void WindowSurface::ShowNewest() {
  repaintAll_ = true;
  Present();
}

/// Whether the window has not been resized, or moved to a screen of another density.
bool WindowSurface::StoreFits() const {
  return store_->size() == window_->size() && factor_ == window_->devicePixelRatio();
}

void WindowSurface::FitBackingStore() {
  if (StoreFits()) return;
  factor_ = window_->devicePixelRatio();
  store_->resize(window_->size());
  repaintAll_ = true;
}

/// The tiles in logical pixels of the window. With a fractional factor the window system rounds
/// their borders in its own way, so they are enlarged by one.
QRegion WindowSurface::RegionOf(const std::vector<TileRect>& tiles) {
  rects_.clear();
  for (const TileRect& tile : tiles) {
    rects_.emplace_back(tile.X + origin_.x(), tile.Y + origin_.y(), tile.Width, tile.Height);
  }
  QRegion region;
  if (IsWhole(factor_)) {
    region.setRects(rects_.data(), static_cast<int>(rects_.size()));
  } else {
    for (const QRect& rect : rects_) region += rect.adjusted(-1, -1, 1, 1);
  }
  return region & QRect(QPoint(), store_->size());
}

void WindowSurface::MeasureScale(QSize pictureSize) {
  pictureSize_ = pictureSize;
  const QSize room = store_->size() - QSize(Width(), Height());
  origin_ = {room.width() / 2, room.height() / 2};
  scale_.Columns.Measure(Width(), factor_, pictureSize.width(), origin_.x());
  scale_.Rows.Measure(Height(), factor_, pictureSize.height(), origin_.y());
  tilesBehind_.Resize(Width(), Height());
}

/// The slow path, for screens with fewer colours. QPainter uses logical pixels.
void WindowSurface::PaintWithPainter(QPaintDevice& picture, const std::vector<TileRect>& tiles) {
  QPainter painter(&picture);
  painter.translate(origin_);
  for (const TileRect& tile : tiles) {
    const QRect rect(tile.X, tile.Y, tile.Width, tile.Height);
    painter.drawImage(rect.topLeft(), ImageOf(*this, rect));
  }
}

}  // namespace starfolds
