// The credits, written in stars.
#pragma once

#include <QDialog>
#include <QStringList>
#include <QTimer>
#include <cstdint>
#include <memory>
#include <vector>

#include "info/star_letters.h"
#include "widgets/picture_box.h"

namespace starfolds {

/// The pages in order, each of a few lines.
std::vector<QStringList> CreditPages();

/// The pixels of lines of text, centred in a picture of that size, in the largest font size that
/// fits.
std::vector<LetterPoint> PointsOfText(const QStringList& lines, QSize size, const QFont& font);

/// Shows each page for some seconds. A key or a click shows the next one; Esc closes.
class FrmCredits : public QDialog {
  Q_OBJECT

 public:
  explicit FrmCredits(std::uint64_t seed, QWidget* parent = nullptr);

  /// Index of the current page.
  int Page() const { return page_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void BeginSky();
  void TurnTo(int page);
  void Frame();

  std::uint64_t seed_;
  std::vector<QStringList> pages_ = CreditPages();
  int page_ = 0;
  int frame_ = 0;  // number within the page
  PictureBox* picCredits_;
  Surface* sky_ = nullptr;
  std::unique_ptr<StarLetters> letters_;
  QTimer timer_;
};

}  // namespace starfolds
