#include "desktop/message_window.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QRasterWindow>
#include <QString>

#include "desktop/screen_image.h"

namespace starfolds {
namespace {

/// Room between the outer window's upper edge and the text, in logical pixels.
constexpr int kTop = 5;

}  // namespace

class MessageWindow::Line : public QRasterWindow {
 public:
  explicit Line(QWindow& outer) : QRasterWindow(&outer) {
    setObjectName("picMessage");
    setFlags(Qt::WindowTransparentForInput);
  }

  void Print(const std::string& utf8, const MessageStyle& style) {
    text_ = QString::fromStdString(utf8);
    font_ = QFont(QString::fromStdString(style.FontName));
    font_.setPointSize(style.FontSize);
    ink_ = QColor::fromRgb(ScreenWord(style.Ink));
    const QFontMetrics metrics(font_);
    const int width = metrics.horizontalAdvance(text_);
    setGeometry((parent()->width() - width) / 2, kTop, width, metrics.height());
    show();
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(), size()), Qt::black);
    painter.setFont(font_);
    painter.setPen(ink_);
    painter.drawText(QPoint(0, painter.fontMetrics().ascent()), text_);
  }

 private:
  QString text_;
  QFont font_;
  QColor ink_;
};

MessageWindow::MessageWindow(QWindow& outer) : line_(std::make_unique<Line>(outer)) {}

MessageWindow::~MessageWindow() = default;

void MessageWindow::Print(const std::string& utf8, const MessageStyle& style) {
  line_->Print(utf8, style);
}

void MessageWindow::Hide() { line_->hide(); }

}  // namespace starfolds
