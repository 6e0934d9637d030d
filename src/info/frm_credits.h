// The credits, written in stars.
#pragma once

#include <QDialog>
#include <QStringList>
#include <QTimer>
#include <cstdint>
#include <memory>
#include <vector>

#include "widgets/picture_box.h"
#include "info/star_letters.h"

namespace starfolds {

/// The pages, one after the other; each a few lines.
std::vector<QStringList> CreditPages();

/// The pixels of some lines of text, centred in a picture of that size and as large as fits.
std::vector<LetterPoint> PointsOfText(const QStringList& lines, QSize size, const QFont& font);

/// Shows a page for a while, then the next one. A key or a click leads on; Esc closes.
class FrmCredits : public QDialog {
  Q_OBJECT

 public:
  explicit FrmCredits(std::uint64_t seed, QWidget* parent = nullptr);

  /// Which page is forming, or has.
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
  int frame_ = 0;  // of the page
  PictureBox* picCredits_;
  Surface* sky_ = nullptr;
  std::unique_ptr<StarLetters> letters_;
  QTimer timer_;
};

}  // namespace starfolds
