#include "info/frm_credits.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "settings/product.h"
#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

constexpr QSize kSize{760, 430};
constexpr int kStars = 12000;
constexpr int kFrameMs = 16;
constexpr int kPageFrames = 380;  // about six seconds, one and a half of them to form the letters

constexpr double kWidthOfSky = 0.86;  // share of the width that the longest line may take
constexpr int kLargestLetters = 104;
constexpr int kSmallestLetters = 12;
constexpr double kLineSpacing = 1.35;
constexpr int kInk = 110;  // of 255: the minimum coverage of a pixel that belongs to a letter

/// The largest font size with which all lines fit.
int LetterHeight(const QStringList& lines, QSize size, QFont font) {
  font.setBold(true);
  for (int height = kLargestLetters; height > kSmallestLetters; height -= 2) {
    font.setPixelSize(height);
    const QFontMetrics metrics(font);
    const auto fits = [&](const QString& line) {
      return metrics.horizontalAdvance(line) <= size.width() * kWidthOfSky;
    };
    const bool isLow = static_cast<double>(lines.size()) * height * kLineSpacing <= size.height();
    if (isLow && std::all_of(lines.begin(), lines.end(), fits)) return height;
  }
  return kSmallestLetters;
}

}  // namespace

std::vector<QStringList> CreditPages() {
  return {
      {Shown(kProductName), Shown(kProductVersion)},
      {"made by", "the Starfolds", "authors"},
      {"splines after", "Schoenberg", "and de Boor"},
      {"fractals after", "Hutchinson", "and Barnsley"},
      {"chance after", "O'Neill: PCG"},
      {"windows by Qt", "settings in SQLite", "pictures by libpng"},
      {"tested with", "GoogleTest"},
      {"and with thanks", "to everybody", "who looked up"},
  };
}

std::vector<LetterPoint> PointsOfText(const QStringList& lines, QSize size, const QFont& font) {
  QImage ink(size, QImage::Format_Grayscale8);
  ink.fill(Qt::black);
  const int height = LetterHeight(lines, size, font);
  const int spacing = qRound(height * kLineSpacing);
  {
    QFont letters = font;
    letters.setPixelSize(height);
    letters.setBold(true);
    QPainter painter(&ink);
    painter.setFont(letters);
    painter.setPen(Qt::white);
    int top = (size.height() - spacing * static_cast<int>(lines.size())) / 2;
    for (const QString& line : lines) {
      painter.drawText(QRect(0, top, size.width(), spacing), Qt::AlignCenter, line);
      top += spacing;
    }
  }
  std::vector<LetterPoint> points;
  for (int y = 0; y < ink.height(); ++y) {
    const uchar* row = ink.constScanLine(y);
    for (int x = 0; x < ink.width(); ++x) {
      if (row[x] > kInk) points.push_back({x, y});
    }
  }
  return points;
}

FrmCredits::FrmCredits(std::uint64_t seed, QWidget* parent) : QDialog(parent), seed_(seed) {
  setObjectName("frmCredits");
  setWindowTitle(tr("Credits"));
  setWindowModality(Qt::WindowModal);
  resize(kSize);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  picCredits_ = new PictureBox;
  picCredits_->setObjectName("picCredits");
  layout->addWidget(picCredits_);
  timer_.setInterval(kFrameMs);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FrmCredits::Frame);
}

void FrmCredits::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  layout()->activate();
  BeginSky();
  timer_.start();
}

void FrmCredits::hideEvent(QHideEvent* event) {
  timer_.stop();
  QDialog::hideEvent(event);
}

void FrmCredits::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (letters_) BeginSky();
}

void FrmCredits::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return QDialog::keyPressEvent(event);
  TurnTo(page_ + 1);
}

void FrmCredits::mousePressEvent(QMouseEvent*) { TurnTo(page_ + 1); }

/// Creates a surface of the current size of the window.
void FrmCredits::BeginSky() {
  layout()->activate();
  sky_ = &picCredits_->BeginRun();
  letters_ = std::make_unique<StarLetters>(*sky_, kStars, seed_);
  TurnTo(page_);
}

void FrmCredits::TurnTo(int page) {
  page_ = page % static_cast<int>(pages_.size());
  frame_ = 0;
  const QStringList& lines = pages_[static_cast<std::size_t>(page_)];
  picCredits_->setAccessibleName(lines.join(' '));
  letters_->Form(PointsOfText(lines, {sky_->Width(), sky_->Height()}, font()));
}

void FrmCredits::Frame() {
  if (++frame_ > kPageFrames) TurnTo(page_ + 1);
  letters_->Step();
  sky_->Present();
}

}  // namespace starfolds
