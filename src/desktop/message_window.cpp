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

/// Room between the outer window's edge and the text, in logical pixels.
constexpr int kRoom = 5;

QFont FontOf(const MessageStyle& style) {
  QFont font;
  if (!style.FontName.empty()) font.setFamily(QString::fromStdString(style.FontName));
  font.setPointSize(style.FontSize);
  return font;
}

}  // namespace

class MessageWindow::Line : public QRasterWindow {
 public:
  Line(QWindow& outer, const char* name, MessagePlace place)
      : QRasterWindow(&outer), place_(place) {
    setObjectName(name);
    setFlags(Qt::WindowTransparentForInput);
  }

  void Print(const std::string& utf8, const MessageStyle& style) {
    text_ = QString::fromStdString(utf8);
    font_ = FontOf(style);
    ink_ = QColor::fromRgb(ScreenWord(style.Ink));
    const QFontMetrics metrics(font_);
    const int width = metrics.horizontalAdvance(text_);
    const int lower = parent()->height() - kRoom - metrics.height();
    setGeometry((parent()->width() - width) / 2, place_ == MessagePlace::UpperEdge ? kRoom : lower,
                width, metrics.height());
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
  MessagePlace place_;
  QString text_;
  QFont font_;
  QColor ink_;
};

int MessageWidth(const std::string& utf8, const MessageStyle& style) {
  return QFontMetrics(FontOf(style)).horizontalAdvance(QString::fromStdString(utf8));
}

MessageWindow::MessageWindow(QWindow& outer, const char* name, MessagePlace place)
    : line_(std::make_unique<Line>(outer, name, place)) {}

MessageWindow::~MessageWindow() = default;

void MessageWindow::Print(const std::string& utf8, const MessageStyle& style) {
  line_->Print(utf8, style);
}

void MessageWindow::Hide() { line_->hide(); }

}  // namespace starfolds
