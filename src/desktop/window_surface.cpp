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

#include "desktop/key_presses.h"
#include "desktop/window_hints.h"

namespace starfolds {
namespace {

/// Writes between two frames that are recorded one by one: enough for 30000 stars that are erased
/// and plotted, with their flares (512 KiB). A frame with more writes is painted as a whole.
constexpr std::size_t kJournalCapacity = std::size_t{128} * 1024;

/// The initial size of a resizable window, in logical pixels.
constexpr QSize kUsualSize{1280, 720};

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

bool IsWhole(double factor) { return factor == std::floor(factor); }

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
  void paintEvent(QPaintEvent*) override { surface_.Repaint(); }
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
    : Surface(0, 0, kJournalCapacity),
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
  CoverScreen(place);
  if (place.Leads && !atBottom_) window_->requestActivate();
  screens_.emplace([this, place] { CoverScreen(place); });
}

/// A window that fills a screen already would not be moved to another one by the window manager.
void WindowSurface::CoverScreen(ScreenPlace place) {
  QScreen* const named = FindScreen(place.Number);
  QScreen* const screen = named != nullptr ? named : QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  if (window_->isVisible() && window_->geometry() == screen->geometry()) return;
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

/// Called when the native window was created, or created again.
void WindowSurface::MeetWindow() {
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
  if (IsSeen()) {
    FitBackingStore();
    const bool whole = repaintAll_ || EverythingChanged();
    const QRegion region = whole ? QRegion(QRect(QPoint(), store_->size())) : TouchedRegion();
    if (!region.isEmpty()) {
      store_->beginPaint(region);
      repaintAll_ = !Paint(*store_->paintDevice(), whole);
      store_->endPaint();
      if (whole || repaintAll_ || !DrawPoints(region)) store_->flush(region);
    }
  } else {
    repaintAll_ = true;
  }
  ForgetJournal();
}

/// Also updates the window's image, for later exposures.
bool WindowSurface::DrawPoints(const QRegion& region) {
  if (!points_) return false;
  double area = 0;
  for (const QRect& rect : region) area += rect.width() * factor_ * rect.height() * factor_;
  return points_->Draw(*this, {JournalBegin(), JournalEnd()}, scale_,
                       static_cast<std::int64_t>(area));
}

void WindowSurface::Repaint() {
  repaintAll_ = true;
  Present();
}

/// The window may have been resized, or moved to a screen of another density, since the last call.
void WindowSurface::FitBackingStore() {
  if (store_->size() == window_->size() && factor_ == window_->devicePixelRatio()) return;
  factor_ = window_->devicePixelRatio();
  store_->resize(window_->size());
  repaintAll_ = true;
}

/// The tiles that the journal touches, in logical pixels. With a fractional factor the window
/// system rounds their borders in its own way, so they are enlarged by one.
QRegion WindowSurface::TouchedRegion() {
  for (const PixelPlace* place = JournalBegin(); place != JournalEnd(); ++place) {
    tiles_.Touch(ColumnOf(*place), RowOf(*place));
  }
  rects_.clear();
  for (const TileRect& tile : tiles_.Take()) {
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

/// False if the window system has reallocated the image, so that painting the changes is not enough
/// and the next frame must be painted as a whole.
bool WindowSurface::Paint(QPaintDevice& picture, bool whole) {
  const QSize size(picture.width(), picture.height());
  if (whole) {
    MeasureScale(size);
  } else if (size != pictureSize_) {
    return false;
  }
  if (picture.devType() == QInternal::Image && picture.depth() == 32) {
    auto& image = static_cast<QImage&>(picture);
    PaintDirectly({image.bits(), image.bytesPerLine(), image.width(), image.height()}, whole);
  } else {
    PaintWithPainter(picture, whole);
  }
  return true;
}

void WindowSurface::MeasureScale(QSize pictureSize) {
  pictureSize_ = pictureSize;
  const QSize room = store_->size() - QSize(Width(), Height());
  origin_ = {room.width() / 2, room.height() / 2};
  scale_.Columns.Measure(Width(), factor_, pictureSize.width(), origin_.x());
  scale_.Rows.Measure(Height(), factor_, pictureSize.height(), origin_.y());
  tiles_.Resize(Width(), Height());
}

void WindowSurface::PaintDirectly(ScreenImage image, bool whole) {
  if (whole) {
    image.PaintAll(scale_, *this);
  } else {
    image.PaintPlaces(scale_, *this, {JournalBegin(), JournalEnd()});
  }
}

/// The slow path, for screens with fewer colours. QPainter uses logical pixels.
void WindowSurface::PaintWithPainter(QPaintDevice& picture, bool whole) {
  QPainter painter(&picture);
  painter.translate(origin_);
  if (!whole) {
    for (const PixelPlace* place = JournalBegin(); place != JournalEnd(); ++place) {
      const int x = ColumnOf(*place);
      const int y = RowOf(*place);
      painter.fillRect(x, y, 1, 1, QColor::fromRgb(ScreenWord(Pixel(x, y))));
    }
    return;
  }
  painter.fillRect(QRect(-origin_, store_->size()), Qt::black);
  QImage line(std::max(Width(), 1), 1, QImage::Format_RGB32);
  for (int y = 0; y < Height(); ++y) {
    auto* const words = reinterpret_cast<std::uint32_t*>(line.bits());
    for (int x = 0; x < Width(); ++x) words[x] = ScreenWord(Pixel(x, y));
    painter.drawImage(QRect(0, y, Width(), 1), line, QRect(0, 0, Width(), 1));
  }
}

}  // namespace starfolds
