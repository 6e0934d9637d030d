// A box of a dialog that shows a run of the effect, a picture, or how far a save has come.
#pragma once

#include <QImage>
#include <QWidget>
#include <memory>

#include "platform/surface.h"
#include "settings/property_flows.h"

namespace starfolds {

/// One surface pixel is one logical pixel, drawn as a block on dense screens.
class PictureBox : public QWidget, public ProgressPicture {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);
  ~PictureBox() override;

  /// The canvas of a run, as large as the box is now and black. It stays until the next call, even
  /// if the box is resized meanwhile; then it is shown cut off, or with black around it.
  Surface& BeginRun();

  /// Shows a picture in the middle of the box, on black.
  void ShowPicture(const QImage& picture);

  int ScaleWidth() const override { return width(); }
  void FillFromLeft(int width, unsigned colour) override;
  void Clear() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  class Canvas;

  std::unique_ptr<Canvas> canvas_;
  QImage picture_;
};

/// A colour word as the toolkit has it.
QRgb ToRgb(Colour colour);

/// All of a surface, as a picture.
QImage ImageOf(const Surface& surface);

}  // namespace starfolds
