#include "widgets/surface_box.h"

#include <QWindow>
#include <utility>

namespace starfolds {

/// A native window, so that the surface's window inside it moves with the layout. The widgets
/// around it need no native windows.
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

/// Shows the surface black first, so that the plotted points are presented as the changes of a
/// frame.
void SurfaceBox::Exposed() {
  if (surface_.HasWindowSize()) return;
  surface_.TakeWindowSize();
  surface_.Present();
  plot_(surface_);
  surface_.Present();
}

}  // namespace starfolds
