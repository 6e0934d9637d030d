// A box of a dialog that shows a run of the effect, a picture, or the progress of a save.
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

  /// Starts a run: returns a black canvas of the current size of the box, shown from its first
  /// `Present` on. It is valid until the next call; if the box is resized meanwhile, the canvas is
  /// shown clipped or with a black border.
  Surface& BeginRun();

  /// Shows a picture centred on black.
  void ShowPicture(const QImage& picture);

  int ScaleWidth() const override { return width(); }
  void FillFromLeft(int width, unsigned colour) override;
  void Clear() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  class Canvas;

  /// Where the picture's upper left corner is shown.
  QPoint PictureCorner() const;

  std::unique_ptr<Canvas> canvas_;
  QImage picture_;
  bool showsCanvas_ = false;  // the picture is that of the canvas, as of its last `Present`
};

}  // namespace starfolds
