#include "widgets/program_icon.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>

namespace starfolds {
namespace {

constexpr double kSide = 64;  // of the drawing
constexpr double kCorner = 12;

/// The file is a rounded square with a disc for each star.
QPixmap Drawn(const QString& drawing, int side) {
  static const QRegularExpression disc(
      R"re(<circle cx="([\d.]+)" cy="([\d.]+)" r="([\d.]+)" fill="(#\w+)"/>)re");
  static const QRegularExpression square(R"re(<rect [^>]*fill="(#\w+)")re");
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.scale(side / kSide, side / kSide);
  painter.setBrush(QColor(square.match(drawing).captured(1)));
  painter.drawRoundedRect(QRectF(0, 0, kSide, kSide), kCorner, kCorner);
  for (auto found = disc.globalMatch(drawing); found.hasNext();) {
    const QRegularExpressionMatch star = found.next();
    painter.setBrush(QColor(star.captured(4)));
    const double radius = star.captured(3).toDouble();
    painter.drawEllipse(QPointF(star.captured(1).toDouble(), star.captured(2).toDouble()), radius,
                        radius);
  }
  return picture;
}

}  // namespace

QIcon ProgramIcon() {
  QFile file(":/widgets/starfolds.svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString drawing = QString::fromUtf8(file.readAll());
  QIcon icon;
  for (const int side : {16, 32, 64}) icon.addPixmap(Drawn(drawing, side));
  return icon;
}

}  // namespace starfolds
