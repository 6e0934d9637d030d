#include "desktop/message_window.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QRasterWindow>
#include <QString>
#include <QTimer>
#include <chrono>

#include "desktop/screen_image.h"

namespace starfolds {
namespace {

/// Distance between the outer window's edge and the text, in logical pixels.
constexpr int kRoom = 5;

constexpr std::chrono::seconds kStepTime{1};

/// The position after `steps` steps of one pixel from `start`, reversing at 0 and at `end`. If
/// there is no room to move, `start`.
int Drifted(int start, int end, int steps) {
  if (end <= 0) return start;
  const int place = (start + steps) % (2 * end);
  return place <= end ? place : 2 * end - place;
}

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
    QObject::connect(&step_, &QTimer::timeout, this, [this] {
      ++steps_;
      Place();
    });
  }

  void SetDrift(bool drifts) {
    if (drifts == step_.isActive()) return;
    steps_ = 0;
    if (drifts) {
      step_.start(kStepTime);
    } else {
      step_.stop();
    }
  }

  void Print(const std::string& utf8, const MessageStyle& style) {
    text_ = QString::fromStdString(utf8);
    font_ = FontOf(style);
    ink_ = QColor::fromRgb(ScreenWord(style.Ink));
    const QFontMetrics metrics(font_);
    resize(metrics.horizontalAdvance(text_), metrics.height());
    Place();
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
  void Place() {
    const QSize room = parent()->size() - size();
    const int rest = place_ == MessagePlace::UpperEdge ? kRoom : room.height() - kRoom;
    setPosition(Drifted(room.width() / 2, room.width(), steps_),
                Drifted(rest, room.height(), steps_));
  }

  MessagePlace place_;
  QTimer step_;
  int steps_ = 0;
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

void MessageWindow::SetDrift(bool drifts) { line_->SetDrift(drifts); }

}  // namespace starfolds
