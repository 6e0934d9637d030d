#include "widgets/surface_box.h"

#include <QWindow>
#include <utility>

namespace starfolds {

/// The box has a window of its own, so that the surface's window inside it goes wherever the layout
/// puts the box. The windows of the widgets around it can stay as they are.
SurfaceBox::SurfaceBox(std::function<void(Surface&)> plot, QWidget* parent)
    : QWidget(parent), plot_(std::move(plot)), surface_(*this) {
  setAttribute(Qt::WA_DontCreateNativeAncestors);
  setAttribute(Qt::WA_NativeWindow);
}

void SurfaceBox::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  winId();
  surface_.SetName(objectName().toStdString() + "Surface");
  surface_.ShowInOwn(*windowHandle());
}

void SurfaceBox::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  surface_.Window().resize(size());
}

/// The surface is shown black first: the plotted points are a frame's changes then, not a picture.
void SurfaceBox::Exposed() {
  if (surface_.HasWindowSize()) return;
  surface_.TakeWindowSize();
  surface_.Present();
  plot_(surface_);
  surface_.Present();
}

}  // namespace starfolds
