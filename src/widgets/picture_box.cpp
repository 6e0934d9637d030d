#include "widgets/picture_box.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/qimage_of_surface.h"
#include "numbers/conversions.h"

namespace starfolds {

/// Copies the changes of each frame to the box's picture and repaints at once, because a run does
/// not return to the event loop. Until its first frame the box shows what it showed before.
class PictureBox::Canvas : public Surface {
 public:
  explicit Canvas(PictureBox& box)
      : Surface(RoundedToLimits<Integer>(box.width()), RoundedToLimits<Integer>(box.height()),
                kJournal),
        box_(box) {}

  void Present() override {
    if (EverythingChanged() || !box_.showsCanvas_) {
      box_.picture_ = ImageOf(*this);
      box_.showsCanvas_ = true;
      ForgetJournal();
      if (box_.isVisible()) box_.repaint();
      return;
    }
    const QRect changed = CopyChanges();
    ForgetJournal();
    if (box_.isVisible() && !changed.isEmpty()) {
      box_.repaint(changed.translated(box_.PictureCorner()));
    }
  }

 private:
  static constexpr std::size_t kJournal = 1U << 17U;  // writes per frame

  /// The part of the picture that has changed.
  QRect CopyChanges() {
    QImage& picture = box_.picture_;
    int left = Width(), top = Height(), right = -1, bottom = -1;
    for (const auto& [place, ink] : TakeChanges()) {
      const int x = ColumnOf(place), y = RowOf(place);
      reinterpret_cast<QRgb*>(picture.scanLine(y))[x] = ScreenWord(ink);
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
    return {QPoint(left, top), QPoint(right, bottom)};
  }

  PictureBox& box_;
};

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureBox::~PictureBox() = default;

Surface& PictureBox::BeginRun() {
  canvas_ = std::make_unique<Canvas>(*this);
  showsCanvas_ = false;
  return *canvas_;
}

void PictureBox::ShowPicture(const QImage& picture) {
  picture_ = picture;
  showsCanvas_ = false;
  update();
}

void PictureBox::FillFromLeft(int width, unsigned colour) {
  if (picture_.size() != size()) Clear();
  showsCanvas_ = false;
  QPainter(&picture_).fillRect(0, 0, width, height(), ScreenWord(colour));
  repaint();
}

void PictureBox::Clear() {
  picture_ = QImage(size(), QImage::Format_RGB32);
  showsCanvas_ = false;
  picture_.fill(Qt::black);
  repaint();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  painter.drawImage(PictureCorner(), picture_);
}

QPoint PictureBox::PictureCorner() const {
  const QSize shown = picture_.deviceIndependentSize().toSize();
  return {(width() - shown.width()) / 2, (height() - shown.height()) / 2};
}

}  // namespace starfolds
