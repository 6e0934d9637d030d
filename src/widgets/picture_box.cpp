#include "widgets/picture_box.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/qimage_of_surface.h"
#include "numbers/conversions.h"

namespace starfolds {

/// Copies the changes of each frame to the box's picture and repaints at once, because the run does
/// not return to the event loop. A box is small enough to be painted as a whole.
class PictureBox::Canvas : public Surface {
 public:
  explicit Canvas(PictureBox& box)
      : Surface(RoundedToLimits<Integer>(box.width()), RoundedToLimits<Integer>(box.height()),
                kJournal),
        box_(box) {
    box_.picture_ = ImageOf(*this);
  }

  void Present() override {
    if (EverythingChanged()) {
      box_.picture_ = ImageOf(*this);
    } else {
      for (const auto& [place, ink] : TakeChanges()) {
        box_.picture_.setPixel(ColumnOf(place), RowOf(place), ScreenWord(ink));
      }
    }
    ForgetJournal();
    if (box_.isVisible()) box_.repaint();
  }

 private:
  static constexpr std::size_t kJournal = 1U << 17U;  // writes per frame

  PictureBox& box_;
};

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureBox::~PictureBox() = default;

Surface& PictureBox::BeginRun() {
  canvas_ = std::make_unique<Canvas>(*this);
  return *canvas_;
}

void PictureBox::ShowPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void PictureBox::FillFromLeft(int width, unsigned colour) {
  if (picture_.size() != size()) Clear();
  QPainter(&picture_).fillRect(0, 0, width, height(), ScreenWord(colour));
  repaint();
}

void PictureBox::Clear() {
  picture_ = QImage(size(), QImage::Format_RGB32);
  picture_.fill(Qt::black);
  repaint();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  const QSize shown = picture_.deviceIndependentSize().toSize();
  painter.drawImage((width() - shown.width()) / 2, (height() - shown.height()) / 2, picture_);
}

}  // namespace starfolds
